#include "streams/TallixEventImp.h"

#include "calculator/CalculatorBottom.h"
#include "streams/ChannelRowStyles.h"
#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFFactory.h"
#include "sf/SFListCtrl.h"
#include "sf/SFListNotify.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/SFStatic.h"
#include "sf/SFView.h"
#include "preview/ScenePreview.h"

#include <QWidget>
#include <string>

namespace {

constexpr unsigned int kAddButtonId = 0x803;
constexpr unsigned int kClearButtonId = 0xBCC;
constexpr unsigned int kListId = 0x7DE;
constexpr unsigned long kChildStyle = 0x10000000ul;
constexpr unsigned long kLabelStyle = 0x10010000ul;
constexpr int kColumnCount = 9;
constexpr int kMaxChannels = 9999;

const wchar_t* const kColumnKeys[kColumnCount] = { L"NO.",         L"Channels",
                                                   L"Compression", L"Environment",
                                                   L"Resolution",  L"FrameRate",
                                                   L"Audio",       L"Bitrate/Ch(Kbps)",
                                                   L"Operation" };
const double kColumnFactors[kColumnCount] = { 0.05, 0.085, 0.135, 0.185, 0.145,
                                              0.185, 0.07,  0.14,  0.12 };

std::wstring Lang(const wchar_t* key)
{
    return GetLangString(key, 0);
}

// A label stands over its button and lets the clicks through to it, as a
// plain static does on the original platform.
void LayLabelOverButton(CSFStatic* label)
{
    if (QWidget* w = dynamic_cast<QWidget*>(label)) {
        w->setAttribute(Qt::WA_TransparentForMouseEvents);
        w->raise();
    }
}

} // namespace

SF_BEGIN_MSGMAP(CTallixEventImp)
    SF_ON_COMMAND(0x7DA, OnCommand2010)
    SF_ON_COMMAND(0x7D9, OnCommand2009)
    SF_ON_COMMAND(0x803, OnAddStreaming)
    SF_ON_COMMAND(0x812, OnInsertBlankRow)
    SF_ON_COMMAND(0xBCC, OnClearAll)
    SF_ON_NOTIFY(3, 0x7DE, OnListNotify1)
    SF_ON_NOTIFY(2, 0x7DE, OnListNotify2)
SF_END_MSGMAP()

CTallixEventImp::CTallixEventImp(CMainDlgEventImp* owner)
    : m_pOwner(owner), m_pList(nullptr), m_pLabelAdd(nullptr), m_pLabelClear(nullptr),
      m_pBtnAdd(nullptr), m_pBtnClear(nullptr), m_pCalculatorView(nullptr),
      m_pCalculator(new CCalculatorBottom(this)), m_nSelectedRow(0)
{
}

CTallixEventImp::~CTallixEventImp()
{
    // A view still standing must not outlive the handler it calls.
    SFDestroyControl(m_pCalculatorView);
    m_pCalculatorView = nullptr;
    delete m_pCalculator;
    m_pCalculator = nullptr;
}

int CTallixEventImp::HostWidth() const
{
    tagRECT client{ 0, 0, 0, 0 };
    if (CSFView* host = dynamic_cast<CSFView*>(SFWidgetFromHandle(GetUIWnd())))
        host->GetViewClientRect(&client);
    return client.right;
}

int CTallixEventImp::OnCreate()
{
    const int width = HostWidth();

    m_pLabelAdd = SFCreateStatic(nullptr);
    if (m_pLabelAdd) {
        m_pLabelAdd->Create(Lang(L"Add Streaming").c_str(), kLabelStyle,
                            tagRECT{ 50, 15, 145, 41 }, GetUIWnd(), static_cast<unsigned int>(-1));
        m_pLabelAdd->SetTextAlignFlag(0x24);
        m_pLabelAdd->SetTextSize(16);
        m_pLabelAdd->ShowWindow(1);
    }
    m_pBtnAdd = SFCreateButton(this);
    if (m_pBtnAdd) {
        m_pBtnAdd->Create(L"", kChildStyle, tagRECT{ 24, 10, 155, 46 }, GetUIWnd(), kAddButtonId);
        ImageButtonStyle style = AddButtonStyle();
        m_pBtnAdd->SetSkin(&style);
        m_pBtnAdd->SetTextColor(0);
        m_pBtnAdd->ShowWindow(1);
    }
    m_pLabelClear = SFCreateStatic(nullptr);
    if (m_pLabelClear) {
        m_pLabelClear->Create(Lang(L"Clear All").c_str(), kLabelStyle,
                              tagRECT{ 195, 15, 295, 41 }, GetUIWnd(),
                              static_cast<unsigned int>(-1));
        m_pLabelClear->SetTextAlignFlag(0x24);
        m_pLabelClear->SetTextSize(16);
        m_pLabelClear->ShowWindow(1);
    }
    m_pBtnClear = SFCreateButton(this);
    if (m_pBtnClear) {
        m_pBtnClear->Create(L"", kChildStyle, tagRECT{ 170, 10, 270, 46 }, GetUIWnd(),
                            kClearButtonId);
        ImageButtonStyle style = ClearButtonStyle();
        m_pBtnClear->SetSkin(&style);
        m_pBtnClear->SetTextColor(0);
        m_pBtnClear->ShowWindow(1);
    }
    LayLabelOverButton(m_pLabelAdd);
    LayLabelOverButton(m_pLabelClear);

    m_pList = SFCreateListCtrl(this);
    if (m_pList) {
        ListCtrlStyle style = ChannelListStyle();
        m_pList->SetSkin(&style);
        m_pList->Create(kChildStyle, tagRECT{ 25, 56, width - 25, 393 }, GetUIWnd(), kListId,
                        true);
        m_pList->ShowWindow(1);
        m_pList->SetExtendedStyle(0x20);
        // The "NO." column numbers the rows; a second count beside it is noise.
        m_pList->SetVerticalHeaderHide();
        for (int i = 0; i < kColumnCount; ++i)
            m_pList->InsertColumn(i, Lang(kColumnKeys[i]).c_str(), 0, -1, -1);
        m_pList->SetArea(g_nLanguage);
    }

    m_pCalculatorView = SFCreateView(m_pCalculator);
    if (m_pCalculatorView) {
        m_pCalculatorView->SetBackground(L"BottomBg(2).png");
        const tagRECT page{ 25, 393, width - 25, 680 };
        m_pCalculator->SetPageRect(page);
        m_pCalculatorView->Create(L"", L"", kChildStyle, page, GetUIWnd(), 0);
        m_pCalculatorView->ShowWindow(1);
    }

    // The widths add up to more than 1050 on purpose.
    if (m_pList) {
        for (int i = 0; i < kColumnCount; ++i)
            m_pList->SetColumnWidth(i, static_cast<int>(1050 * kColumnFactors[i]));
    }

    // The calculator starts from totals of 0.
    OnClearAll();
    return 1;
}

void CTallixEventImp::OnDestroy()
{
    SFDestroyControl(m_pList);
    SFDestroyControl(m_pLabelAdd);
    SFDestroyControl(m_pLabelClear);
    SFDestroyControl(m_pBtnAdd);
    SFDestroyControl(m_pBtnClear);
    m_pList = nullptr;
    m_pLabelAdd = nullptr;
    m_pLabelClear = nullptr;
    m_pBtnAdd = nullptr;
    m_pBtnClear = nullptr;
    // Goes down with the host window as its child.
    m_pCalculatorView = nullptr;
}

void CTallixEventImp::OnListNotify0(unsigned int, void*)
{
}

void CTallixEventImp::OnListNotify1(void* notify, unsigned int)
{
    OnListNotify2(notify, 0);
}

void CTallixEventImp::OnListNotify2(void* notify, unsigned int)
{
    const SFListNotifyRecord* record = static_cast<const SFListNotifyRecord*>(notify);
    if (record && record->iItem >= 0)
        m_nSelectedRow = record->iItem;
}

void CTallixEventImp::OnButton(int, int row)
{
    if (!m_pList)
        return;
    m_pList->DeleteItems(row);
    NumberRows();
}

void CTallixEventImp::Audio_OnClicked(int)
{
}

void CTallixEventImp::CalculatorResoult(int channels, double totalKbps)
{
    if (!m_pCalculator)
        return;
    m_pCalculator->SetTotals(channels, totalKbps);
    m_pCalculator->Recalculate();
}

void CTallixEventImp::ViewScene(int scene)
{
    // The page's own view stands in for the main window as the dialog's
    // parent: the dialog is application-modal either way.
    ShowScenePreview(scene, GetUIWnd());
}

void CTallixEventImp::OnCommand2010()
{
}

void CTallixEventImp::OnCommand2009()
{
}

void CTallixEventImp::OnAddStreaming()
{
    if (!m_pList)
        return;
    const int row = m_pList->GetItemCount();
    m_pList->InsertItem(row, L"");
    m_szEnvironmentTexts[0] = Lang(L"Preview");
    m_szEnvironmentTexts[1] = Lang(L"Scene 1");
    m_szEnvironmentTexts[2] = Lang(L"Scene 2");
    m_szEnvironmentTexts[3] = Lang(L"Scene 3");
    m_pList->SetItemText(row, 0, std::to_wstring(row + 1).c_str());
    m_pList->SetItemNumSpiner(row, 1, kMaxChannels, 1, row, ChannelSpinerStyle());

    const ImageComboBoxStyle combo = RowComboStyle();
    m_pList->SetItemComboBox(1, row, 2, row, combo, Lang(L"--Compression--").c_str(), nullptr,
                             nullptr);
    m_pList->SetItemComboBox(0, row, 3, row, combo, Lang(L"--Environment--").c_str(), nullptr,
                             m_szEnvironmentTexts);
    m_pList->SetItemComboBox(2, row, 4, row, combo, Lang(L"--Resolution--").c_str(), nullptr,
                             nullptr);
    m_pList->SetItemComboBox(3, row, 5, row, combo, Lang(L"--FrameRate--").c_str(),
                             Lang(L"Customize").c_str(), nullptr);
    m_pList->SetItemCheckWidget(row, 6, AudioToggleStyle());
    m_pList->SetItemEditCtrl(row, 7, 0);
    const ImageButtonStyle remove = DeleteButtonStyle();
    m_pList->SetItemWidget(row, 8, Lang(L"Delete").c_str(), nullptr, remove, remove);
}

void CTallixEventImp::OnInsertBlankRow()
{
    if (!m_pList)
        return;
    const int row = m_nSelectedRow + 1;
    m_pList->InsertItem(row, L"");
    m_pList->SetItemText(row, 0, std::to_wstring(row + 1).c_str());
}

void CTallixEventImp::OnClearAll()
{
    if (m_pList)
        m_pList->DeleteAllItems();
}

void CTallixEventImp::NumberRows()
{
    const int rows = m_pList ? m_pList->GetItemCount() : 0;
    for (int row = 0; row < rows; ++row)
        m_pList->SetItemText(row, 0, std::to_wstring(row + 1).c_str());
}

void CTallixEventImp::ClearStreams()
{
    if (m_pList)
        m_pList->DeleteAllItems();
}

void CTallixEventImp::ResizeList(int expanded)
{
    if (!m_pList)
        return;
    const int width = HostWidth() - 20;
    if (expanded == 0)
        m_pList->MoveWindow(10, 121, width, 300);
    else
        m_pList->MoveWindow(10, 201, width, 220);
}

// The page keeps its rows in the table; a group of streams is not taken in.
void CTallixEventImp::AddStreams(std::map<int, StreamInfo>, int)
{
}

bool CTallixEventImp::CanEnableList()
{
    return true;
}
