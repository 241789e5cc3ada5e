#pragma once
// Abstract label; CSFQTStatic realises it.

#include "sf/ISFStaticEvent.h"
#include "platform/WinTypes.h"

class CSFStatic {
public:
    explicit CSFStatic(ISFStaticEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFStatic(const CSFStatic&) = default;
    CSFStatic& operator=(const CSFStatic&) = default;
    virtual ~CSFStatic() {}

    virtual int Create(const wchar_t* /*text*/, unsigned long /*style*/, const tagRECT& /*rect*/,
                       void* /*parent*/, unsigned int /*id*/) { return 0; }
    virtual void SetCursor() {}
    virtual int SetSkin() { return 1; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual int GetStaticText(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetStaticText(const wchar_t* /*text*/) {}
    virtual void SetTextAlignFlag(unsigned int /*flags*/) {}
    virtual unsigned int GetTextAlignFlag() { return 0; }
    virtual void SetTextColor(unsigned int /*color*/) {}
    virtual void SetTextBold(int /*bold*/) {}
    virtual void GetTextSize(int& /*w*/, int& /*h*/) {}
    virtual void SetBgColor(unsigned int /*color*/, int /*enable*/) {}
    virtual void SetTextSize(int /*pixels*/) {}
    virtual void GetStaticCtrolPos(tagRECT& /*rect*/) {}
    virtual void SetTextOffset(int /*offset*/) {}
    virtual void SetWordWrap(int /*wrap*/) {}
    virtual int GetWordWrap() { return 0; }
    virtual void SetWrapAnywhere(int /*wrap*/) {}
    virtual int GetWrapAnywher() { return 0; }
    virtual void SetToolTipText(const wchar_t* /*text*/) {}
    virtual void SetTooltipEnable(int /*enable*/) {}
    virtual tagRECT GetGeometry() { return tagRECT{ 0, 0, 0, 0 }; }
    virtual void StartTwinkle() {}

protected:
    ISFStaticEvent* m_pHandler;
    unsigned int m_nID;
};
