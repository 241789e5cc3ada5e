#pragma once
// The calculator panel below the channel table: four modes, one answer at a
// time, from the totals the channel page reports and the panel's own inputs.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/ISFStaticEvent.h"
#include "sf/ISFViewEvent.h"
#include "calculator/engine/RaidTables.h"
#include "platform/WinTypes.h"

#include <string>

class CSFButton;
class CSFComboBox;
class CSFEditCtrl;
class CSFNumSpiner;
class CSFRadioBox;
class CSFStatic;

class CCalculatorBottom : public ISFViewEvent,
                          public ISFButtonEvent,
                          public ISFComboBoxEvent,
                          public ISFEditCtrlEvent,
                          public ISFStaticEvent,
                          public ISFRadioBoxEvent,
                          public ISFCheckBoxEvent,
                          public ISFNumSpinerEvent {
public:
    // Modes, by radio.
    enum { MODE_DISK_REQUIREMENT = 0, MODE_RECORDING_DAY = 1, MODE_RAID = 2, MODE_RAID2 = 3 };

    // Control ids.
    enum : unsigned int {
        ID_RADIO_DISK_REQUIREMENT = 0x808,
        ID_RADIO_RECORDING_DAY = 0x806,
        ID_RADIO_RAID = 0xBC6,
        ID_RADIO_RAID2 = 0xBC7,
        ID_COMBO_CAPACITY = 0x80A,
        ID_EDIT_CUSTOM_CAPACITY = 0x811,
        ID_COMBO_CAPACITY_UNIT = 0x814,
        ID_COMBO_RECORD_PLAN = 0x815,
        ID_EDIT_DAY_HOURS_FIRST = 0x816,  // Sunday; Saturday is 0x81C
        ID_EDIT_DAY_HOURS_LAST = 0x81C,
        ID_COMBO_RAID_DISK = 0xE43,  // both RAID modes
        ID_COMBO_RAID_DEV_TYPE = 0xE4A,
        ID_COMBO_RAID_LEVEL = 0xE4B,
        ID_COMBO_RAID_BAYS = 0xE4C,
        ID_COMBO_RAID2_DEV_TYPE = 0xE4D,
        ID_COMBO_RAID2_LEVEL = 0xE4E,
        ID_COMBO_RAID2_BAYS = 0xE4F,
        ID_BTN_CALCULATE = 0xE49,
        ID_SPIN_DAYS = 0x7EB,  // both day spinners
    };

    static const int kDayCount = 7;

    explicit CCalculatorBottom(void* pOwner);
    ~CCalculatorBottom() override;

    CCalculatorBottom(const CCalculatorBottom&) = delete;
    CCalculatorBottom& operator=(const CCalculatorBottom&) = delete;

    SF_DECLARE_MSGMAP()

public:
    // ISFViewEvent
    int OnCreate() override;
    void OnDestroy() override;
    void OnSize(unsigned int type, int cx, int cy) override;
    void OnLButtonDown(unsigned int flags, tagPOINT pt) override;
    void OnLButtonDblClk(unsigned int flags, tagPOINT pt) override;

    // ISFComboBoxEvent
    void SelectChanged(int id, int index, void* sender) override;
    // ISFEditCtrlEvent
    void EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender) override;
    // ISFRadioBoxEvent
    void RADIO_OnClicked(int bChecked, int nID, tagPOINT pt, void* sender) override;
    // ISFNumSpinerEvent
    void OnCurrentNumChanged(unsigned int id, int value, void* sender, int reserved) override;

    // Before the hosting view is created: OnCreate lays out by its width.
    void SetPageRect(const RECT& rc);
    // Stores and shows the totals; does not recalculate.
    void SetTotals(int nChannels, double dTotalBitrate);
    // Reads the inputs of the current mode and writes caption and value.
    void Recalculate();

    void UpdateTotalsDisplay();

    void ShowDiskRequirementPage();
    void ShowRecordingDayPage();
    void ShowRaidCalculatorPage();
    void ShowRaidCalculator2Page();
    void MoveResultArea(bool bRaid2);
    CSFRadioBox* FindModeRadio(int nID) const;

    int LookupBayCount(int nDevice, int nLevel, unsigned nIndex) const;
    int LookupDataDisks(int nDevice, int nLevel, int nBayIndex) const;
    void RebuildBayCombo(int nDevice, int nLevel, bool bRaid2);
    void FixRaid2ValueRect();

    int GetMode() const { return m_nMode; }
    int GetChannels() const { return m_nChannels; }
    double GetTotalBitrate() const { return m_dTotalBitrate; }

private:
    void CreateTotalsAndRadios();
    void CreateCaptions();
    void CreateInputs();
    void CreateResultArea();

    // Every input and caption of the four modes.
    void HideAllInputs();
    void ShowDayPairs(int bShow);
    void ShowResultLabels();
    void PlaceHiddenRecordingDayInputs();

    void RecalculateDiskRequirement();
    void RecalculateRecordingDays();
    void RecalculateRaidCapacity();
    void RecalculateRequestDevice();
    void ShowResult(const std::wstring& strCaption, const std::wstring& strValue, bool bTwinkle);

    void OnCustomCapacityChanged(const wchar_t* pszText);
    void OnCapacityUnitChanged(int nIndex);
    void OnDayHoursChanged(int nDay, const wchar_t* pszText);

public:
    int m_nMode;
    int m_nChannels;
    double m_dTotalBitrate;
    unsigned char m_bCustomCapacity;
    unsigned char m_bCustomInTB;
    int m_nRaidBays;
    int m_nRaid2Bays;
    // Bay options and data disks per device type and RAID level.
    CRaidTables m_raidTables;
    RECT m_rcPage;
    long long m_nReservedSize;
    void* m_pOwner;

    CSFStatic* m_pStaticTotal;
    CSFStatic* m_pStaticChannelCount;
    CSFStatic* m_pStaticBitrate;
    CSFRadioBox* m_pRadioDiskRequirement;
    CSFRadioBox* m_pRadioRecordingDay;
    CSFRadioBox* m_pRadioRaid;
    CSFRadioBox* m_pRadioRaid2;
    CSFStatic* m_pStaticFirstRow;
    CSFStatic* m_pStaticRecordPlan;
    CSFStatic* m_pStaticRaidBays;
    CSFStatic* m_pStaticRaidDisk;
    CSFStatic* m_pStaticRaidDevType;
    CSFStatic* m_pStaticRaidLevel;
    CSFStatic* m_pStaticRaid2Bays;
    CSFStatic* m_pStaticRaid2Disk;
    CSFStatic* m_pStaticRaid2DevType;
    CSFStatic* m_pStaticRaid2Level;
    CSFStatic* m_pStaticRaid2Days;
    CSFStatic* m_pStaticDevicesTips;
    CSFComboBox* m_pComboCapacity;
    CSFComboBox* m_pComboCapacityUnit;
    CSFEditCtrl* m_pEditCustomCapacity;
    CSFComboBox* m_pComboRecordPlan;
    CSFStatic* m_pStaticDay[kDayCount];
    CSFEditCtrl* m_pEditDayHours[kDayCount];
    CSFComboBox* m_pComboRaidDevType;
    CSFComboBox* m_pComboRaidLevel;
    CSFComboBox* m_pComboRaidBays;
    CSFComboBox* m_pComboRaidDisk;
    CSFComboBox* m_pComboRaid2DevType;
    CSFComboBox* m_pComboRaid2Level;
    CSFComboBox* m_pComboRaid2Bays;
    CSFComboBox* m_pComboRaid2Disk;
    CSFNumSpiner* m_pSpinDays;
    CSFNumSpiner* m_pSpinRaid2Days;
    CSFButton* m_pBtnCalculate;
    CSFStatic* m_pStaticResultCaption;
    CSFStatic* m_pStaticResultValue;
    CSFStatic* m_pStaticRecordableSpace;
    CSFStatic* m_pStaticRecordableValue;
    CSFButton* m_pBtnSpare;
    CSFStatic* m_pStaticSpare;
};
