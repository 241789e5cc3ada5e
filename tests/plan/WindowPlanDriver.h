#pragma once
// The real main window, offscreen, worked through its controls as found by
// their object names: rows are filled through each control's own operations
// (which report to the page as a user's change does), the calculator's modes
// are switched by clicks, and the labels are read as shown.

#include "plan/SiteRow.h"

#include <QString>
#include <string>
#include <vector>

class CMainDlgEventImp;
class CSFDialog;
class QTableWidget;
class QWidget;

// What a site asks of the calculator, in the window's terms.
struct WindowInputs {
    int nDays = 1;
    int nCapacityIndex = 0; // 13 is "Customize"
    std::string strCustomCapacity;
    bool bCustomInTB = false;
    unsigned nPercent = 90;
    bool bWeeklyPlan = false;
    int anDayHours[7] = { 24, 24, 24, 24, 24, 24, 24 };
    int nRaidDevice = 0;
    int nRaidLevel = 0;
    int nRaidBaySel = 0;
    int nRaidDiskSel = 0;
    int nRaid2Device = 0;
    int nRaid2Level = 0;
    int nRaid2BaySel = 0;
    int nRaid2DiskSel = 0;
    int nRaid2Days = 1;
};

// The window's answer of one mode, caption and value, the value on one line.
struct WindowAnswer {
    QString strCaption;
    QString strValue;
};

class CWindowPlanDriver {
public:
    // language 1 also selects area 1, as at the program's start.
    explicit CWindowPlanDriver(int nLanguage);
    ~CWindowPlanDriver();
    CWindowPlanDriver(const CWindowPlanDriver&) = delete;
    CWindowPlanDriver& operator=(const CWindowPlanDriver&) = delete;

    bool Ready() const { return m_window && m_table; }

    // Clears the table and enters the rows.
    void EnterRows(const std::vector<SiteRow>& rows);

    QString TotalWord() const;
    QString ChannelCount() const;
    QString TotalBitrate() const;

    // Answers of modes 0 to 3 after entering the inputs of that mode; with
    // bDefaults the inputs stay as they stand.
    WindowAnswer DiskRequirement(const WindowInputs& in, bool bDefaults = false);
    WindowAnswer RecordingDays(const WindowInputs& in, bool bDefaults = false);
    WindowAnswer RaidCapacity(const WindowInputs& in, bool bDefaults = false);
    WindowAnswer DeviceCount(const WindowInputs& in, bool bDefaults = false);

private:
    QWidget* Named(const QString& strName, bool bVisibleOnly = false) const;
    QWidget* CellControl(int nRow, int nColumn, const char* pszClass) const;
    void ClickMode(unsigned nRadioId);
    void Choose(const QString& strName, int nIndex);
    WindowAnswer Result() const;

    CMainDlgEventImp* m_event = nullptr;
    CSFDialog* m_dlg = nullptr;
    QWidget* m_window = nullptr;
    QTableWidget* m_table = nullptr;
    QWidget* m_calculatorView = nullptr;
};
