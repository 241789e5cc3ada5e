#pragma once

#include "platform/WinTypes.h"

class ISFVideoWindowEvent {
public:
    virtual ~ISFVideoWindowEvent() {}
    virtual void OnLayoutChanged() {}
    virtual void OnBnClickedVideoClose(int, int) {}
    virtual void OnBnClickedVideoSnap(int, int) {}
    virtual void OnBnClickedVideoRecord(int, int, int) {}
    virtual void OnBnClickedVideoProperty(int, int) {}
    virtual void OnFocusWndChanged(int, int) {}
    virtual void OnSubWndExchanged(int, int) {}
    virtual void OnSubWinZoom(int, int, int) {}
    virtual void OnSubWinOccupyRoom(int, int, int) {}
    virtual void OnSubWinBoundChanged(int) {}
    virtual void VideoWidow_OnLButtonDown(int, int, tagPOINT&) {}
    virtual void VideoWidow_OnLButtonUp(int, int, tagPOINT&) {}
};
