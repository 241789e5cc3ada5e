#pragma once
// The channel table part of the session: rows added and filled one by one
// with varied choices, rows deleted here and there, "Clear All". After each
// of these the totals under the table must match what the rows show.

#include <QString>
#include <QStringList>

class CCalculatorBottom;
class CSessionUser;
class CSFQTListCtrl;
class CTallixEventImp;
class QComboBox;
class QWidget;

class CSessionRows {
public:
    CSessionRows(CSessionUser& user, CTallixEventImp* page);

    void AddRows(int count);
    void DeleteRows(int count);
    void ClearAll();

    // Rows as the table shows them.
    int Rows() const;
    // The total bit rate the rows show: channels times column 7, summed.
    double VisibleTotal() const;
    // The first row whose scene combo stands on scene, -1 if none.
    int RowWithScene(int scene) const;
    // The row's "Preview" button.
    QWidget* PreviewButton(int row) const;
    // Compares the labels under the table with the rows.
    void CheckTotals(const QString& when);

private:
    // What one row gets; varied by its number.
    struct Plan {
        int compression; // 0 leaves the row incomplete
        int scene;
        int resolution;
        int frameRate;
        QString customRate;
        QString customRateShown;
        int channelSteps;  // arrow presses on the spinner
        int channelsTyped; // 0: none typed
        bool audio;
        // Bit rates typed in turn, and what the edit keeps of each.
        QStringList typedRates;
        QStringList typedRatesKept;
    };
    static Plan PlanFor(int row);
    void Fill(int row, const Plan& plan);
    void CheckRow(int row, const Plan& plan);
    void CheckNumbering(const QString& when);

    // A control of the page by its object name.
    QWidget* PageChild(const char* name) const;
    CSFQTListCtrl* List() const;
    QWidget* Widget(int reg, int row) const;
    QWidget* Cell(int reg, int row, int column) const;
    QComboBox* Combo(int reg, int row, int column) const;
    int Channels(int row) const;
    QString Text(int row, int column) const;

    CSessionUser& m_user;
    CTallixEventImp* m_page;
};
