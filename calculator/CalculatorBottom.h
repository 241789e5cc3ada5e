#pragma once
// The calculator panel below the channel table: four modes, one answer at a
// time, from the totals the channel page reports and the panel's own inputs.

#include "calculator/engine/RaidTables.h"
#include "platform/WinTypes.h"
#include "sf/ISFButtonEvent.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/ISFStaticEvent.h"
#include "sf/ISFViewEvent.h"
#include "sf/SFFwd.h"

#include <string>

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
    static const int kModeCount = 4;

    // Control ids. A control with a unique id is found by "<kind>_<id>"
    // (radio, combo, edit, spinner, button); the others by the names below.
    enum : unsigned int {
        ID_RADIO_DISK_REQUIREMENT = 0x808,
        ID_RADIO_RECORDING_DAY = 0x806,
        ID_RADIO_RAID = 0xBC6,
        ID_RADIO_RAID2 = 0xBC7,
        ID_COMBO_CAPACITY = 0x80A,
        ID_EDIT_CUSTOM_CAPACITY = 0x811,
        ID_COMBO_CAPACITY_UNIT = 0x814,
        ID_COMBO_RECORD_PLAN = 0x815,
        ID_EDIT_DAY_HOURS_FIRST = 0x816, // Sunday; Saturday is the last
        ID_EDIT_DAY_HOURS_LAST = 0x81C,
        ID_COMBO_RAID_DISK = 0xE43, // both RAID modes
        ID_COMBO_RAID_DEV_TYPE = 0xE4A,
        ID_COMBO_RAID_LEVEL = 0xE4B,
        ID_COMBO_RAID_BAYS = 0xE4C,
        ID_COMBO_RAID2_DEV_TYPE = 0xE4D,
        ID_COMBO_RAID2_LEVEL = 0xE4E,
        ID_COMBO_RAID2_BAYS = 0xE4F,
        ID_BTN_CALCULATE = 0xE49,
        ID_SPIN_DAYS = 0x7EB, // both day spinners
        ID_NONE = 0xFFFFFFFFu,
    };

    static const int kDayCount = 7;
    // The radio of each mode.
    static const unsigned int kModeRadioIds[kModeCount];

    // Object names of the controls that share their id with others.
    static constexpr const char* kNameTotal = "calc_total";
    static constexpr const char* kNameChannelCount = "calc_channel_count";
    static constexpr const char* kNameBitrate = "calc_bitrate";
    static constexpr const char* kNameResultCaption = "calc_result_caption";
    static constexpr const char* kNameResultValue = "calc_result_value";
    static constexpr const char* kNameDevicesTips = "calc_devices_tips";
    static constexpr const char* kNameRaid2Disk = "calc_raid2_disk";
    static constexpr const char* kNameRaid2Days = "calc_raid2_days";
    // Followed by the day's number, 0 for Sunday.
    static constexpr const char* kNameDayPrefix = "calc_day_";

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

    int GetMode() const { return m_nMode; }
    int GetChannels() const { return m_nChannels; }
    double GetTotalBitrate() const { return m_dTotalBitrate; }

private:
    // Every control that the layout moves, shows or hides.
    enum Slot : int {
        SLOT_FIRST_ROW_CAPTION,
        SLOT_SPIN_DAYS,
        SLOT_CALCULATE,
        SLOT_RESULT_CAPTION,
        SLOT_RESULT_VALUE,
        SLOT_DEVICES_TIPS,
        SLOT_COMBO_CAPACITY,
        SLOT_EDIT_CUSTOM_CAPACITY,
        SLOT_COMBO_CAPACITY_UNIT,
        SLOT_RECORD_PLAN_CAPTION,
        SLOT_COMBO_RECORD_PLAN,
        SLOT_DAY_LABEL_FIRST,
        SLOT_DAY_HOURS_FIRST = SLOT_DAY_LABEL_FIRST + kDayCount,
        SLOT_RAID_DEV_TYPE_CAPTION = SLOT_DAY_HOURS_FIRST + kDayCount,
        SLOT_RAID_DEV_TYPE,
        SLOT_RAID_DISK_CAPTION,
        SLOT_RAID_DISK,
        SLOT_RAID_LEVEL_CAPTION,
        SLOT_RAID_LEVEL,
        SLOT_RAID_BAYS_CAPTION,
        SLOT_RAID_BAYS,
        SLOT_RAID2_DAYS_CAPTION,
        SLOT_RAID2_DAYS,
        SLOT_RAID2_DEV_TYPE_CAPTION,
        SLOT_RAID2_DEV_TYPE,
        SLOT_RAID2_DISK_CAPTION,
        SLOT_RAID2_DISK,
        SLOT_RAID2_LEVEL_CAPTION,
        SLOT_RAID2_LEVEL,
        SLOT_RAID2_BAYS_CAPTION,
        SLOT_RAID2_BAYS,
        SLOT_COUNT
    };
    // What a day's edit starts with, and falls back to on a bad entry.
    static constexpr const wchar_t* kDayHoursFull = L"24";

    // When a control of the layout shows.
    enum Shown : unsigned char {
        SHOWN,           // placed and shown in its modes, hidden in the others
        SHOWN_IF_CUSTOM, // ... while the capacity list stands on its last entry
        SHOWN_IF_WEEKLY, // ... while the record plan goes by the hour
        SHOWN_IN_PLACE,  // shown in its modes where it was made, hidden in the others
        ALWAYS_SHOWN,    // only moved
    };
    struct Placement {
        int slot;
        unsigned modes;
        Shown shown;
        RECT rc;
        // A caption retitled after the move, so that a longer translation widens it.
        const wchar_t* pszCaptionKey;
    };
    static const Placement kLayout[];

    // Any control, as the layout handles it.
    struct Placed {
        void* pControl = nullptr;
        void (*pfnMove)(void*, RECT) = nullptr;
        void (*pfnShow)(void*, int) = nullptr;
        void (*pfnRetitle)(void*, const wchar_t*) = nullptr;
    };

    // The four choices of a RAID mode; each mode remembers its own bay count.
    struct RaidInputs {
        CSFComboBox* pDevType = nullptr;
        CSFComboBox* pLevel = nullptr;
        CSFComboBox* pBays = nullptr;
        CSFComboBox* pDisk = nullptr;
        int nBays = 0;
    };

    void CreateTotalsAndRadios();
    void CreateCaptions();
    void CreateInputs();
    void CreateRaidCombos(RaidInputs& raid, bool bRaid2);
    void CreateResultArea();
    template <class Control>
    Control* Keep(Slot slot, Control* pControl);

    // The one reader of the layout table.
    void LayOut(int nMode);
    // The inputs of the recording days that their choices show and hide.
    void PlaceHiddenInputs();
    void ShowWhere(Shown shown, bool bShow);
    RECT LaidOutRect(Slot slot, int nMode) const;
    void FixRaid2ValueRect();
    CSFRadioBox* FindModeRadio(int nID) const;

    void UpdateTotalsDisplay();
    void RebuildBayCombo(RaidInputs& raid, int nDevice, int nLevel);
    RaidInputs* FindRaidInputs(unsigned int nID);
    static int Selection(const CSFComboBox* pCombo);

    void RecalculateDiskRequirement();
    void RecalculateRecordingDays();
    void RecalculateRaidCapacity();
    void RecalculateRequestDevice();
    void ShowResult(const wchar_t* pszCaptionKey, const std::wstring& strValue, bool bTwinkle);

    void OnCustomCapacityChanged(const wchar_t* pszText);
    void OnCapacityUnitChanged(int nIndex);
    void OnDayHoursChanged(int nDay, const wchar_t* pszText);

    int m_nMode;
    int m_nChannels;
    double m_dTotalBitrate;
    unsigned char m_bCustomCapacity;
    unsigned char m_bCustomInTB;
    // Bay options and data disks per device type and RAID level.
    CRaidTables m_raidTables;
    RECT m_rcPage;
    void* m_pOwner;

    Placed m_placed[SLOT_COUNT];
    CSFStatic* m_pStaticChannelCount;
    CSFStatic* m_pStaticBitrate;
    CSFRadioBox* m_pModeRadios[kModeCount];
    CSFComboBox* m_pComboCapacity;
    CSFComboBox* m_pComboCapacityUnit;
    CSFEditCtrl* m_pEditCustomCapacity;
    CSFComboBox* m_pComboRecordPlan;
    CSFEditCtrl* m_pEditDayHours[kDayCount];
    RaidInputs m_raid;
    RaidInputs m_raid2;
    CSFNumSpiner* m_pSpinDays;
    CSFNumSpiner* m_pSpinRaid2Days;
    CSFStatic* m_pStaticResultCaption;
    CSFStatic* m_pStaticResultValue;
};
