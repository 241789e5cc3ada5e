#pragma once
// The hands of the session: real input through the window system, the way a
// user gives it. Clicks land on whatever widget is under the point, keys go
// to the focused widget of the window, popups are worked by keys. A step
// that cannot be done is counted as a failure and the session goes on.

#include <QPoint>
#include <QString>
#include <functional>

class CSFStatic;
class QComboBox;
class QDialog;
class QWidget;

class CSessionUser {
public:
    // A word of the dictionary in use, and the text a label shows.
    static QString Word(const wchar_t* key);
    static QString LabelText(CSFStatic* label);

    // Waits are for conditions; this is how long any one may take. Under
    // valgrind everything is some fifty times slower.
    static constexpr int kPatienceMs = 120000;

    void Fail(const QString& what);
    int Failures() const { return m_failures; }
    // Records a failure when ok is false; returns ok.
    bool Check(bool ok, const QString& what);
    bool CheckText(const QString& actual, const QString& expected, const QString& what);

    // A press and release of the left button at a point of w, its centre by
    // default, delivered to w's window.
    void Click(QWidget* w, QPoint at = QPoint(-1, -1));
    // Opens the combo with a click and picks the entry in its popup with the
    // arrow keys and Return.
    void Choose(QComboBox* combo, int index, const QString& what);
    // Clicks into the field, selects all with Ctrl+A and types text; Return
    // after it when enter is set. An empty text deletes what was there.
    void Type(QWidget* field, const QString& text, const QString& what, bool enter = false);
    // A key pressed times over on the window's focused widget.
    void Press(QWidget* w, int key, int times = 1);

    bool WaitUntil(const std::function<bool()>& done, int ms = kPatienceMs);
    // Lets the program run for ms while nothing is done.
    void Idle(int ms);

    // Clicks the button and runs inside on the modal dialog that the click
    // opens, from within that dialog's own loop; inside must close it.
    // Returns once the click has returned, that is once the dialog is gone.
    void ClickIntoModal(QWidget* button, const std::function<void(QDialog*)>& inside,
                        const QString& what);

private:
    QWidget* FocusAfterClick(QWidget* field);

    int m_failures = 0;
};
