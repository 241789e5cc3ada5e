#include "calculator/CalculatorBottom.h"

#include "calculator/engine/CapacityUnits.h"
#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"

namespace {

const unsigned long kStyleVisible = 0x10000000ul;
const unsigned long kStyleVisibleTab = 0x10010000ul;
const unsigned int kIdNone = static_cast<unsigned int>(-1);
const RECT kNoRect = { 0, 0, 0, 0 };

const int kDefaultTextSize = 16;

const wchar_t* const kCapacityItems[] = {
    L"32GB", L"64GB", L"128GB", L"1TB",  L"2TB",  L"3TB",  L"4TB",
    L"6TB",  L"8TB",  L"10TB",  L"12TB", L"14TB", L"16TB",
};
const wchar_t* const kDayKeys[CCalculatorBottom::kDayCount] = {
    L"Sun.", L"Mon.", L"Tues.", L"Wed.", L"Thur.", L"Fri.", L"Sat.",
};
const wchar_t* const kDeviceTypes[] = { L"KTR6", L"MQS50", L"MQS70", L"MQS71" };
const wchar_t* const kRaidLevelKeys[] = { L"RAID 1", L"RAID 5", L"RAID 6" };
const int kDiskSizeCount = 16;

std::wstring Lang(const wchar_t* key)
{
    return GetLangString(key, 0);
}

// Image, seven source rectangles, six "tile" words.
ImageComboBoxStyle ComboSkin(const wchar_t* image, const wchar_t* const (&slices)[7])
{
    ImageComboBoxStyle style;
    style.strImage = image;
    std::wstring* rects[7] = { &style.strNormal,     &style.strHover,    &style.strPressedDown,
                               &style.strPressedUp,  &style.strDisabled, &style.strSlice6,
                               &style.strSlice7 };
    for (int i = 0; i < 7; ++i)
        *rects[i] = slices[i];
    std::wstring* modes[6] = { &style.strNormalMode,      &style.strHoverMode,
                               &style.strPressedUpMode,   &style.strPressedDownMode,
                               &style.strDisabledMode,    &style.strSlice6Mode };
    for (std::wstring* mode : modes)
        *mode = L"tile";
    return style;
}

ImageComboBoxStyle DefaultComboSkin()
{
    static const wchar_t* const slices[7] = { L"0,0,150,40",  L"0,0,150,40", L"0,48,150,40",
                                              L"0,48,150,40", L"0,142,150,40", L"0,0,150,40",
                                              L"0,48,150,40" };
    return ComboSkin(L"ComboBox.png", slices);
}

ImageComboBoxStyle UnitComboSkin()
{
    static const wchar_t* const slices[7] = { L"0,0,83,35",  L"0,0,83,35", L"0,40,83,35",
                                              L"0,40,83,35", L"0,124,83,35", L"0,0,83,35",
                                              L"0,40,83,35" };
    return ComboSkin(L"ComboBox_GBTB.png", slices);
}

ImageComboBoxStyle RecordPlanComboSkin()
{
    static const wchar_t* const slices[7] = { L"0,0,225,40",  L"0,0,225,40", L"0,28,225,40",
                                              L"0,48,225,40", L"0,142,225,40", L"0,0,225,40",
                                              L"0,48,225,40" };
    return ComboSkin(L"ComboBox _150.png", slices);
}

ImageRadioBox ModeRadioSkin()
{
    ImageRadioBox skin;
    skin.strCheckedNormal = L"radioBox_checked.png";
    skin.strCheckedHover = L"radioBox_normal.png";
    skin.strCheckedPressed = L"radioBox_checked.png";
    skin.strUncheckedNormal = L"radioBox_normal.png";
    skin.strUncheckedHover = L"radioBox_normal.png";
    skin.strUncheckedPressed = L"radioBox_normal.png";
    skin.strCheckedDisabled = L"radioBox_normal.png";
    skin.strUncheckedDisabled = L"radioBox_normal.png";
    return skin;
}

} // namespace

CCalculatorBottom::CCalculatorBottom(void* pOwner)
    : m_nMode(MODE_DISK_REQUIREMENT), m_nChannels(0), m_dTotalBitrate(0.0), m_bCustomCapacity(0),
      m_bCustomInTB(0), m_nRaidBays(0), m_nRaid2Bays(0), m_rcPage{ 0, 0, 0, 0 },
      m_nReservedSize(0), m_pOwner(pOwner), m_pStaticTotal(nullptr),
      m_pStaticChannelCount(nullptr), m_pStaticBitrate(nullptr),
      m_pRadioDiskRequirement(nullptr), m_pRadioRecordingDay(nullptr), m_pRadioRaid(nullptr),
      m_pRadioRaid2(nullptr), m_pStaticFirstRow(nullptr), m_pStaticRecordPlan(nullptr),
      m_pStaticRaidBays(nullptr), m_pStaticRaidDisk(nullptr), m_pStaticRaidDevType(nullptr),
      m_pStaticRaidLevel(nullptr), m_pStaticRaid2Bays(nullptr), m_pStaticRaid2Disk(nullptr),
      m_pStaticRaid2DevType(nullptr), m_pStaticRaid2Level(nullptr), m_pStaticRaid2Days(nullptr),
      m_pStaticDevicesTips(nullptr), m_pComboCapacity(nullptr), m_pComboCapacityUnit(nullptr),
      m_pEditCustomCapacity(nullptr), m_pComboRecordPlan(nullptr), m_pStaticDay{},
      m_pEditDayHours{}, m_pComboRaidDevType(nullptr), m_pComboRaidLevel(nullptr),
      m_pComboRaidBays(nullptr), m_pComboRaidDisk(nullptr), m_pComboRaid2DevType(nullptr),
      m_pComboRaid2Level(nullptr), m_pComboRaid2Bays(nullptr), m_pComboRaid2Disk(nullptr),
      m_pSpinDays(nullptr), m_pSpinRaid2Days(nullptr), m_pBtnCalculate(nullptr),
      m_pStaticResultCaption(nullptr), m_pStaticResultValue(nullptr),
      m_pStaticRecordableSpace(nullptr), m_pStaticRecordableValue(nullptr), m_pBtnSpare(nullptr),
      m_pStaticSpare(nullptr)
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

void CCalculatorBottom::OnDestroy() {}
void CCalculatorBottom::OnSize(unsigned int, int, int) {}
void CCalculatorBottom::OnLButtonDown(unsigned int, tagPOINT) {}
void CCalculatorBottom::OnLButtonDblClk(unsigned int, tagPOINT) {}

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
    PlaceHiddenRecordingDayInputs();
    UpdateTotalsDisplay();
    ShowDiskRequirementPage();
    return 1;
}

void CCalculatorBottom::CreateTotalsAndRadios()
{
    void* pParent = GetUIWnd();
    const int w = (m_rcPage.right - m_rcPage.left) / 6 + 30;

    struct TotalLabel {
        CSFStatic** ppStatic;
        std::wstring strText;
        RECT rc;
        unsigned int nAlign;
    };
    const TotalLabel totals[] = {
        { &m_pStaticTotal, Lang(L"Total"), { 0, 5, 70, 30 }, 5 },
        { &m_pStaticChannelCount, L"", { 100, 5, w + 40, 30 }, 4 },
        { &m_pStaticBitrate, L"", { 3 * w + 140, 5, 4 * w + 140, 30 }, 4 },
    };
    for (const TotalLabel& total : totals) {
        CSFStatic* pStatic = SFCreateStatic(this);
        *total.ppStatic = pStatic;
        if (!pStatic)
            continue;
        pStatic->Create(total.strText.c_str(), kStyleVisible, total.rc, pParent, 0);
        pStatic->SetTextSize(18);
        pStatic->SetTextColor(0);
        pStatic->SetTextAlignFlag(total.nAlign);
    }

    struct ModeRadio {
        CSFRadioBox** ppRadio;
        const wchar_t* pszKey;
        unsigned int nID;
        int nTextOffset;
        RECT rc;
    };
    const ModeRadio radios[] = {
        { &m_pRadioDiskRequirement, L"Disk Requirement", ID_RADIO_DISK_REQUIREMENT, -150,
          { 0, 45, 150, 74 } },
        { &m_pRadioRecordingDay, L"Recording day", ID_RADIO_RECORDING_DAY, -160,
          { 151, 45, 306, 74 } },
        { &m_pRadioRaid, L"RAID Calculator", ID_RADIO_RAID, -160, { 304, 45, 462, 75 } },
        { &m_pRadioRaid2, L"RAID Calculator2", ID_RADIO_RAID2, -160, { 454, 45, 612, 75 } },
    };
    ImageRadioBox skin = ModeRadioSkin();
    for (const ModeRadio& radio : radios) {
        CSFRadioBox* pRadio = SFCreateRadioBox(this);
        *radio.ppRadio = pRadio;
        if (!pRadio)
            continue;
        const std::wstring strText = Lang(radio.pszKey);
        pRadio->Create(strText.c_str(), kStyleVisibleTab, radio.rc, pParent, radio.nID);
        pRadio->SetSkin(&skin);
        pRadio->SetTextOffset(radio.nTextOffset);
        pRadio->SetToolTipText(strText.c_str());
    }
    if (m_pRadioDiskRequirement)
        m_pRadioDiskRequirement->SetCheck(1);
}

void CCalculatorBottom::CreateCaptions()
{
    void* pParent = GetUIWnd();
    struct Caption {
        CSFStatic** ppStatic;
        const wchar_t* pszKey;
    };
    const Caption captions[] = {
        { &m_pStaticFirstRow, L"SD Card Capacity" }, { &m_pStaticRecordPlan, L"Record Plan" },
        { &m_pStaticRaidBays, L"Device Drives" },    { &m_pStaticRaidDisk, L"HDD Capcity" },
        { &m_pStaticRaidDevType, L"Dev Type" },      { &m_pStaticRaidLevel, L"RAID Volume" },
        { &m_pStaticRaid2Bays, L"Device Drives" },   { &m_pStaticRaid2Disk, L"HDD Capcity" },
        { &m_pStaticRaid2DevType, L"Dev Type" },     { &m_pStaticRaid2Level, L"RAID Volume" },
    };
    for (const Caption& caption : captions) {
        CSFStatic* pStatic = SFCreateStatic(this);
        *caption.ppStatic = pStatic;
        if (!pStatic)
            continue;
        pStatic->Create(Lang(caption.pszKey).c_str(), kStyleVisible, kNoRect, pParent, 0);
        pStatic->SetTextSize(kDefaultTextSize);
        pStatic->SetTextAlignFlag(0);
    }

    m_pStaticDevicesTips = SFCreateStatic(this);
    if (m_pStaticDevicesTips) {
        m_pStaticDevicesTips->Create(Lang(L"Devices Tips").c_str(), kStyleVisible,
                                     RECT{ 10, 227, 950, 260 }, pParent, 0);
        m_pStaticDevicesTips->SetTextSize(kDefaultTextSize);
        m_pStaticDevicesTips->SetTextColor(0xFF);
        m_pStaticDevicesTips->SetTextAlignFlag(0);
    }
}

void CCalculatorBottom::CreateInputs()
{
    void* pParent = GetUIWnd();
    ImageComboBoxStyle comboSkin = DefaultComboSkin();
    auto createCombo = [&](unsigned int nID, ImageComboBoxStyle& skin) {
        CSFComboBox* pCombo = SFCreateComboBox(this);
        if (pCombo) {
            pCombo->Create(kStyleVisible, kNoRect, pParent, nID);
            pCombo->SetSkin(&skin);
        }
        return pCombo;
    };
    auto addItems = [](CSFComboBox* pCombo, const wchar_t* const* ppItems, int nCount,
                       bool bLookUp) {
        if (!pCombo)
            return;
        for (int i = 0; i < nCount; ++i)
            pCombo->AddString(bLookUp ? Lang(ppItems[i]).c_str() : ppItems[i]);
    };

    m_pComboCapacity = createCombo(ID_COMBO_CAPACITY, comboSkin);
    addItems(m_pComboCapacity, kCapacityItems, 13, false);
    if (m_pComboCapacity)
        m_pComboCapacity->AddString(Lang(L"Customize").c_str());

    ImageComboBoxStyle planSkin = RecordPlanComboSkin();
    m_pComboRecordPlan = createCombo(ID_COMBO_RECORD_PLAN, planSkin);
    const wchar_t* const planKeys[] = { L"24 hours per day", L"Customize(hours)" };
    addItems(m_pComboRecordPlan, planKeys, 2, true);

    for (int i = 0; i < kDayCount; ++i) {
        m_pStaticDay[i] = SFCreateStatic(this);
        if (m_pStaticDay[i]) {
            m_pStaticDay[i]->Create(Lang(kDayKeys[i]).c_str(), kStyleVisible, kNoRect, pParent, 0);
            m_pStaticDay[i]->SetTextSize(14);
            m_pStaticDay[i]->SetTextAlignFlag(2);
        }
        m_pEditDayHours[i] = SFCreateEditCtrl(this);
        if (m_pEditDayHours[i]) {
            m_pEditDayHours[i]->Create(kStyleVisible, kNoRect, pParent,
                                       ID_EDIT_DAY_HOURS_FIRST + static_cast<unsigned int>(i),
                                       false);
            m_pEditDayHours[i]->SetRegExp();
            m_pEditDayHours[i]->SetWindowTextW(L"24");
        }
    }

    m_pEditCustomCapacity = SFCreateEditCtrl(this);
    if (m_pEditCustomCapacity) {
        m_pEditCustomCapacity->Create(kStyleVisible, kNoRect, pParent, ID_EDIT_CUSTOM_CAPACITY,
                                      false);
        m_pEditCustomCapacity->SetRegExp();
    }

    const wchar_t* const bayItems[] = { L"8 bay", L"16 bay" };
    std::wstring diskTexts[kDiskSizeCount];
    const wchar_t* diskItems[kDiskSizeCount];
    for (int i = 0; i < kDiskSizeCount; ++i) {
        diskTexts[i] = std::to_wstring(i + 1) + L" TB";
        diskItems[i] = diskTexts[i].c_str();
    }
    auto createRaidCombos = [&](bool bRaid2) {
        CSFComboBox*& pBays = bRaid2 ? m_pComboRaid2Bays : m_pComboRaidBays;
        CSFComboBox*& pLevel = bRaid2 ? m_pComboRaid2Level : m_pComboRaidLevel;
        CSFComboBox*& pDisk = bRaid2 ? m_pComboRaid2Disk : m_pComboRaidDisk;
        CSFComboBox*& pDevType = bRaid2 ? m_pComboRaid2DevType : m_pComboRaidDevType;
        pBays = createCombo(bRaid2 ? ID_COMBO_RAID2_BAYS : ID_COMBO_RAID_BAYS, comboSkin);
        addItems(pBays, bayItems, 2, false);
        pLevel = createCombo(bRaid2 ? ID_COMBO_RAID2_LEVEL : ID_COMBO_RAID_LEVEL, comboSkin);
        addItems(pLevel, kRaidLevelKeys, 3, true);
        pDisk = createCombo(ID_COMBO_RAID_DISK, comboSkin);
        addItems(pDisk, diskItems, kDiskSizeCount, false);
        pDevType = createCombo(bRaid2 ? ID_COMBO_RAID2_DEV_TYPE : ID_COMBO_RAID_DEV_TYPE, comboSkin);
        addItems(pDevType, kDeviceTypes, 4, false);
    };
    createRaidCombos(false);

    m_pStaticRaid2Days = SFCreateStatic(this);
    if (m_pStaticRaid2Days) {
        m_pStaticRaid2Days->Create(Lang(L"Device Drives").c_str(), kStyleVisible, kNoRect,
                                   pParent, 0);
        m_pStaticRaid2Days->SetTextSize(kDefaultTextSize);
        m_pStaticRaid2Days->SetTextAlignFlag(0);
    }

    createRaidCombos(true);

    ImageComboBoxStyle unitSkin = UnitComboSkin();
    m_pComboCapacityUnit = createCombo(ID_COMBO_CAPACITY_UNIT, unitSkin);
    const wchar_t* const unitItems[] = { L"GB", L"TB" };
    addItems(m_pComboCapacityUnit, unitItems, 2, false);
}

void CCalculatorBottom::CreateResultArea()
{
    void* pParent = GetUIWnd();

    // Left over from an earlier design: made, never shown.
    m_pBtnSpare = SFCreateButton(this);
    if (m_pBtnSpare)
        m_pBtnSpare->Create(L"", 0, kNoRect, pParent, 0);
    m_pStaticSpare = SFCreateStatic(this);
    if (m_pStaticSpare) {
        m_pStaticSpare->Create(L"", 0, kNoRect, pParent, kIdNone);
        m_pStaticSpare->SetTextSize(kDefaultTextSize);
        m_pStaticSpare->SetTextAlignFlag(0);
    }

    m_pBtnCalculate = SFCreateButton(this);
    if (m_pBtnCalculate) {
        m_pBtnCalculate->Create(L"", kStyleVisible, kNoRect, pParent, ID_BTN_CALCULATE);
        ImageButtonStyle skin;
        skin.strNormal = L"calculator_nor.png";
        skin.strHover = L"calculator_hover.png";
        skin.strPressed = L"calculator_push.png";
        skin.strDisabled = L"calculator_dis.png";
        m_pBtnCalculate->SetSkin(&skin);
    }

    m_pStaticResultCaption = SFCreateStatic(this);
    if (m_pStaticResultCaption) {
        m_pStaticResultCaption->Create(L"", kStyleVisibleTab, kNoRect, pParent, kIdNone);
        m_pStaticResultCaption->SetTextAlignFlag(4);
        m_pStaticResultCaption->SetTextSize(16);
    }
    m_pStaticResultValue = SFCreateStatic(this);
    if (m_pStaticResultValue) {
        m_pStaticResultValue->Create(L"", kStyleVisibleTab, kNoRect, pParent, kIdNone);
        m_pStaticResultValue->SetTextAlignFlag(4);
        m_pStaticResultValue->SetTextSize(22);
        m_pStaticResultValue->SetTextBold(1);
    }

    ImageNumSpinerStyle spinSkin;
    spinSkin.strFrame = L"bg_time_noal.png";
    CSFNumSpiner** spinners[] = { &m_pSpinDays, &m_pSpinRaid2Days };
    for (CSFNumSpiner** ppSpin : spinners) {
        *ppSpin = SFCreateNumSpiner(this);
        if (!*ppSpin)
            continue;
        (*ppSpin)->Create(L"", kNoRect, pParent, ID_SPIN_DAYS);
        (*ppSpin)->SetRange(1, 3650);
        (*ppSpin)->SetCircleStep(1);
        (*ppSpin)->SetSkin(&spinSkin);
        (*ppSpin)->SetCurrentNum(1);
    }

    CSFStatic** recordable[] = { &m_pStaticRecordableSpace, &m_pStaticRecordableValue };
    const std::wstring texts[] = { Lang(L"Recordable  Space"), L"" };
    for (int i = 0; i < 2; ++i) {
        CSFStatic* pStatic = SFCreateStatic(this);
        *recordable[i] = pStatic;
        if (!pStatic)
            continue;
        pStatic->Create(texts[i].c_str(), kStyleVisible, kNoRect, pParent, 0);
        pStatic->SetTextSize(16);
        pStatic->SetTextColor(0x6B6B6B);
        pStatic->SetTextAlignFlag(2);
    }
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
