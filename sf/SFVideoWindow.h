#pragma once
// Abstract video window: an area split into sub windows by a layout text;
// CSFQTVideoWindow realises it.

#include "platform/WinTypes.h"
#include "sf/ISFVideoWindowEvent.h"
#include "sf/ImageVideoWindowStyle.h"
#include "sf/SFControlBase.h"

#include <string>

// Largest number of rows or columns a layout may have.
constexpr int SF_VIDEOWINDOW_MAX_GRID = 64;

// The ready layouts of GetDefaultLayout.
enum DEFAULT_LAYOUT {
    DEFAULT_LAYOUT_1 = 0,    // one window
    DEFAULT_LAYOUT_4 = 1,    // 2 by 2
    DEFAULT_LAYOUT_1_5 = 2,  // 3 by 3, top left 2 by 2 joined
    DEFAULT_LAYOUT_1_7 = 3,  // 4 by 4, top left 3 by 3 joined
    DEFAULT_LAYOUT_9 = 4,    // 3 by 3
    DEFAULT_LAYOUT_1_12 = 5, // 4 by 4, middle 2 by 2 joined
    DEFAULT_LAYOUT_16 = 6,   // 4 by 4
    DEFAULT_LAYOUT_2_18 = 7, // 6 by 6, two 3 by 3 across the top
    DEFAULT_LAYOUT_25 = 8,   // 5 by 5
    DEFAULT_LAYOUT_36 = 9    // 6 by 6
};

enum VIDEOWINDOWMODE {
    VIDEOWINDOWMODE_NORMAL = 0,
    // One sub window fills the control.
    VIDEOWINDOWMODE_ZOOMED = 1
};

// Pixel data handed to RenderSubWin; only RGB32 is drawn.
enum RENDER_DATA_TYPE { RENDER_DATA_RGB32 = 0, RENDER_DATA_YV12 = 1 };

class CSFVideoWindow : public CSFControlBase<ISFVideoWindowEvent> {
public:
    explicit CSFVideoWindow(ISFVideoWindowEvent* handler = nullptr) : CSFControlBase(handler) {}

    virtual int Create(const wchar_t* /*text*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/)
    {
        return 0;
    }
    virtual int SetSkin(ImageVideoWindowStyle* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void* GetLayoutOverView(int /*w*/, int /*h*/, unsigned long /*back*/,
                                    unsigned long /*fore*/)
    {
        return nullptr;
    }
    virtual int GetLayoutOverView(void* /*target*/, int /*w*/, int /*h*/, unsigned long /*back*/,
                                  unsigned long /*fore*/)
    {
        return 0;
    }
    virtual VIDEOWINDOWMODE GetVideoWindowMode() { return VIDEOWINDOWMODE_NORMAL; }
    virtual void SetRows(int /*rows*/) {}
    virtual void SetColumns(int /*columns*/) {}
    virtual void SetSubWinProportion(int /*x*/, int /*y*/) {}
    // 1 when the text was taken, 0 when it does not parse.
    virtual int SetLayout(const char* /*text*/) { return 0; }
    // Copies the layout text, cut to size - 1 characters and terminated;
    // returns the length of the whole text.
    virtual int GetLayout(char* /*buffer*/, int /*size*/) { return 0; }
    virtual void SetDefaultLayout(DEFAULT_LAYOUT /*layout*/) {}
    virtual void* GetSubWinHandle(int /*index*/) { return nullptr; }
    virtual void* GetCurrentWinHandle() { return nullptr; }
    virtual int GetCurrentSubWinIndex() { return 0; }
    virtual int GetSubWinID(int /*index*/) { return 0; }
    virtual int GetSubWinIndexFromID(int /*id*/) { return 0; }
    virtual int GetCurrentSubWinCount() { return 0; }
    virtual void SetSubWinVideo(int /*index*/, int /*video*/) {}
    virtual void SetSubWinVideoByID(int /*id*/, int /*video*/) {}
    virtual void SetDragMode(int /*mode*/) {}
    virtual void SetFrameZoomMode(int /*enable*/) {}
    virtual int IsEnableFrameZoom() { return 0; }
    virtual void SetDrawOSDHandle(int /*index*/, void* /*handle*/) {}
    virtual void GetFrameOSDRect(tagRECT& /*rect*/) {}
    virtual void SetDragSubWinCursor(unsigned int /*normal*/, unsigned int /*dragging*/) {}
    virtual void SetSubWinCtrlsVisible(int /*visible*/) {}
    virtual void SetSubWinRecordState(int /*index*/, int /*recording*/) {}
    virtual void EableSubWinExchange(int /*enable*/) {}
    virtual void ResetSubWinSizeToMin(int /*index*/) {}
    virtual void ResetSubWinSizeToMinByID(int /*id*/) {}
    virtual void SetFocusSubWin(int /*index*/) {}
    virtual void SetActiveCheckMode(int /*mode*/) {}
    virtual void SetParent(void* /*parent*/) {}
    virtual void SetUpdatesEnabled(int /*index*/, bool /*enable*/) {}
    virtual void SetFocus(int /*focus*/) {}
    virtual int RenderSubWin(int /*index*/, unsigned char* /*data*/, RENDER_DATA_TYPE /*type*/,
                             int /*width*/, int /*height*/)
    {
        return 0;
    }

    // Text of a ready layout in the space 400 by 300; null above 9.
    static const char* GetDefaultLayout(DEFAULT_LAYOUT layout);
    // An equal grid of rows by columns in the same space; empty when either
    // is outside 1 to 64.
    static std::string GetGridLayout(int rows, int columns);
};
