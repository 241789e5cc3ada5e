#include "sf/qt/SFQTMainWindow.h"

#include "sf/qt/SFLog.h"
#include "sf/qt/SFQtConvert.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPropertyAnimation>
#include <QScreen>
#include <QVariant>

CSFQTMainWindow::CSFQTMainWindow(ISFDialogEvent* handler, QWidget* parent)
    : CSFQTSkinWindow<QMainWindow, CSFQTMainWindow>(handler, parent, true),
      m_pResizeAnimation(nullptr), m_maximised(false)
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    SFNameControl(this, "mainwindow", static_cast<unsigned int>(-1), QString());
    m_restoreRect = geometry();
    // Queued, so a caption button acts after its mouse event has returned.
    connect(this, &CSFQTMainWindow::sgnClose, this, &QWidget::close, Qt::QueuedConnection);
    connect(this, &CSFQTMainWindow::sgnMaximized, this, &QWidget::showMaximized,
            Qt::QueuedConnection);
    connect(this, &CSFQTMainWindow::sgnMinimized, this, &QWidget::showMinimized,
            Qt::QueuedConnection);
    connect(this, &CSFQTMainWindow::sgnNormal, this, &QWidget::showNormal, Qt::QueuedConnection);
}

CSFQTMainWindow::~CSFQTMainWindow()
{
    delete m_pResizeAnimation;
    m_pResizeAnimation = nullptr;
}

int CSFQTMainWindow::DoModalDlg()
{
    return -1;
}

int CSFQTMainWindow::IsDlgZoomed()
{
    return m_maximised ? 1 : 0;
}

int CSFQTMainWindow::ModifyDlgStyleEx(unsigned long, unsigned long, unsigned int)
{
    return 1;
}

void CSFQTMainWindow::MacShowMaximize(bool maximize)
{
    if (maximize && !m_maximised) {
        m_restoreRect = geometry();
        if (!m_pResizeAnimation) {
            if (QScreen* screen = CurrentScreen()) {
                const QRect avail = screen->availableGeometry();
                MoveWindow(avail.x(), avail.y(), avail.width(), avail.height());
            }
        } else {
            m_pResizeAnimation->setDuration(250);
        }
        m_maximised = true;
        return;
    }
    if (!m_pResizeAnimation)
        MoveWindow(m_restoreRect.x(), m_restoreRect.y(), m_restoreRect.width(),
                   m_restoreRect.height());
    else
        m_pResizeAnimation->setDuration(250);
    m_maximised = false;
}

void CSFQTMainWindow::AddMenuMac(const wchar_t* text, int id)
{
    QMenu* menu = menuBar()->addMenu(SFToQString(text));
    m_menus.insert(id, menu);
    connect(menu, &QMenu::triggered, this, &CSFQTMainWindow::Ontriggered);
}

void CSFQTMainWindow::AddMenuAction(const wchar_t* text, int menuId, int actionId)
{
    QMenu* menu = m_menus.value(menuId, nullptr);
    if (!menu)
        return;
    QAction* action = menu->addAction(SFToQString(text));
    action->setData(actionId);
}

void CSFQTMainWindow::OnSessionChange(unsigned int wParam)
{
    if (Handler()) {
        if (wParam == 7)
            Handler()->OnMsgScreenLock(1);
        else if (wParam == 8)
            Handler()->OnMsgScreenLock(0);
    }
    qCDebug(lcSf) << "WM_WTSSESSION_CHANGE return ";
}

void CSFQTMainWindow::OnSwitchSize()
{
}

void CSFQTMainWindow::OnAniShowMaxFinished()
{
    delete m_pResizeAnimation;
    m_pResizeAnimation = nullptr;
    showMaximized();
}

void CSFQTMainWindow::OnAniShowNorFinished()
{
    delete m_pResizeAnimation;
    m_pResizeAnimation = nullptr;
    showNormal();
}

void CSFQTMainWindow::Ontriggered(QAction* action)
{
    if (action && Handler())
        Handler()->OnMacMenu(action->data().toUInt());
}

void CSFQTMainWindow::accept()
{
    if (Handler())
        Handler()->Dlg_OnOK();
}

void CSFQTMainWindow::reject()
{
    if (Handler()) {
        Handler()->m_pUIWnd = nullptr;
        Handler()->Dlg_OnCancel();
    }
    emit sgnClose();
}

bool CSFQTMainWindow::IsMaximisedWindow() const
{
    return m_maximised;
}

QRect CSFQTMainWindow::CenterArea() const
{
    QWidget* parent = parentWidget();
    if (!parent)
        return CSFQTSkinWindow<QMainWindow, CSFQTMainWindow>::CenterArea();
    // A window is placed in screen coordinates, a child in its parent's.
    if (isWindow())
        return QRect(parent->mapToGlobal(QPoint(0, 0)), parent->size());
    return parent->rect();
}

// The session change message is a Windows one; this platform never sends it,
// so OnSessionChange stays unused here.
bool CSFQTMainWindow::nativeEvent(const QByteArray& eventType, void* message, qintptr* result)
{
    return QMainWindow::nativeEvent(eventType, message, result);
}

void CSFQTMainWindow::closeEvent(QCloseEvent* e)
{
    const bool wasVisible = isVisible();
    CSFQTSkinWindow<QMainWindow, CSFQTMainWindow>::closeEvent(e);
    if (!e->isAccepted() || wasVisible || !QGuiApplication::quitOnLastWindowClosed() ||
        !testAttribute(Qt::WA_QuitOnClose))
        return;
    // Qt 6 ends the event loop only for a window closed while visible, and
    // the close button hides the window before it closes it.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* w : windows) {
        if (w != this && w->isVisible() && w->testAttribute(Qt::WA_QuitOnClose) &&
            w->windowType() != Qt::Popup && w->windowType() != Qt::ToolTip)
            return;
    }
    QCoreApplication::quit();
}
