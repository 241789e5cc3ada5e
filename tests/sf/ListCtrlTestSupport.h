#pragma once
// A page that hosts a list control the way the channel page does, records
// what reaches it on both roads, and builds rows with the program's skin.

#include "ISFListCtrlEvent.h"
#include "ISFViewEvent.h"
#include "SFQTListCtrl.h"
#include "SfTestSupport.h"

#include <QPoint>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

class CSFView;

constexpr unsigned int kListId = 0x7DE;

struct ListNotice {
    unsigned int code;      // code of the custom event
    unsigned int id;        // lParam
    unsigned int hdrCode;   // code in the record's header
    std::uintptr_t idFrom;  // id in the record's header
    int row;
    int col;
    bool tailZero;          // the 40 bytes after the header's code are zero but row and column
};

class CListPage : public ISFViewEvent, public ISFListCtrlEvent {
    SF_DECLARE_MSGMAP()
public:
    std::vector<ListNotice> notices;
    std::vector<unsigned int> commands;
    // "button:<id>/<row>", "audio:<row>", "totals:<channels>/<kbps>",
    // "scene:<n>", "release:<row>"
    std::vector<std::string> events;
    std::function<void(int id, int row)> onButton;

    void OnNotify(void* record, unsigned int id);
    void OnDeleteCommand() { commands.push_back(0x856); }

    void Selection_OnMouseRelease(int row) override;
    void OnButton(int id, int row) override;
    void Audio_OnClicked(int row) override;
    void CalculatorResoult(int channels, double totalKbps) override;
    void ViewScene(int scene) override;

    std::vector<ListNotice> Notices(unsigned int code) const;
    int Count(const std::string& prefix) const;
};

// What the cell controls report, recorded before the list control's own
// handling runs.
struct CellEvent {
    std::string kind; // "select", "text", "num", "radio", "btn"
    unsigned int id;
    int value;
    const void* sender;
};

class CRecordingList : public CSFQTListCtrl {
public:
    explicit CRecordingList(ISFListCtrlEvent* handler) : CSFQTListCtrl(handler) {}
    std::vector<CellEvent> cellEvents;

    void SelectChanged(int id, int index, void* sender) override;
    void EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender) override;
    void OnCurrentNumChanged(unsigned int id, int value, void* sender, int reserved) override;
    void RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender) override;
    void BTN_OnClicked(int id) override;

    const CellEvent* Last(const std::string& kind) const;
};

// Skin records of a channel row, as the channel page fills them (the
// combo's is RowComboStyle).
ListCtrlStyle ChannelListStyle();
ImageNumSpinerStyle RowSpinerStyle();
ImageRadioBox RowAudioStyle();
ImageButtonStyle RowDeleteStyle();

// The nine columns of the channel table, with their widths.
void AddChannelColumns(CSFListCtrl* list);
// Appends a row as the channel page's "Add Streaming" does.
int AddChannelRow(CSFListCtrl* list);

// A shown top-level page view with a list control of id kListId on it.
class CListHost {
public:
    explicit CListHost(CListPage& page, const QSize& size = QSize(1100, 420));
    ~CListHost();
    CRecordingList* list = nullptr;
    CSFView* view = nullptr;
    QWidget* Window() const;
};

// The widget of a cell control of a register, or null.
QWidget* RowWidget(const CSFQTListCtrl* list, CSFQTListCtrl::Register reg, int row);
// What a user's double click delivers: press, release, double click, release.
void UserDoubleClick(QWidget* w, const QPoint& pos);
// Centre of a cell in viewport coordinates.
QPoint CellCentre(const CSFQTListCtrl* list, int row, int col);
// The text of a cell, as a page reads it.
std::wstring ItemText(const CSFListCtrl* list, int row, int col);

// A list control on its page, skinned as the program skins it.
class ListFixture : public testing::Test {
protected:
    explicit ListFixture(const QSize& size = QSize(1100, 420)) : host(page, size) {}

    // Appends n rows as the channel page does.
    void AddRows(int n)
    {
        for (int i = 0; i < n; ++i)
            AddChannelRow(list);
    }

    CProgramSkin skin;
    CListPage page;
    CListHost host;
    CRecordingList* list = host.list;
};
