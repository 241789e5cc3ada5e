#pragma once
// Small types shared by the abstract controls.

// Window style bit that the facade reads: set, a created control is shown.
constexpr unsigned long SF_WS_VISIBLE = 0x10000000ul;

// Placement of a button's picture; only ICON_POS_TOPLEFT changes the drawing.
enum ICON_POS { ICON_POS_STRETCH = 0, ICON_POS_LEFT = 1, ICON_POS_RIGHT = 2, ICON_POS_TOPLEFT = 3 };

// Kind of window a view is placed in; the Qt views ignore it.
enum WINDOW_TYPE {
    WINDOW_TYPE_NONE = 0,
    WINDOW_TYPE_DIALOG = 1,
    WINDOW_TYPE_MAINWINDOW = 2,
    WINDOW_TYPE_VIEW = 3
};
