#include "streams/ViewChannelInfoEditor.h"

#include "language/LangString.h"
#include "platform/WinTypes.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFControlTypes.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFListCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFStatic.h"
#include "sf/dialogs/SFControlNames.h"
#include "sf/dialogs/SFSkinRecords.h"
#include "streams/TallixEventImp.h"

#include <string>

namespace {

constexpr unsigned long kLabelVisible = 0x10010000ul;
constexpr unsigned long kLabelHidden = 0x00010000ul;
constexpr unsigned int kNoId = static_cast<unsigned int>(-1);

// Rows: label at the left, the controls after it with small gaps.
constexpr int kRowTop = 42;
constexpr int kRowPitch = 35;
constexpr int kRowHeight = 25;
constexpr int kLabelLeft = 10;
constexpr int kLabelWidth = 100;
constexpr int kControlsLeft = 113;
constexpr int kGap = 4;
constexpr int kWideCombo = 150;
constexpr int kAudioCombo = 100;
constexpr int kEditWidth = 75;
constexpr int kUnitWidth = 40;

// The button row sits below the last visible stream row.
constexpr int kButtonsTopWithSubs = 160;
constexpr int kButtonsTopWithoutSubs = 85;
constexpr int kButtonWidth = 72;
constexpr int kButtonHeight = 25;
constexpr int kToggleLeft = 10;
constexpr int kToggleWidth = 150;
constexpr unsigned long kToggleTextColor = 0xFF0000;
constexpr int kLabelTextSize = 15;
constexpr unsigned int kAlignMiddle = DT_VCENTER;
constexpr unsigned int kAlignRightMiddle = DT_RIGHT | DT_VCENTER;
// The channel count stands right, on the row of "Ok".
constexpr tagRECT kChannelsLabelRect{ 769, 44, 869, 69 };
constexpr tagRECT kChannelsSpinRect{ 879, 44, 979, 69 };
constexpr int kAddLeft = 822;
constexpr int kClearLeft = 904;
// "Ok" stays beside the channel count: the toggle moves only the row below.
constexpr int kOkLeft = 989;
constexpr int kOkTop = 44;

constexpr int kMaxChannels = 256;

const wchar_t* const kRowKeys[CViewChannelInfoEditor::StreamCount] = { L"Main Stream:",
                                                                       L"Sub1 Stream:",
                                                                       L"Sub2 Stream:" };
const char* const kRowLabelNames[CViewChannelInfoEditor::StreamCount] = { "label_stream_0",
                                                                          "label_stream_1",
                                                                          "label_stream_2" };
const char* const kUnitLabelNames[CViewChannelInfoEditor::StreamCount] = { "label_unit_0",
                                                                           "label_unit_1",
                                                                           "label_unit_2" };
const wchar_t* const kResolutions[] = { L"1MP", L"1.3MP", L"2MP", L"3MP", L"4MP",
                                        L"5MP", L"6MP",   L"8MP", L"12MP" };
const wchar_t* const kFrameRates[] = { L"60", L"55", L"50", L"45", L"40", L"35", L"30",
                                       L"25", L"20", L"15", L"12", L"10", L"9",  L"8",
                                       L"7",  L"6",  L"5",  L"4",  L"3",  L"2",  L"1" };

std::wstring Slice(int y, int width, int height)
{
    return L"0," + std::to_wstring(y) + L"," + std::to_wstring(width) + L"," +
           std::to_wstring(height);
}

ImageComboBoxStyle EditorComboStyle(int width)
{
    ImageComboBoxStyle style =
        SFImageComboBoxStyle(width == kWideCombo ? L"ComboBox_150.png" : L"ComboBox.png",
                             { Slice(0, width, 27), Slice(0, width, 27), Slice(84, width, 28),
                               Slice(28, width, 28), Slice(28, width, 27), Slice(0, width, 27),
                               Slice(28, width, 27) });
    for (std::wstring* mode :
         { &style.strNormalMode, &style.strHoverMode, &style.strPressedUpMode,
           &style.strPressedDownMode, &style.strDisabledMode, &style.strSlice6Mode })
        *mode = L"tile";
    return style;
}

tagRECT RowRect(int stream, int left, int width)
{
    const int top = kRowTop + stream * kRowPitch;
    return tagRECT{ left, top, left + width, top + kRowHeight };
}

CSFComboBox* MakeCombo(CViewChannelInfoEditor* view, int stream, int left, int width,
                       unsigned int id, bool visible)
{
    CSFComboBox* combo = SFCreateComboBox(view);
    if (!combo)
        return nullptr;
    combo->Create(visible ? SF_WS_VISIBLE : 0ul, RowRect(stream, left, width), view->GetUIWnd(),
                  id);
    ImageComboBoxStyle style = EditorComboStyle(width);
    combo->SetSkin(&style);
    return combo;
}

void AddEntries(CSFComboBox* combo, const wchar_t* title, const wchar_t* const* entries, int count)
{
    if (!combo)
        return;
    combo->AddString(title);
    for (int i = 0; i < count; ++i)
        combo->AddString(entries[i]);
}

tagRECT ButtonRect(int left, int top)
{
    return tagRECT{ left, top, left + kButtonWidth, top + kButtonHeight };
}

CSFButton* MakeButton(CViewChannelInfoEditor* view, const wchar_t* key, const tagRECT& rect,
                      unsigned int id, unsigned long textColor)
{
    CSFButton* button = SFCreateButton(view);
    if (!button)
        return nullptr;
    button->Create(GetLangString(key, 0), SF_WS_VISIBLE, rect, view->GetUIWnd(), id);
    ImageButtonStyle style = SFImageButtonStyle(L"btn_normal.png", L"btn_hover.png",
                                                L"btn_press.png", L"btn_diabled.png");
    button->SetSkin(&style);
    button->SetTextColor(textColor);
    return button;
}

void MoveButton(CSFButton* button, int left, int top, int width)
{
    if (button)
        button->MoveWindow(left, top, width, kButtonHeight);
}

} // namespace

SF_BEGIN_MSGMAP(CViewChannelInfoEditor)
    SF_ON_COMMAND(IdToggle, OnToggleSubStream)
    SF_ON_COMMAND(IdAdd, OnAdd)
    SF_ON_COMMAND(IdOk, OnOk)
    SF_ON_COMMAND(IdClear, OnClear)
SF_END_MSGMAP()

CViewChannelInfoEditor::CViewChannelInfoEditor(CTallixEventImp* owner, bool subStreams)
    : m_nCompression{ 0, 0, 0 }, m_pOwner(owner), m_bSubStreams(subStreams), m_nChannels(1),
      m_nRow(0), m_bEditRow(subStreams), m_pLabelStream{}, m_pComboCompression{},
      m_pComboResolution{}, m_pComboFrameRate{}, m_pComboAudio{}, m_pEditBitrate{}, m_pLabelUnit{},
      m_pLabelChannels(nullptr), m_pSpinChannels(nullptr), m_pBtnToggle(nullptr),
      m_pBtnClear(nullptr), m_pBtnAdd(nullptr), m_pBtnOk(nullptr)
{
}

// The controls are children of the view and go down with it.
CViewChannelInfoEditor::~CViewChannelInfoEditor() = default;

int CViewChannelInfoEditor::OnCreate()
{
    for (int stream = 0; stream < StreamCount; ++stream)
        CreateStreamRow(stream);
    CreateChannelsControls();
    CreateButtons();
    return 1;
}

void CViewChannelInfoEditor::CreateStreamRow(int stream)
{
    const bool visible = stream == 0 || m_bSubStreams;
    void* parent = GetUIWnd();

    CSFStatic* label = SFCreateStatic(nullptr);
    if (label) {
        label->Create(GetLangString(kRowKeys[stream], 0), visible ? kLabelVisible : kLabelHidden,
                      RowRect(stream, kLabelLeft, kLabelWidth), parent, kNoId);
        label->SetTextBold(1);
        label->SetTextSize(kLabelTextSize);
        label->SetTextAlignFlag(kAlignMiddle);
        SFSetObjectName(label, kRowLabelNames[stream]);
    }
    m_pLabelStream[stream] = label;

    // The row's label names each control of the row.
    const std::wstring rowName = LangText(kRowKeys[stream]);
    const unsigned int comboBase = static_cast<unsigned int>(stream) * IdComboPitch;
    // Left to right, each after the one before it.
    const struct {
        CSFComboBox** combos;
        unsigned int firstId;
        int width;
    } comboRow[] = { { m_pComboCompression, IdCompression, kWideCombo },
                     { m_pComboResolution, IdResolution, kWideCombo },
                     { m_pComboFrameRate, IdFrameRate, kWideCombo },
                     { m_pComboAudio, IdAudio, kAudioCombo } };
    int left = kControlsLeft;
    for (const auto& c : comboRow) {
        c.combos[stream] = MakeCombo(this, stream, left, c.width, c.firstId + comboBase, visible);
        left += c.width + kGap;
        SFSetAccessibleName(c.combos[stream], rowName.c_str());
    }

    // Lookups one at a time: the dictionary's buffers rotate.
    if (CSFComboBox* combo = m_pComboCompression[stream]) {
        combo->AddString(GetLangString(L"--Compression--", 0));
        combo->AddString(GetLangString(L"H.264", 0));
        combo->AddString(GetLangString(L"H.265", 0));
    }
    AddEntries(m_pComboResolution[stream], GetLangString(L"--Resolution--", 0), kResolutions,
               static_cast<int>(sizeof(kResolutions) / sizeof(kResolutions[0])));
    AddEntries(m_pComboFrameRate[stream], GetLangString(L"--FrameRate--", 0), kFrameRates,
               static_cast<int>(sizeof(kFrameRates) / sizeof(kFrameRates[0])));
    if (CSFComboBox* combo = m_pComboAudio[stream]) {
        combo->AddString(GetLangString(L"Audio OFF", 0));
        combo->AddString(GetLangString(L"Audio ON", 0));
    }

    CSFEditCtrl* edit = SFCreateEditCtrl(this);
    if (edit) {
        edit->Create(visible ? SF_WS_VISIBLE : 0ul, RowRect(stream, left, kEditWidth), parent,
                     IdBitrate + static_cast<unsigned int>(stream), false);
        edit->SetWindowTextW(L"0");
        SFSetAccessibleName(edit, rowName.c_str());
    }
    m_pEditBitrate[stream] = edit;
    left += kEditWidth + kGap;

    CSFStatic* unit = SFCreateStatic(nullptr);
    if (unit) {
        unit->Create(L"Kbps", visible ? kLabelVisible : kLabelHidden,
                     RowRect(stream, left, kUnitWidth), parent, kNoId);
        unit->SetTextAlignFlag(kAlignMiddle);
        SFSetObjectName(unit, kUnitLabelNames[stream]);
    }
    m_pLabelUnit[stream] = unit;
}

void CViewChannelInfoEditor::CreateChannelsControls()
{
    void* parent = GetUIWnd();
    m_pLabelChannels = SFCreateStatic(nullptr);
    if (m_pLabelChannels) {
        m_pLabelChannels->Create(GetLangString(L"Channels", 0), kLabelVisible, kChannelsLabelRect,
                                 parent, kNoId);
        m_pLabelChannels->SetTextBold(1);
        m_pLabelChannels->SetTextSize(kLabelTextSize);
        m_pLabelChannels->SetTextAlignFlag(kAlignRightMiddle);
        SFSetObjectName(m_pLabelChannels, "label_channels");
    }

    m_pSpinChannels = SFCreateNumSpiner(this);
    if (m_pSpinChannels) {
        m_pSpinChannels->Create(L"", kChannelsSpinRect, parent, IdChannels);
        SFSetAccessibleName(m_pSpinChannels, LangText(L"Channels").c_str());
        ImageNumSpinerStyle style;
        style.strFrame = L"bg_time_noal.png";
        m_pSpinChannels->SetSkin(&style);
        m_pSpinChannels->SetRange(1, kMaxChannels);
        m_pSpinChannels->SetCurrentNum(1);
        m_pSpinChannels->SetCircleStep(1);
        m_pSpinChannels->ShowWindow(1);
    }
}

void CViewChannelInfoEditor::CreateButtons()
{
    const int top = m_bSubStreams ? kButtonsTopWithSubs : kButtonsTopWithoutSubs;
    const wchar_t* toggleKey = m_bSubStreams ? L"Disable Sub Stream" : L"Enable Sub Stream";
    m_pBtnToggle =
        MakeButton(this, toggleKey,
                   tagRECT{ kToggleLeft, top, kToggleLeft + kToggleWidth, top + kButtonHeight },
                   IdToggle, kToggleTextColor);
    if (m_pBtnToggle)
        m_pBtnToggle->SetTextAlign(0);
    if (!m_bEditRow)
        m_pBtnClear = MakeButton(this, L"Clear", ButtonRect(kClearLeft, top), IdClear, 0);
    m_pBtnAdd = MakeButton(this, L"Add", ButtonRect(kAddLeft, top), IdAdd, 0);
    m_pBtnOk = MakeButton(this, L"Ok", ButtonRect(kOkLeft, kOkTop), IdOk, 0);
}

void CViewChannelInfoEditor::OnDestroy()
{
    // The controls die with the window; only forget them, so that a late
    // call finds nothing instead of freed widgets.
    for (int stream = 0; stream < StreamCount; ++stream) {
        m_pLabelStream[stream] = nullptr;
        m_pComboCompression[stream] = nullptr;
        m_pComboResolution[stream] = nullptr;
        m_pComboFrameRate[stream] = nullptr;
        m_pComboAudio[stream] = nullptr;
        m_pEditBitrate[stream] = nullptr;
        m_pLabelUnit[stream] = nullptr;
    }
    m_pLabelChannels = nullptr;
    m_pSpinChannels = nullptr;
    m_pBtnToggle = nullptr;
    m_pBtnClear = nullptr;
    m_pBtnAdd = nullptr;
    m_pBtnOk = nullptr;
}

void CViewChannelInfoEditor::OnSize(unsigned int, int, int)
{
}

void CViewChannelInfoEditor::OnLButtonDown(unsigned int, tagPOINT)
{
}

void CViewChannelInfoEditor::OnLButtonDblClk(unsigned int, tagPOINT)
{
}

bool CViewChannelInfoEditor::IsSubStreamsShown()
{
    return m_bSubStreams;
}

void CViewChannelInfoEditor::ShowStreamRow(int stream, bool show)
{
    const int flag = show ? 1 : 0;
    if (m_pLabelStream[stream])
        m_pLabelStream[stream]->ShowWindow(flag);
    CSFComboBox* combos[] = { m_pComboCompression[stream], m_pComboResolution[stream],
                              m_pComboFrameRate[stream], m_pComboAudio[stream] };
    for (CSFComboBox* combo : combos) {
        if (combo)
            combo->ShowWindow(flag);
    }
    if (m_pEditBitrate[stream])
        m_pEditBitrate[stream]->ShowWindow(flag);
    if (m_pLabelUnit[stream])
        m_pLabelUnit[stream]->ShowWindow(flag);
}

void CViewChannelInfoEditor::OnToggleSubStream()
{
    m_bSubStreams = !m_bSubStreams;
    ShowStreamRow(1, m_bSubStreams);
    ShowStreamRow(2, m_bSubStreams);
    if (m_pOwner)
        m_pOwner->ResizeList(m_bSubStreams ? 1 : 0);
    if (m_pBtnToggle) {
        const wchar_t* key = m_bSubStreams ? L"Disable Sub Stream" : L"Enable Sub Stream";
        m_pBtnToggle->SetWindowTextW(GetLangString(key, 0));
    }
    const int top = m_bSubStreams ? kButtonsTopWithSubs : kButtonsTopWithoutSubs;
    MoveButton(m_pBtnToggle, kToggleLeft, top, kToggleWidth);
    MoveButton(m_pBtnAdd, kAddLeft, top, kButtonWidth);
    MoveButton(m_pBtnClear, kClearLeft, top, kButtonWidth);
    if (m_bSubStreams) {
        for (int stream = 0; stream < StreamCount; ++stream)
            UpdateStreamRate(stream);
    }
}

void CViewChannelInfoEditor::OnAdd()
{
    m_nChannels = 1;
    m_mapStreams.clear();
    if (CollectStreams() && !m_mapStreams.empty() && m_pOwner)
        m_pOwner->AddStreams(m_mapStreams, m_nChannels);
}

void CViewChannelInfoEditor::OnOk()
{
    if (m_pOwner && m_pOwner->CanEnableList())
        m_pOwner->EnableList();
}

void CViewChannelInfoEditor::OnClear()
{
    if (m_pOwner)
        m_pOwner->ClearStreams();
}
