#pragma once
// What the shell's in-process tests share: the program's data or none of it,
// a main window brought up as main does it, modal dialogs inspected from
// inside their loop, and a dialog that only records what its handler asks.

#include "SFDialog.h"

#include <QImage>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class CMainDlgEventImp;
class QAbstractButton;
class QDialog;
class QWidget;

// Points skin path, style sheet and dictionary at the built application
// directory (language 0 English, 1 Chinese), or at an empty directory.
class CShellData {
public:
    explicit CShellData(int language = 0);
    ~CShellData();
    // No skin, no style sheet, no dictionary: the stock look with keys as texts.
    static std::unique_ptr<CShellData> Nothing();

private:
    struct Empty {};
    explicit CShellData(Empty);
    QTemporaryDir m_empty;
};

// The main window as main brings it up; torn down as main does it.
class CMainWindowUnderTest {
public:
    CMainWindowUnderTest();
    ~CMainWindowUnderTest();
    CSFDialog* Dlg() const { return m_pDlg; }
    CMainDlgEventImp* Event() const { return m_pEvent; }
    QWidget* Window() const;
    // A control of the window by its object name, such as "button_2003".
    QWidget* Find(const char* name) const;
    QAbstractButton* Button(unsigned int id) const;
    // Steps 1 and 2 of the tear-down.
    void TearDown();
    // For a test that tore down by itself.
    void Forget()
    {
        m_pEvent = nullptr;
        m_pDlg = nullptr;
    }

private:
    DialogStyle m_style;
    CMainDlgEventImp* m_pEvent;
    CSFDialog* m_pDlg;
};

// Runs inspect on the modal dialog once it is up, from inside its event loop.
// inspect should close it; if it is still open 10 seconds later it is
// rejected and the test fails.
void WhenModalDialogShows(std::function<void(QDialog*)> inspect);

// Sends a key to whatever would receive it: the focus widget, else the dialog.
void PressKey(QWidget* dialog, int key);

// Counts the pixels of image within rect that are near colour.
int CountNear(const QImage& image, const QRect& rect, QRgb colour, int tolerance = 40);

// Saves a picture to TALLIX_SHOT_DIR when it is set.
void SaveShot(QWidget* widget, const char* name);

// Stands in for a window: records what the handler asks of it.
class CRecordingDialog : public CSFDialog {
public:
    explicit CRecordingDialog(ISFDialogEvent* handler) : CSFDialog(handler) {}
    void MoveWindow(tagRECT* rect) override;
    void MoveWindow(int x, int y, int w, int h) override;
    void CenterWindow(void**) override { calls.push_back("center"); }
    void MFCOK() override { calls.push_back("ok"); }
    void MFCCancel() override { calls.push_back("cancel"); }

    std::vector<tagRECT> moves;
    std::vector<std::string> calls;
};
