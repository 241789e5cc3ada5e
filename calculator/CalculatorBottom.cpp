#include "calculator/CalculatorBottom.h"

#include "calculator/engine/CapacityUnits.h"
#include "language/LangString.h"
#include "platform/WinTypes.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFControlTypes.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"
#include "sf/dialogs/SFSkinRecords.h"

#include <QString>
#include <QWidget>
#include <array>
#include <string>
#include <type_traits>

namespace {

const unsigned long kStyleHidden = 0;
const unsigned long kStyleVisible = SF_WS_VISIBLE;
// Made visible and reached by the tab key.
const unsigned long kStyleVisibleTab = SF_WS_VISIBLE | 0x00010000ul;
const RECT kNoRect = { 0, 0, 0, 0 };

// Text alignment words of the labels.
const unsigned int kAlignLeft = DT_LEFT;
const unsigned int kAlignRight = DT_RIGHT;
const unsigned int kAlignLeftCentred = DT_LEFT | DT_VCENTER;
const unsigned int kAlignCentred = DT_CENTER | DT_VCENTER;

const int kTotalsTextSize = 18;
const int kCaptionTextSize = 16;
const int kDayTextSize = 14;
const int kValueTextSize = 22;
const unsigned int kColourBlack = 0;
const unsigned int kColourRed = 0xFF;
const unsigned int kColourGrey = 0x6B6B6B;
const int kMaxRecordingDays = 3650;

const wchar_t* const kCapacityItems[] = {
    L"32GB", L"64GB", L"128GB", L"1TB",  L"2TB",  L"3TB",  L"4TB",
    L"6TB",  L"8TB",  L"10TB",  L"12TB", L"14TB", L"16TB",
};
const wchar_t* const kPlanKeys[] = { L"24 hours per day", L"Customize(hours)" };
const wchar_t* const kDayKeys[CCalculatorBottom::kDayCount] = {
    L"Sun.", L"Mon.", L"Tues.", L"Wed.", L"Thur.", L"Fri.", L"Sat.",
};
const wchar_t* const kBayItems[] = { L"8 bay", L"16 bay" };
const wchar_t* const kDeviceTypes[] = { L"KTR6", L"MQS50", L"MQS70", L"MQS71" };
const wchar_t* const kRaidLevelKeys[] = { L"RAID 1", L"RAID 5", L"RAID 6" };
const wchar_t* const kUnitItems[] = { L"GB", L"TB" };
const int kDiskSizeCount = 16;

template <std::size_t N>
void AddItems(CSFComboBox* pCombo, const wchar_t* const (&items)[N], bool bLookUp)
{
    if (!pCombo)
        return;
    for (const wchar_t* pszItem : items)
        pCombo->AddString(bLookUp ? LangText(pszItem).c_str() : pszItem);
}

// A stable object name where the id does not give one, and the words of the
// control's caption for those that show none of their own.
template <class Control>
void Name(Control* pControl, const char* pszName, const wchar_t* pszCaptionKey)
{
    QWidget* pWidget = dynamic_cast<QWidget*>(pControl);
    if (!pWidget)
        return;
    if (pszName)
        pWidget->setObjectName(QString::fromLatin1(pszName));
    if (pszCaptionKey)
        pWidget->setAccessibleName(QString::fromStdWString(LangText(pszCaptionKey)));
}

// The panel's combos are cut from one image each and tile every part.
ImageComboBoxStyle TiledComboSkin(const wchar_t* pszImage,
                                  const std::array<std::wstring, 7>& slices)
{
    ImageComboBoxStyle style = SFImageComboBoxStyle(pszImage, slices);
    std::wstring* modes[] = { &style.strNormalMode,    &style.strHoverMode,
                              &style.strPressedUpMode, &style.strPressedDownMode,
                              &style.strDisabledMode,  &style.strSlice6Mode };
    for (std::wstring* pMode : modes)
        *pMode = L"tile";
    return style;
}

// A label of the panel: made, then sized, coloured and aligned.
struct LabelStyle {
    int nTextSize;
    unsigned int nAlign;
    unsigned int nColour;
    bool bColour;
};
const LabelStyle kCaptionStyle = { kCaptionTextSize, kAlignLeft, kColourBlack, false };

CSFStatic* CreateLabel(ISFStaticEvent* pHandler, void* pParent, const wchar_t* pszText,
                       unsigned long nStyle, const RECT& rc, unsigned int nID,
                       const LabelStyle& style)
{
    CSFStatic* pStatic = SFCreateStatic(pHandler);
    if (!pStatic)
        return nullptr;
    pStatic->Create(pszText, nStyle, rc, pParent, nID);
    pStatic->SetTextSize(style.nTextSize);
    if (style.bColour)
        pStatic->SetTextColor(style.nColour);
    pStatic->SetTextAlignFlag(style.nAlign);
    return pStatic;
}

} // namespace

const unsigned int CCalculatorBottom::kModeRadioIds[kModeCount] = {
    ID_RADIO_DISK_REQUIREMENT,
    ID_RADIO_RECORDING_DAY,
    ID_RADIO_RAID,
    ID_RADIO_RAID2,
};

CCalculatorBottom::CCalculatorBottom(void* pOwner)
    : m_nMode(MODE_DISK_REQUIREMENT), m_nChannels(0), m_dTotalBitrate(0.0), m_bCustomCapacity(0),
      m_bCustomInTB(0), m_rcPage{ 0, 0, 0, 0 }, m_pOwner(pOwner), m_pStaticChannelCount(nullptr),
      m_pStaticBitrate(nullptr), m_pModeRadios{}, m_pComboCapacity(nullptr),
      m_pComboCapacityUnit(nullptr), m_pEditCustomCapacity(nullptr),
      m_pComboRecordPlan(nullptr), m_pEditDayHours{}, m_pSpinDays(nullptr),
      m_pSpinRaid2Days(nullptr), m_pStaticResultCaption(nullptr), m_pStaticResultValue(nullptr)
{
    // The bay options and data disk tables are filled by m_raidTables itself.
}

CCalculatorBottom::~CCalculatorBottom()
{
    // The controls belong to the hosting view and go down with it.
}

SF_BEGIN_MSGMAP(CCalculatorBottom)
    SF_ON_COMMAND(ID_BTN_CALCULATE, Recalculate)
SF_END_MSGMAP()

void CCalculatorBottom::OnDestroy()
{
}
void CCalculatorBottom::OnSize(unsigned int, int, int)
{
}
void CCalculatorBottom::OnLButtonDown(unsigned int, tagPOINT)
{
}
void CCalculatorBottom::OnLButtonDblClk(unsigned int, tagPOINT)
{
}

void CCalculatorBottom::SetPageRect(const RECT& rc)
{
    m_rcPage = rc;
}

int CCalculatorBottom::OnCreate()
{
    CreateTotalsAndRadios();
    CreateCaptions();
    CreateInputs();
    CreateResultArea();
    PlaceHiddenInputs();
    UpdateTotalsDisplay();
    LayOut(MODE_DISK_REQUIREMENT);
    Recalculate();
    return 1;
}

template <class Control>
Control* CCalculatorBottom::Keep(Slot slot, Control* pControl)
{
    Placed& placed = m_placed[slot];
    placed.pControl = pControl;
    placed.pfnMove = [](void* p, RECT rc) { static_cast<Control*>(p)->MoveWindow(&rc); };
    placed.pfnShow = [](void* p, int bShow) { static_cast<Control*>(p)->ShowWindow(bShow); };
    if constexpr (std::is_base_of<CSFStatic, Control>::value) {
        placed.pfnRetitle = [](void* p, const wchar_t* pszText) {
            static_cast<Control*>(p)->SetStaticText(pszText);
        };
    }
    return pControl;
}

void CCalculatorBottom::CreateTotalsAndRadios()
{
    void* pParent = GetUIWnd();
    const int w = (m_rcPage.right - m_rcPage.left) / 6 + 30;

    struct TotalLabel {
        CSFStatic** ppStatic;
        const wchar_t* pszKey;
        RECT rc;
        unsigned int nAlign;
        const char* pszName;
    };
    const TotalLabel totals[] = {
        { nullptr, L"Total", { 0, 5, 70, 30 }, kAlignCentred, kNameTotal },
        { &m_pStaticChannelCount,
          nullptr,
          { 100, 5, w + 40, 30 },
          kAlignLeftCentred,
          kNameChannelCount },
        { &m_pStaticBitrate,
          nullptr,
          { 3 * w + 140, 5, 4 * w + 140, 30 },
          kAlignLeftCentred,
          kNameBitrate },
    };
    for (const TotalLabel& total : totals) {
        const std::wstring strText = total.pszKey ? LangText(total.pszKey) : std::wstring();
        CSFStatic* pStatic =
            CreateLabel(this, pParent, strText.c_str(), kStyleVisible, total.rc, 0,
                        LabelStyle{ kTotalsTextSize, total.nAlign, kColourBlack, true });
        if (total.ppStatic)
            *total.ppStatic = pStatic;
        Name(pStatic, total.pszName, nullptr);
    }

    struct ModeRadio {
        const wchar_t* pszKey;
        int nTextOffset;
        RECT rc;
    };
    const ModeRadio radios[kModeCount] = {
        { L"Disk Requirement", -150, { 0, 45, 150, 74 } },
        { L"Recording day", -160, { 151, 45, 306, 74 } },
        { L"RAID Calculator", -160, { 304, 45, 462, 75 } },
        { L"RAID Calculator2", -160, { 454, 45, 612, 75 } },
    };
    ImageRadioBox skin =
        SFImageRadioBox(L"radioBox_checked.png", L"radioBox_normal.png", L"radioBox_checked.png",
                        L"radioBox_normal.png", L"radioBox_normal.png", L"radioBox_normal.png",
                        L"radioBox_normal.png", L"radioBox_normal.png");
    for (int nMode = 0; nMode < kModeCount; ++nMode) {
        CSFRadioBox* pRadio = SFCreateRadioBox(this);
        m_pModeRadios[nMode] = pRadio;
        if (!pRadio)
            continue;
        const ModeRadio& radio = radios[nMode];
        const std::wstring strText = LangText(radio.pszKey);
        pRadio->Create(strText.c_str(), kStyleVisibleTab, radio.rc, pParent, kModeRadioIds[nMode]);
        pRadio->SetSkin(&skin);
        pRadio->SetTextOffset(radio.nTextOffset);
        pRadio->SetToolTipText(strText.c_str());
    }
    if (m_pModeRadios[MODE_DISK_REQUIREMENT])
        m_pModeRadios[MODE_DISK_REQUIREMENT]->SetCheck(1);
}

void CCalculatorBottom::CreateCaptions()
{
    void* pParent = GetUIWnd();
    struct Caption {
        Slot slot;
        const wchar_t* pszKey;
        const char* pszName;
    };
    const Caption captions[] = {
        { SLOT_FIRST_ROW_CAPTION, L"SD Card Capacity", "calc_first_row" },
        { SLOT_RECORD_PLAN_CAPTION, L"Record Plan", "calc_record_plan_caption" },
        { SLOT_RAID_BAYS_CAPTION, L"Device Drives", "calc_raid_bays_caption" },
        { SLOT_RAID_DISK_CAPTION, L"HDD Capcity", "calc_raid_disk_caption" },
        { SLOT_RAID_DEV_TYPE_CAPTION, L"Dev Type", "calc_raid_dev_type_caption" },
        { SLOT_RAID_LEVEL_CAPTION, L"RAID Volume", "calc_raid_level_caption" },
        { SLOT_RAID2_BAYS_CAPTION, L"Device Drives", "calc_raid2_bays_caption" },
        { SLOT_RAID2_DISK_CAPTION, L"HDD Capcity", "calc_raid2_disk_caption" },
        { SLOT_RAID2_DEV_TYPE_CAPTION, L"Dev Type", "calc_raid2_dev_type_caption" },
        { SLOT_RAID2_LEVEL_CAPTION, L"RAID Volume", "calc_raid2_level_caption" },
    };
    for (const Caption& caption : captions) {
        CSFStatic* pStatic = CreateLabel(this, pParent, LangText(caption.pszKey).c_str(),
                                         kStyleVisible, kNoRect, 0, kCaptionStyle);
        Name(Keep(caption.slot, pStatic), caption.pszName, nullptr);
    }

    CSFStatic* pTips = CreateLabel(this, pParent, LangText(L"Devices Tips").c_str(), kStyleVisible,
                                   RECT{ 10, 227, 950, 260 }, 0,
                                   LabelStyle{ kCaptionTextSize, kAlignLeft, kColourRed, true });
    Name(Keep(SLOT_DEVICES_TIPS, pTips), kNameDevicesTips, nullptr);
}

void CCalculatorBottom::CreateInputs()
{
    void* pParent = GetUIWnd();
    ImageComboBoxStyle comboSkin =
        TiledComboSkin(L"ComboBox.png",
                       { L"0,0,150,40", L"0,0,150,40", L"0,48,150,40", L"0,48,150,40",
                         L"0,142,150,40", L"0,0,150,40", L"0,48,150,40" });
    auto createCombo = [&](Slot slot, unsigned int nID, ImageComboBoxStyle& skin,
                           const wchar_t* pszCaptionKey) {
        CSFComboBox* pCombo = SFCreateComboBox(this);
        if (pCombo) {
            pCombo->Create(kStyleVisible, kNoRect, pParent, nID);
            pCombo->SetSkin(&skin);
        }
        Name(pCombo, nullptr, pszCaptionKey);
        return Keep(slot, pCombo);
    };

    m_pComboCapacity =
        createCombo(SLOT_COMBO_CAPACITY, ID_COMBO_CAPACITY, comboSkin, L"Storage Capacity");
    AddItems(m_pComboCapacity, kCapacityItems, false);
    if (m_pComboCapacity)
        m_pComboCapacity->AddString(LangText(L"Customize").c_str());

    ImageComboBoxStyle planSkin =
        TiledComboSkin(L"ComboBox _150.png",
                       { L"0,0,225,40", L"0,0,225,40", L"0,28,225,40", L"0,48,225,40",
                         L"0,142,225,40", L"0,0,225,40", L"0,48,225,40" });
    m_pComboRecordPlan =
        createCombo(SLOT_COMBO_RECORD_PLAN, ID_COMBO_RECORD_PLAN, planSkin, L"Record Plan");
    AddItems(m_pComboRecordPlan, kPlanKeys, true);

    for (int i = 0; i < kDayCount; ++i) {
        CSFStatic* pDay =
            CreateLabel(this, pParent, LangText(kDayKeys[i]).c_str(), kStyleVisible, kNoRect, 0,
                        LabelStyle{ kDayTextSize, kAlignRight, 0, false });
        Keep(static_cast<Slot>(SLOT_DAY_LABEL_FIRST + i), pDay);
        Name(pDay, (kNameDayPrefix + std::to_string(i)).c_str(), nullptr);
        CSFEditCtrl* pEdit = SFCreateEditCtrl(this);
        m_pEditDayHours[i] = Keep(static_cast<Slot>(SLOT_DAY_HOURS_FIRST + i), pEdit);
        if (!pEdit)
            continue;
        pEdit->Create(kStyleVisible, kNoRect, pParent,
                      ID_EDIT_DAY_HOURS_FIRST + static_cast<unsigned int>(i), false);
        pEdit->SetRegExp();
        pEdit->SetWindowTextW(kDayHoursFull);
        Name(pEdit, nullptr, kDayKeys[i]);
    }

    m_pEditCustomCapacity = Keep(SLOT_EDIT_CUSTOM_CAPACITY, SFCreateEditCtrl(this));
    if (m_pEditCustomCapacity) {
        m_pEditCustomCapacity->Create(kStyleVisible, kNoRect, pParent, ID_EDIT_CUSTOM_CAPACITY,
                                      false);
        m_pEditCustomCapacity->SetRegExp();
        Name(m_pEditCustomCapacity, nullptr, L"Customize");
    }

    auto createRaidCombos = [&](RaidInputs& raid, bool bRaid2) {
        std::wstring diskTexts[kDiskSizeCount];
        const wchar_t* diskItems[kDiskSizeCount];
        for (int i = 0; i < kDiskSizeCount; ++i) {
            diskTexts[i] = std::to_wstring(i + 1) + L" TB";
            diskItems[i] = diskTexts[i].c_str();
        }
        raid.pBays = createCombo(bRaid2 ? SLOT_RAID2_BAYS : SLOT_RAID_BAYS,
                                 bRaid2 ? ID_COMBO_RAID2_BAYS : ID_COMBO_RAID_BAYS, comboSkin,
                                 L"Device Drives");
        AddItems(raid.pBays, kBayItems, false);
        raid.pLevel = createCombo(bRaid2 ? SLOT_RAID2_LEVEL : SLOT_RAID_LEVEL,
                                  bRaid2 ? ID_COMBO_RAID2_LEVEL : ID_COMBO_RAID_LEVEL, comboSkin,
                                  L"RAID Volume");
        AddItems(raid.pLevel, kRaidLevelKeys, true);
        raid.pDisk = createCombo(bRaid2 ? SLOT_RAID2_DISK : SLOT_RAID_DISK, ID_COMBO_RAID_DISK,
                                 comboSkin, L"HDD Capcity");
        AddItems(raid.pDisk, diskItems, false);
        raid.pDevType = createCombo(bRaid2 ? SLOT_RAID2_DEV_TYPE : SLOT_RAID_DEV_TYPE,
                                    bRaid2 ? ID_COMBO_RAID2_DEV_TYPE : ID_COMBO_RAID_DEV_TYPE,
                                    comboSkin, L"Dev Type");
        AddItems(raid.pDevType, kDeviceTypes, false);
    };
    createRaidCombos(m_raid, false);

    // Retitled "Recording Day" when its mode shows.
    CSFStatic* pRaid2Days = CreateLabel(this, pParent, LangText(L"Device Drives").c_str(),
                                        kStyleVisible, kNoRect, 0, kCaptionStyle);
    Name(Keep(SLOT_RAID2_DAYS_CAPTION, pRaid2Days), "calc_raid2_days_caption", nullptr);

    createRaidCombos(m_raid2, true);
    Name(m_raid2.pDisk, kNameRaid2Disk, nullptr);

    ImageComboBoxStyle unitSkin =
        TiledComboSkin(L"ComboBox_GBTB.png",
                       { L"0,0,83,35", L"0,0,83,35", L"0,40,83,35", L"0,40,83,35", L"0,124,83,35",
                         L"0,0,83,35", L"0,40,83,35" });
    m_pComboCapacityUnit = createCombo(SLOT_COMBO_CAPACITY_UNIT, ID_COMBO_CAPACITY_UNIT, unitSkin,
                                       L"Storage Capacity");
    AddItems(m_pComboCapacityUnit, kUnitItems, false);
}

void CCalculatorBottom::CreateResultArea()
{
    void* pParent = GetUIWnd();

    // Left over from an earlier design: made, never shown.
    CSFButton* pSpareButton = SFCreateButton(this);
    if (pSpareButton)
        pSpareButton->Create(L"", kStyleHidden, kNoRect, pParent, 0);
    Name(pSpareButton, "calc_spare_button", nullptr);
    CSFStatic* pSpareLabel =
        CreateLabel(this, pParent, L"", kStyleHidden, kNoRect, ID_NONE, kCaptionStyle);
    Name(pSpareLabel, "calc_spare_label", nullptr);

    CSFButton* pCalculate = Keep(SLOT_CALCULATE, SFCreateButton(this));
    if (pCalculate) {
        pCalculate->Create(L"", kStyleVisible, kNoRect, pParent, ID_BTN_CALCULATE);
        ImageButtonStyle skin;
        skin.strNormal = L"calculator_nor.png";
        skin.strHover = L"calculator_hover.png";
        skin.strPressed = L"calculator_push.png";
        skin.strDisabled = L"calculator_dis.png";
        pCalculate->SetSkin(&skin);
        Name(pCalculate, nullptr, L"Calculate");
    }

    m_pStaticResultCaption = Keep(SLOT_RESULT_CAPTION, SFCreateStatic(this));
    if (m_pStaticResultCaption) {
        m_pStaticResultCaption->Create(L"", kStyleVisibleTab, kNoRect, pParent, ID_NONE);
        m_pStaticResultCaption->SetTextAlignFlag(kAlignLeftCentred);
        m_pStaticResultCaption->SetTextSize(kCaptionTextSize);
        Name(m_pStaticResultCaption, kNameResultCaption, nullptr);
    }
    m_pStaticResultValue = Keep(SLOT_RESULT_VALUE, SFCreateStatic(this));
    if (m_pStaticResultValue) {
        m_pStaticResultValue->Create(L"", kStyleVisibleTab, kNoRect, pParent, ID_NONE);
        m_pStaticResultValue->SetTextAlignFlag(kAlignLeftCentred);
        m_pStaticResultValue->SetTextSize(kValueTextSize);
        m_pStaticResultValue->SetTextBold(1);
        Name(m_pStaticResultValue, kNameResultValue, nullptr);
    }

    ImageNumSpinerStyle spinSkin;
    spinSkin.strFrame = L"bg_time_noal.png";
    auto createSpinner = [&](Slot slot) {
        CSFNumSpiner* pSpin = Keep(slot, SFCreateNumSpiner(this));
        if (pSpin) {
            pSpin->Create(L"", kNoRect, pParent, ID_SPIN_DAYS);
            pSpin->SetRange(1, kMaxRecordingDays);
            pSpin->SetCircleStep(1);
            pSpin->SetSkin(&spinSkin);
            pSpin->SetCurrentNum(1);
        }
        Name(pSpin, nullptr, L"Recording Day");
        return pSpin;
    };
    m_pSpinDays = createSpinner(SLOT_SPIN_DAYS);
    m_pSpinRaid2Days = createSpinner(SLOT_RAID2_DAYS);
    Name(m_pSpinRaid2Days, kNameRaid2Days, nullptr);

    // Made for a recordable space line that no mode shows.
    const LabelStyle recordable = { kCaptionTextSize, kAlignRight, kColourGrey, true };
    Name(CreateLabel(this, pParent, LangText(L"Recordable  Space").c_str(), kStyleHidden, kNoRect,
                     0, recordable),
         "calc_recordable_space", nullptr);
    Name(CreateLabel(this, pParent, L"", kStyleHidden, kNoRect, 0, recordable),
         "calc_recordable_value", nullptr);
}

void CCalculatorBottom::SetTotals(int nChannels, double dTotalBitrate)
{
    m_nChannels = nChannels;
    m_dTotalBitrate = dTotalBitrate;
    UpdateTotalsDisplay();
}

void CCalculatorBottom::UpdateTotalsDisplay()
{
    if (m_pStaticChannelCount)
        m_pStaticChannelCount->SetStaticText(FormatChannelCount(m_nChannels).c_str());
    if (m_pStaticBitrate)
        m_pStaticBitrate->SetStaticText(FormatTotalBitrate(m_dTotalBitrate).c_str());
}
