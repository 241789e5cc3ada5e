#pragma once
// The calculator part of the session: each of the four modes chosen by its
// radio, its inputs typed and picked, and its answer read off the panel.

#include <QString>

class CCalculatorBottom;
class CSessionUser;
class CSFStatic;
class QComboBox;
class QWidget;

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

    // A label of the panel by its object name, such as kNameResultValue.
    static CSFStatic* Label(const CCalculatorBottom* panel, const char* name);

private:
    // A control by its object name; by kind and id where the id names it.
    QWidget* Find(const QString& name) const;
    QWidget* Find(const char* kind, unsigned int id) const;
    QComboBox* Combo(unsigned int id) const;
    QWidget* DayHours(int day) const;

    void SwitchTo(int mode, const char* name);
    void Choose(QComboBox* combo, int index, const QString& what);
    void CheckAnswer(const QString& caption, const QString& value, const QString& what);
    QString Value() const;

    CSessionUser& m_user;
    CCalculatorBottom* m_panel;
};
