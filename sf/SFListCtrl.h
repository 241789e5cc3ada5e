#pragma once
// Abstract table with controls in its cells; CSFQTListCtrl realises it.

#include "platform/WinTypes.h"
#include "sf/ISFListCtrlEvent.h"
#include "sf/ImageButtonStyle.h"
#include "sf/ImageComboBoxStyle.h"
#include "sf/ImageNumSpinerStyle.h"
#include "sf/ImageProgressCtrlStyle.h"
#include "sf/ImageRadioBox.h"
#include "sf/ListCtrlStyle.h"

#include <set>
#include <string>

class CSFListCtrl {
public:
    explicit CSFListCtrl(ISFListCtrlEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1))
    {
    }
    CSFListCtrl(const CSFListCtrl&) = default;
    CSFListCtrl& operator=(const CSFListCtrl&) = default;
    virtual ~CSFListCtrl() {}

    virtual int Create(unsigned long /*style*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/, bool)
    {
        return 0;
    }
    virtual void SetCursor() {}
    virtual int SetSkin(ListCtrlStyle* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual int GetCheck(int /*row*/) const { return 0; }
    virtual int GetColumn(int /*col*/, void* /*column*/) const { return 0; }
    virtual int GetItemCount() const { return 0; }
    virtual unsigned long GetItemData(int /*row*/) const { return 0; }
    virtual int GetItemText(int /*row*/, int /*col*/, wchar_t* /*buffer*/, int /*size*/) const
    {
        return 0;
    }
    virtual void* GetFirstSelectedItemPosition() const { return nullptr; }
    virtual int GetNextSelectedItem(void*& /*pos*/) const { return 0; }
    virtual unsigned long GetExtendedStyle() { return 0; }
    virtual int SetCheck(int /*row*/, int /*check*/) { return 0; }
    virtual int SetItemData(int /*row*/, unsigned long /*data*/) { return 0; }
    virtual int SetItemText(int /*row*/, int /*col*/, const wchar_t* /*text*/) { return 0; }
    virtual int SubItemHitTest(void* /*info*/) { return 0; }
    virtual int InsertColumn(int /*col*/, const wchar_t* /*heading*/, int /*format*/, int /*width*/,
                             int /*subItem*/)
    {
        return 0;
    }
    virtual int InsertColumnCheck(int /*col*/, ImageRadioBox /*style*/) { return 0; }
    virtual int InsertItem(int /*row*/, const wchar_t* /*text*/) { return 0; }
    virtual unsigned long SetExtendedStyle(unsigned long /*style*/) { return 0; }
    virtual int DeleteAllItems() { return 0; }
    virtual int DeleteItems(int /*row*/) { return 0; }
    virtual void DeleteSelectedItems(std::set<int>& /*rows*/) {}
    virtual void SetItemSelected(int* /*rows*/, int /*count*/, bool /*selected*/) {}
    virtual int SetColumnWidth(int /*col*/, int /*width*/) { return 0; }
    virtual void SetColumnTextAlign(int /*col*/, unsigned int /*align*/) {}
    virtual void SetItemWidget(int /*row*/, int /*col*/, const wchar_t*, const wchar_t*,
                               ImageButtonStyle, ImageButtonStyle)
    {
    }
    virtual void SetItemNumSpiner(int /*row*/, int /*col*/, int, int, int, ImageNumSpinerStyle) {}
    virtual void SetItemComboBox(int /*type*/, int /*row*/, int /*col*/, int /*width*/,
                                 ImageComboBoxStyle /*style*/, const wchar_t* /*placeholder*/,
                                 const wchar_t* /*extra*/, const std::wstring* /*items*/, ...)
    {
    }
    virtual void SetItemProgress(int /*row*/, int /*col*/, unsigned int, ImageProgressCtrlStyle) {}
    virtual void SetItemCheckWidget(int /*row*/, int /*col*/, ImageRadioBox /*style*/) {}
    virtual void SetItemIcon(int /*row*/, int /*col*/, const wchar_t* /*file*/) {}
    virtual void SetObjectName(const wchar_t* /*name*/) {}
    virtual void SetHorizontalHeaderVisible(int /*visible*/) {}
    virtual void ScrollToBottom() {}
    virtual void SetToolTipText(int /*row*/, int /*col*/, const wchar_t* /*text*/) {}
    virtual void SetShowGrid(int /*show*/) {}
    virtual void SetColumnHeaderText(int /*col*/, const wchar_t* /*text*/) {}
    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetSelectionStyle(unsigned int /*style*/) {}
    virtual void EditorMode(int /*mode*/) {}
    virtual int IsSelected(int /*row*/) { return 0; }
    virtual int IsCheck(int /*row*/) { return 0; }
    virtual void GetSelectRow(std::set<int>& /*rows*/) {}
    virtual void SetHeaderSortEnable(int /*enable*/) {}
    virtual void SetColumnHidden(int /*col*/, bool /*hidden*/) {}
    virtual void SetVerticalHeaderHide() {}
    virtual void SetSortIndicatorShown(int /*shown*/) {}
    virtual void SetItemEditable(int /*col*/, int /*editable*/) {}
    virtual void SetItemEdit(int /*row*/, int /*col*/) {}
    virtual void SetItemEditCtrl(int /*row*/, int /*col*/, int) {}
    virtual void SetRowColor(int) {}
    virtual void EmitHeadClickFun(int /*section*/) {}
    virtual void AddOperateBtn(int /*row*/, int /*col*/, const wchar_t*, int, ImageButtonStyle, int,
                               int)
    {
    }
    virtual void SetBtnEnable(int, bool) {}
    virtual void SetAllCheck(int /*check*/) {}
    virtual void SetItemShow(int /*row*/, int /*col*/, unsigned int /*id*/, bool /*show*/) {}
    virtual void SetProgress(int /*row*/, int /*value*/) {}
    virtual void SethorizontalHeader(int) {}
    virtual void RADIO_OnClicked(int /*checked*/, int /*id*/, tagPOINT /*pt*/, void* /*sender*/) {}
    virtual void SetArea(int /*area*/) {}

protected:
    ISFListCtrlEvent* m_pHandler;
    unsigned int m_nID;
};
