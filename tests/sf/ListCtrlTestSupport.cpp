#include "ListCtrlTestSupport.h"

#include "SFApplication.h"
#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFListNotify.h"
#include "SFView.h"

#include <QTest>
#include <QWidget>
#include <cstring>
#include <string>

SF_BEGIN_MSGMAP(CListPage)
    SF_MAP_ENTRY(SF_MSG_NOTIFY, 2, kListId, kListId, SF_SIG_NOTIFY, OnNotify)
    SF_MAP_ENTRY(SF_MSG_NOTIFY, 3, kListId, kListId, SF_SIG_NOTIFY, OnNotify)
    SF_MAP_ENTRY(SF_MSG_NOTIFY, 9, kListId, kListId, SF_SIG_NOTIFY, OnNotify)
    SF_MAP_ENTRY(SF_MSG_NOTIFY, 10, kListId, kListId, SF_SIG_NOTIFY, OnNotify)
    SF_ON_COMMAND(0x856, OnDeleteCommand)
SF_END_MSGMAP()

void CListPage::OnNotify(void* record, unsigned int id)
{
    const SFListNotifyRecord* r = static_cast<const SFListNotifyRecord*>(record);
    bool zero = true;
    for (unsigned char b : r->reserved)
        zero = zero && b == 0;
    notices.push_back({ r->hdr.code, id, r->hdr.code, r->hdr.idFrom, r->iItem, r->iSubItem, zero });
}

void CListPage::Selection_OnMouseRelease(int row)
{
    events.push_back("release:" + std::to_string(row));
}

void CListPage::OnButton(int id, int row)
{
    events.push_back("button:" + std::to_string(id) + "/" + std::to_string(row));
    if (onButton)
        onButton(id, row);
}

void CListPage::Audio_OnClicked(int row)
{
    events.push_back("audio:" + std::to_string(row));
}

void CListPage::CalculatorResoult(int channels, double totalKbps)
{
    events.push_back("totals:" + std::to_string(channels) + "/" +
                     std::to_string(static_cast<long long>(totalKbps)));
}

void CListPage::ViewScene(int scene)
{
    events.push_back("scene:" + std::to_string(scene));
}

std::vector<ListNotice> CListPage::Notices(unsigned int code) const
{
    std::vector<ListNotice> out;
    for (const ListNotice& n : notices)
        if (n.code == code)
            out.push_back(n);
    return out;
}

int CListPage::Count(const std::string& prefix) const
{
    int n = 0;
    for (const std::string& e : events)
        n += e.compare(0, prefix.size(), prefix) == 0 ? 1 : 0;
    return n;
}

void CRecordingList::SelectChanged(int id, int index, void* sender)
{
    cellEvents.push_back({ "select", static_cast<unsigned int>(id), index, sender });
    CSFQTListCtrl::SelectChanged(id, index, sender);
}

void CRecordingList::EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender)
{
    cellEvents.push_back({ "text", id, static_cast<int>(text ? std::wcslen(text) : 0), sender });
    CSFQTListCtrl::EDIT_OnTextChange(id, text, sender);
}

void CRecordingList::OnCurrentNumChanged(unsigned int id, int value, void* sender, int reserved)
{
    cellEvents.push_back({ "num", id, value, sender });
    CSFQTListCtrl::OnCurrentNumChanged(id, value, sender, reserved);
}

void CRecordingList::RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender)
{
    cellEvents.push_back({ "radio", static_cast<unsigned int>(id), checked, sender });
    CSFQTListCtrl::RADIO_OnClicked(checked, id, pt, sender);
}

void CRecordingList::BTN_OnClicked(int id)
{
    cellEvents.push_back({ "btn", static_cast<unsigned int>(id), 0, nullptr });
    CSFQTListCtrl::BTN_OnClicked(id);
}

const CellEvent* CRecordingList::Last(const std::string& kind) const
{
    for (auto it = cellEvents.rbegin(); it != cellEvents.rend(); ++it)
        if (it->kind == kind)
            return &*it;
    return nullptr;
}

ListCtrlStyle ChannelListStyle()
{
    ListCtrlStyle s;
    s.strRowColor1 = L"e4e4e4";
    s.strRowColor2 = L"F5F5F5";
    s.strColor3 = L"FCE2C6";
    s.strColor4 = L"FAB400";
    s.strColor5 = L"000000";
    s.nReserved1 = 13;
    s.nReserved2 = 13;
    s.nHeaderHeight = 36;
    s.nRowHeight = 45;
    return s;
}

ImageNumSpinerStyle RowSpinerStyle()
{
    ImageNumSpinerStyle s;
    s.strFrame = L"selectbox_nor.png";
    return s;
}

ImageRadioBox RowAudioStyle()
{
    ImageRadioBox s;
    s.strCheckedNormal = L"list_open_nor.png";
    s.strCheckedHover = L"list_open_nor.png";
    s.strCheckedPressed = L"list_open_nor.png";
    s.strUncheckedNormal = L"list_close_nor.png";
    s.strUncheckedHover = L"list_close_nor.png";
    s.strUncheckedPressed = L"list_open_nor.png";
    return s;
}

ImageButtonStyle RowDeleteStyle()
{
    ImageButtonStyle s;
    s.strNormal = L"list_clear_nor.png";
    s.strHover = L"list_clear_hover.png";
    s.strPressed = L"list_clear_nor.png";
    s.strDisabled = L"list_clear_dis.png";
    return s;
}

void AddChannelColumns(CSFListCtrl* list)
{
    const wchar_t* const headings[9] = { L"NO.",  L"Channels", L"Compression",
                                         L"Environment", L"Resolution", L"FrameRate",
                                         L"Audio", L"Bitrate/Ch(Kbps)", L"Operation" };
    const double factors[9] = { 0.05, 0.085, 0.135, 0.185, 0.145, 0.185, 0.07, 0.14, 0.12 };
    for (int i = 0; i < 9; ++i)
        list->InsertColumn(i, headings[i], 0, -1, -1);
    for (int i = 0; i < 9; ++i)
        list->SetColumnWidth(i, static_cast<int>(1050 * factors[i]));
}

int AddChannelRow(CSFListCtrl* list)
{
    const int row = list->GetItemCount();
    list->InsertItem(row, L"");
    const std::wstring scenes[4] = { L"Preview", L"Scene 1", L"Scene 2", L"Scene 3" };
    list->SetItemText(row, 0, std::to_wstring(row + 1).c_str());
    list->SetItemNumSpiner(row, 1, 9999, 1, row, RowSpinerStyle());
    const ImageComboBoxStyle combo = RowComboStyle();
    list->SetItemComboBox(1, row, 2, row, combo, L"--Compression--", nullptr, nullptr);
    list->SetItemComboBox(0, row, 3, row, combo, L"--Environment--", nullptr, scenes);
    list->SetItemComboBox(2, row, 4, row, combo, L"--Resolution--", nullptr, nullptr);
    list->SetItemComboBox(3, row, 5, row, combo, L"--FrameRate--", L"Customize", nullptr);
    list->SetItemCheckWidget(row, 6, RowAudioStyle());
    list->SetItemEditCtrl(row, 7, 0);
    list->SetItemWidget(row, 8, L"Delete", nullptr, RowDeleteStyle(), RowDeleteStyle());
    return row;
}

CListHost::CListHost(CListPage& page, const QSize& size)
{
    view = SFCreateView(&page);
    view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, size.width() - 1, size.height() - 1 },
                 nullptr, 0);
    list = new CRecordingList(&page);
    ListCtrlStyle style = ChannelListStyle();
    list->SetSkin(&style);
    list->Create(SF_WS_VISIBLE, tagRECT{ 25, 10, size.width() - 25, size.height() - 10 },
                 page.GetUIWnd(), kListId, true);
    AddChannelColumns(list);
    QWidget* w = Window();
    w->show();
    w->activateWindow();
    if (!QTest::qWaitForWindowExposed(w))
        qWarning("list host was not exposed");
}

CListHost::~CListHost()
{
    SFDestroyControl(static_cast<CSFListCtrl*>(list));
    SFDestroyControl(view);
}

QWidget* CListHost::Window() const
{
    return dynamic_cast<QWidget*>(view);
}

QWidget* RowWidget(const CSFQTListCtrl* list, CSFQTListCtrl::Register reg, int row)
{
    return list->CellWidget(list->RegisterControl(reg, row));
}

void UserDoubleClick(QWidget* w, const QPoint& pos)
{
    QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseDClick(w, Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseRelease(w, Qt::LeftButton, Qt::NoModifier, pos);
}

QPoint CellCentre(const CSFQTListCtrl* list, int row, int col)
{
    return list->visualRect(list->model()->index(row, col)).center();
}

std::wstring ItemText(const CSFListCtrl* list, int row, int col)
{
    wchar_t buffer[64] = {};
    list->GetItemText(row, col, buffer, 64);
    return buffer;
}
