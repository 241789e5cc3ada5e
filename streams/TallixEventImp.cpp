#include "streams/TallixEventImp.h"

#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "platform/WinTypes.h"
#include "preview/ScenePreview.h"
#include "sf/SFButton.h"
#include "sf/SFFactory.h"
#include "sf/SFListCtrl.h"
#include "sf/SFListNotify.h"
#include "sf/SFStatic.h"
#include "sf/SFView.h"
#include "sf/dialogs/SFControlNames.h"
#include "sf/dialogs/SFReleaseControls.h"
#include "sf/qt/SFQtConvert.h"
#include "streams/ChannelColumns.h"
#include "streams/ChannelRowStyles.h"
#include "streams/rows/ChannelRowBinder.h"

#include <QWidget>
#include <string>

namespace {

constexpr unsigned int kAddButtonId = 0x803;
constexpr unsigned int kClearButtonId = 0xBCC;
constexpr unsigned int kListId = 0x7DE;
// Commands that no control of the page sends: kept as the page's map has them.
constexpr unsigned int kCommand2010Id = 0x7DA;
constexpr unsigned int kCommand2009Id = 0x7D9;
constexpr unsigned int kInsertBlankRowId = 0x812;
// Notification codes of the list: a click and a selection change.
constexpr unsigned int kListClickCode = 3;
constexpr unsigned int kListSelectCode = 2;
constexpr unsigned int kNoId = static_cast<unsigned int>(-1);
constexpr unsigned long kChildStyle = 0x10000000ul;
constexpr unsigned long kLabelStyle = 0x10010000ul;
constexpr unsigned int kLabelAlign = DT_VCENTER | DT_SINGLELINE;
constexpr int kLabelTextSize = 16;
constexpr unsigned long kListExtendedStyle = 0x20;
constexpr int kColumnCount = ChannelColumnCount;
constexpr int kMaxChannels = 9999;

// The table and the calculator below it, inset from the page's sides.
constexpr int kSideInset = 25;
constexpr int kListTop = 56;
constexpr int kCalculatorTop = 393;
constexpr int kCalculatorBottom = 680;
// Column widths are shares of this, adding up to more on purpose.
constexpr int kColumnBase = 1050;

// Where the stream editor asks for the table: collapsed or with sub streams.
constexpr int kEditorListLeft = 10;
constexpr int kEditorListMargin = 20;
constexpr int kEditorListTop[2] = { 121, 201 };
constexpr int kEditorListHeight[2] = { 300, 220 };

const wchar_t* const kColumnKeys[kColumnCount] = {
    L"NO.",       L"Channels", L"Compression",      L"Environment", L"Resolution",
    L"FrameRate", L"Audio",    L"Bitrate/Ch(Kbps)", L"Operation"
};
const double kColumnFactors[kColumnCount] = { 0.05,  0.085, 0.135, 0.185, 0.145,
                                              0.185, 0.07,  0.14,  0.12 };
const wchar_t* const kEnvironmentKeys[4] = { L"Preview", L"Scene 1", L"Scene 2", L"Scene 3" };

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
    SF_ON_COMMAND(kCommand2010Id, OnCommand2010)
    SF_ON_COMMAND(kCommand2009Id, OnCommand2009)
    SF_ON_COMMAND(kAddButtonId, OnAddStreaming)
    SF_ON_COMMAND(kInsertBlankRowId, OnInsertBlankRow)
    SF_ON_COMMAND(kClearButtonId, OnClearAll)
    SF_ON_NOTIFY(kListClickCode, kListId, OnListNotify1)
    SF_ON_NOTIFY(kListSelectCode, kListId, OnListNotify2)
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

struct CTallixEventImp::LabelledButton {
    const wchar_t* key;
    tagRECT labelRect;
    tagRECT buttonRect;
    unsigned int id;
    ImageButtonStyle (*style)();
    const char* labelName;
};

void CTallixEventImp::CreateLabelledButton(const LabelledButton& place, CSFStatic*& label,
                                           CSFButton*& button)
{
    const std::wstring text = LangText(place.key);
    label = SFCreateStatic(nullptr);
    if (label) {
        label->Create(text.c_str(), kLabelStyle, place.labelRect, GetUIWnd(), kNoId);
        label->SetTextAlignFlag(kLabelAlign);
        label->SetTextSize(kLabelTextSize);
        label->ShowWindow(1);
        SFSetObjectName(label, place.labelName);
    }
    button = SFCreateButton(this);
    if (button) {
        button->Create(L"", kChildStyle, place.buttonRect, GetUIWnd(), place.id);
        ImageButtonStyle skin = place.style();
        button->SetSkin(&skin);
        button->SetTextColor(0);
        button->ShowWindow(1);
        // The picture carries no words: the label over it names it.
        SFSetAccessibleName(button, text.c_str());
    }
}

int CTallixEventImp::OnCreate()
{
    const int width = HostWidth();

    static const LabelledButton kAddStreaming{ L"Add Streaming",    { 50, 15, 145, 41 },
                                               { 24, 10, 155, 46 }, kAddButtonId,
                                               &AddButtonStyle,     "label_add" };
    static const LabelledButton kClearAll{ L"Clear All",         { 195, 15, 295, 41 },
                                           { 170, 10, 270, 46 }, kClearButtonId,
                                           &ClearButtonStyle,    "label_clear" };
    CreateLabelledButton(kAddStreaming, m_pLabelAdd, m_pBtnAdd);
    CreateLabelledButton(kClearAll, m_pLabelClear, m_pBtnClear);
    LayLabelOverButton(m_pLabelAdd);
    LayLabelOverButton(m_pLabelClear);

    m_pList = SFCreateListCtrl(this);
    SFSetListRowBinder(m_pList, std::make_unique<CChannelRowBinder>());
    if (m_pList) {
        ListCtrlStyle style = ChannelListStyle();
        m_pList->SetSkin(&style);
        m_pList->Create(kChildStyle,
                        tagRECT{ kSideInset, kListTop, width - kSideInset, kCalculatorTop },
                        GetUIWnd(), kListId, true);
        m_pList->ShowWindow(1);
        m_pList->SetExtendedStyle(kListExtendedStyle);
        // The "NO." column numbers the rows; a second count beside it is noise.
        m_pList->SetVerticalHeaderHide();
        for (int i = 0; i < kColumnCount; ++i)
            m_pList->InsertColumn(i, LangText(kColumnKeys[i]).c_str(), 0, -1, -1);
        m_pList->SetArea(g_nLanguage);
    }

    m_pCalculatorView = SFCreateView(m_pCalculator);
    if (m_pCalculatorView) {
        m_pCalculatorView->SetBackground(L"BottomBg(2).png");
        const tagRECT page{ kSideInset, kCalculatorTop, width - kSideInset, kCalculatorBottom };
        m_pCalculator->SetPageRect(page);
        m_pCalculatorView->Create(L"", L"", kChildStyle, page, GetUIWnd(), 0);
        m_pCalculatorView->ShowWindow(1);
    }

    if (m_pList) {
        for (int i = 0; i < kColumnCount; ++i)
            m_pList->SetColumnWidth(i, static_cast<int>(kColumnBase * kColumnFactors[i]));
    }

    // The calculator starts from totals of 0.
    OnClearAll();
    return 1;
}

void CTallixEventImp::OnDestroy()
{
    SFReleaseControls(m_pList, m_pLabelAdd, m_pLabelClear, m_pBtnAdd, m_pBtnClear);
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
    for (int i = 0; i < 4; ++i)
        m_szEnvironmentTexts[i] = LangText(kEnvironmentKeys[i]);
    m_pList->SetItemText(row, ColNumber, std::to_wstring(row + 1).c_str());
    m_pList->SetItemNumSpiner(row, ColChannels, kMaxChannels, 1, row, ChannelSpinerStyle());

    const ImageComboBoxStyle combo = RowComboStyle();
    m_pList->SetItemComboBox(CChannelRowBinder::ComboCompression, row, ColCompression, row, combo,
                             LangText(L"--Compression--").c_str(), nullptr, nullptr);
    m_pList->SetItemComboBox(CChannelRowBinder::ComboScene, row, ColEnvironment, row, combo,
                             LangText(L"--Environment--").c_str(), nullptr, m_szEnvironmentTexts);
    m_pList->SetItemComboBox(CChannelRowBinder::ComboResolution, row, ColResolution, row, combo,
                             LangText(L"--Resolution--").c_str(), nullptr, nullptr);
    m_pList->SetItemComboBox(CChannelRowBinder::ComboFrameRate, row, ColFrameRate, row, combo,
                             LangText(L"--FrameRate--").c_str(), LangText(L"Customize").c_str(),
                             nullptr);
    m_pList->SetItemCheckWidget(row, ColAudio, AudioToggleStyle());
    m_pList->SetItemEditCtrl(row, ColBitrate, 0);
    const ImageButtonStyle remove = DeleteButtonStyle();
    m_pList->SetItemWidget(row, ColOperation, LangText(L"Delete").c_str(), nullptr, remove, remove);
}

void CTallixEventImp::OnInsertBlankRow()
{
    if (!m_pList)
        return;
    const int row = m_nSelectedRow + 1;
    m_pList->InsertItem(row, L"");
    m_pList->SetItemText(row, ColNumber, std::to_wstring(row + 1).c_str());
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
        m_pList->SetItemText(row, ColNumber, std::to_wstring(row + 1).c_str());
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
    const int layout = expanded == 0 ? 0 : 1;
    m_pList->MoveWindow(kEditorListLeft, kEditorListTop[layout], HostWidth() - kEditorListMargin,
                        kEditorListHeight[layout]);
}

// The page keeps its rows in the table; a group of streams is not taken in.
void CTallixEventImp::AddStreams(std::map<int, StreamInfo>, int)
{
}

bool CTallixEventImp::CanEnableList()
{
    return true;
}

void CTallixEventImp::EnableList()
{
    if (m_pList)
        m_pList->EnableWindow(1);
}
