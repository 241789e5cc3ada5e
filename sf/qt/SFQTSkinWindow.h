#pragma once
// What the skinned dialog and the skinned main window share: frame painting,
// caption buttons, dragging, centring, keys, timers and drops. Instantiated
// for QDialog and QMainWindow only; Window is the realisation itself, whose
// accept, reject and signals the shared code calls.

#include "sf/SFDialog.h"
#include "sf/qt/SFFrameSkin.h"

#include <QMap>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>

class QCloseEvent;
class QDragEnterEvent;
class QDropEvent;
class QEnterEvent;
class QEvent;
class QFocusEvent;
class QKeyEvent;
class QLabel;
class QMouseEvent;
class QPaintEvent;
class QResizeEvent;
class QScreen;
class QShowEvent;
class QTimerEvent;
class QWidget;

template <class QtBase, class Window>
class CSFQTSkinWindow : public QtBase, public CSFDialog {
public:
    CSFQTSkinWindow(ISFDialogEvent* handler, QWidget* parent, bool mainWindow);
    ~CSFQTSkinWindow() override;

    int CreateDlg(void* parent) override;
    int Create(const wchar_t* title, void* parent) override;
    void ShowWindow(int show) override;
    void MoveWindow(tagRECT* rect) override;
    void MoveWindow(int x, int y, int w, int h) override;
    void MFCOK() override;
    void MFCCancel() override;
    void CenterWindow(void** reserved) override;
    void SetSkin(DialogStyle* style) override;
    void Screen2Client(tagPOINT* pt) override;
    void Screen2Client(tagRECT* rect) override;
    void GetDlgClientRect(tagRECT* rect) override;
    void GetDlgWindowRect(tagRECT* rect) override;
    // Only 16, the close message, does anything.
    void SendDlgMessage(unsigned int msg, unsigned int wParam, long lParam) override;
    void SetDrawBackGround(int draw) override;
    int DlgIsWindow() override;
    int SetDlgWindowPos(void* insertAfter, int x, int y, int cx, int cy,
                        unsigned int flags) override;
    void SetWindowTextW(const wchar_t* text) override;
    void SetDlgIcon(unsigned int resourceId) override;
    void SetDlgIcon(const wchar_t* file) override;
    int IsDlgVisible() override;
    void EnableNcLBtnDown(int enable) override;
    unsigned int SetDlgTimer(unsigned int id, unsigned int ms) override;
    int KillDlgTimer(unsigned int id) override;
    void SetSizeRoundCorner(const wchar_t* size) override;
    void MacShowFullScreen(bool full) override;
    void MacShowMinimize(bool minimize) override;
    int HasFocus() override;
    void SetFocus() override;
    int IsActiveWindow() override;
    void ActiveWindow() override;

    // Inspection, for tests and diagnostics.
    const QPixmap& ComposedFrame() const { return m_composed; }
    const CSFFrameSkin& FrameSkin() const { return m_skin; }
    int CurrentCaptionButton() const { return m_nCurButton; }
    int CurrentCaptionState() const { return m_nButtonState; }
    QLabel* TitleLabel() const { return m_pTitle; }
    QSize PreferredSize() const { return m_preferredSize; }
    QSize MinimumSkinSize() const { return m_minimumSize; }

protected:
    ISFDialogEvent* Handler() const { return m_pHandler; }
    // Maximised as far as dragging and the caption buttons are concerned.
    virtual bool IsMaximisedWindow() const;
    // The area CenterWindow centres on.
    virtual QRect CenterArea() const;

    QScreen* CurrentScreen() const;
    // Runs the handler's map for a framework event; false for other events.
    bool DispatchCustomEvent(QEvent* e);

    void resizeEvent(QResizeEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void timerEvent(QTimerEvent* e) override;
    void dragEnterEvent(QDragEnterEvent* e) override;
    void dropEvent(QDropEvent* e) override;
    void customEvent(QEvent* e) override;

private:
    Window* Self() { return static_cast<Window*>(this); }
    void PlaceTitle();
    void UpdateHover(const QPoint& pos);
    void RepaintButton(int n);
    void ApplyReleaseLimits();

    const bool m_bMainWindow;
    CSFFrameSkin m_skin;
    QPixmap m_composed;
    QSize m_preferredSize;
    QSize m_minimumSize;
    QLabel* m_pTitle;
    bool m_bDrag;
    QPoint m_dragOffset;
    int m_nCurButton;
    int m_nButtonState;
    // Application timer id to Qt timer id.
    QMap<int, int> m_timers;
    int m_nNcLBtnDown;
};
