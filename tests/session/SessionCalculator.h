#pragma once
// The calculator part of the session: each of the four modes chosen by its
// radio, its inputs typed and picked, and its answer read off the panel.

#include <QString>

class CCalculatorBottom;
class CSessionUser;
class CSFComboBox;
class CSFRadioBox;

class CSessionCalculator {
public:
    CSessionCalculator(CSessionUser& user, CCalculatorBottom* panel);

    // total: the bit rate that the rows show, in kbps.
    void DiskRequirement(double total);
    void RecordingDays(double total);
    void RaidCapacity();
    void RequestDevice(double total);
    // The zero answers once the table is empty.
    void CheckEmptyTable();

private:
    void SwitchTo(CSFRadioBox* radio, int mode, const char* name);
    void Choose(CSFComboBox* combo, int index, const QString& what);
    void CheckAnswer(const QString& caption, const QString& value, const QString& what);
    QString Value() const;

    CSessionUser& m_user;
    CCalculatorBottom* m_panel;
};
