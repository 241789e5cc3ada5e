#pragma once
// The real main window with its channel page, offscreen, and a driver that
// works its rows the way a user does: clicks, popup choices, typing, keys.

#include "sf/qt/SFQTListCtrl.h"
#include "streams/ChannelColumns.h"

#include <QPoint>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>

class CCalculatorBottom;
class CMainDlgEventImp;
class CSFDialog;
class CTallixEventImp;
class QAbstractButton;
class QComboBox;
class QDialog;
class QTimer;
class QWidget;

// Skin, style sheet, default settings and the dictionary of the language;
// language 1 also selects area 1.
void UseProgramEnvironment(int language = 0);

// The same as a member that stands before the window in a fixture.
struct CProgramEnvironment {
    explicit CProgramEnvironment(int language = 0) { UseProgramEnvironment(language); }
};

// A click through the window system at a point of w (its centre by default):
// the widget under the point receives it, as under a real mouse.
void UserClick(QWidget* w, QPoint at = QPoint(-1, -1));
// Opens the combo with a click and picks the entry in its popup by keys.
void UserChoose(QComboBox* combo, int index);
// Clicks into the edit, selects all and types.
void UserType(QWidget* w, const QString& text);

// Runs inspect on the first modal dialog that shows while it lives; inspect
// must close it.
class CModalWatch {
public:
    explicit CModalWatch(std::function<void(QDialog*)> inspect);
    ~CModalWatch();
    CModalWatch(const CModalWatch&) = delete;
    CModalWatch& operator=(const CModalWatch&) = delete;
    int Seen() const { return m_seen; }

private:
    QPointer<QTimer> m_poll;
    int m_seen = 0;
};

// Combo entries by index, as the row offers them.
namespace Entry {
enum Compression { H264 = 1, H265 = 2, Smart264 = 3, Smart265 = 4 };
enum Resolution { CIF = 1, VGA = 2, D1 = 3, MP1 = 4, MP2 = 6, MP4 = 8, MP8 = 11, MP12 = 12 };
enum FrameRate { Fps15 = 4, Fps25 = 6, Fps30 = 7, Fps60 = 9, Custom = 10 };
} // namespace Entry

class CPageDriver {
public:
    explicit CPageDriver(CTallixEventImp* page);

    CTallixEventImp* Page() const { return m_page; }
    CSFQTListCtrl* List() const;
    CCalculatorBottom* Calculator() const;

    // Buttons above the table, clicked on their words.
    void ClickAdd();
    void ClickClearAll();
    void AddRows(int count);

    void Choose(int row, ChannelColumn col, int index);
    void TypeCustomRate(int row, const QString& text);
    void TypeBitrate(int row, const QString& text);
    // Arrow keys on the focused spinner: up for positive steps.
    void StepChannels(int row, int steps);
    void ToggleAudio(int row);
    void ClickDelete(int row);
    void ClickPreview(int row);
    // A row as one call: compression, scene (0 none), resolution, frame rate.
    void FillRow(int row, int compression, int scene, int resolution, int frameRate);

    // What the user sees.
    QString Text(int row, int col) const;
    int Index(int row, ChannelColumn col) const;
    bool ComboEnabled(int row, ChannelColumn col) const;
    bool PreviewShown(int row) const;
    bool CustomRateShown(int row) const;
    QString CustomRateText(int row) const;
    int Rows() const;
    QString ChannelsLabel() const;
    QString BitrateLabel() const;
    QString ResultCaption() const;
    QString ResultValue() const;
    // The calculator's mode radios, by id, clicked.
    void ClickMode(unsigned int radioId);

    QWidget* Cell(CSFQTListCtrl::Register reg, int row) const;
    QWidget* Combo(int row, ChannelColumn col) const;

private:
    // A control of the page by its object name.
    QWidget* Child(const char* name) const;
    // Scrolls the column of the row into view and gives its control.
    QWidget* Reveal(CSFQTListCtrl::Register reg, int row, ChannelColumn col) const;
    CTallixEventImp* m_page;
};

// The program's main window, brought up as main does.
class CMainWindowUnderTest {
public:
    CMainWindowUnderTest();
    ~CMainWindowUnderTest();
    CMainWindowUnderTest(const CMainWindowUnderTest&) = delete;
    CMainWindowUnderTest& operator=(const CMainWindowUnderTest&) = delete;

    QWidget* Window() const;
    CSFDialog* Dlg() const { return m_dlg; }
    CMainDlgEventImp* Event() const { return m_event; }
    CTallixEventImp* Page() const;
    CPageDriver& Driver() { return *m_driver; }
    // A control of the window by its object name, such as "button_2003".
    QWidget* Find(const char* name) const;
    QAbstractButton* Button(unsigned int id) const;
    // For a test that tore the window down by itself.
    void Forget()
    {
        m_event = nullptr;
        m_dlg = nullptr;
    }

private:
    CMainDlgEventImp* m_event = nullptr;
    CSFDialog* m_dlg = nullptr;
    std::unique_ptr<CPageDriver> m_driver;
};
