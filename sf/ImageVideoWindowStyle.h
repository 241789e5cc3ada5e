#pragma once
// Skin of the video window: pictures in the skin directory, sizes, colours.

#include <string>

struct ImageVideoWindowStyle {
    std::wstring strNoVideo;
    std::wstring strCloseNormal;
    std::wstring strCloseHover;
    std::wstring strCloseDown;
    std::wstring strSnapNormal;
    std::wstring strSnapHover;
    std::wstring strSnapDown;
    // Note the order: down before hover.
    std::wstring strPropertyNormal;
    std::wstring strPropertyDown;
    std::wstring strPropertyHover;
    std::wstring strDragOn;
    std::wstring strDragOff;
    // "width,height" of every title bar button.
    std::wstring strButtonSize;
    std::wstring strTitleHeight;
    // "RRGGBB": the gaps and empty space, the frame of the current sub
    // window, the title bar, the frame of a drop target while exchanging,
    // the frame of a recording sub window.
    std::wstring strBackColor;
    std::wstring strFocusColor;
    std::wstring strTitleColor;
    std::wstring strDropColor;
    std::wstring strRecordColor;
    // Frame width of a sub window, and of the current one.
    std::wstring strFrameWidth;
    std::wstring strFocusFrameWidth;
};
