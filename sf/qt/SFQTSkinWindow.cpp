#include "sf/qt/SFQTSkinWindow.h"

#include "sf/qt/SFApplication.h"
#include "sf/qt/SFCustomEvent.h"
#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFKeyMap.h"
#include "sf/qt/SFLog.h"
#include "sf/qt/SFQTDialog.h"
#include "sf/qt/SFQTMainWindow.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScreen>
#include <QShowEvent>
#include <QTimerEvent>
#include <QUrl>
#include <algorithm>
#include <string>

template <class QtBase, class Window>
CSFQTSkinWindow<QtBase, Window>::CSFQTSkinWindow(ISFDialogEvent* handler, QWidget* parent,
                                                 bool mainWindow)
    : QtBase(parent), CSFDialog(handler), m_bMainWindow(mainWindow), m_pTitle(nullptr),
      m_bDrag(false), m_nCurButton(0), m_nButtonState(0), m_nNcLBtnDown(0)
{
    if (m_pHandler)
        m_pHandler->m_pUIWnd = SFHandleFromWidget(this);
    this->setAcceptDrops(true);
    this->setMouseTracking(true);
    this->setFocusPolicy(Qt::StrongFocus);
}

template <class QtBase, class Window>
CSFQTSkinWindow<QtBase, Window>::~CSFQTSkinWindow()
{
    m_skin.Release();
    delete m_pTitle;
    m_pTitle = nullptr;
    if (m_pHandler) {
        if (m_pHandler->m_pUIWnd == SFHandleFromWidget(this))
            m_pHandler->m_pUIWnd = nullptr;
        m_pHandler->Dlg_Destroy();
    }
    // Whatever arrives while Qt takes the children down finds no handler.
    m_pHandler = nullptr;
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::CreateDlg(void*)
{
    return 1;
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::Create(const wchar_t* title, void* parent)
{
    if (QWidget* p = SFWidgetFromHandle(parent))
        this->setParent(p, this->windowFlags());
    SetWindowTextW(title);
    if (m_pHandler)
        m_pHandler->Dlg_OnInitDialog(true);
    return 1;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::ShowWindow(int show)
{
    this->setWindowModality(Qt::NonModal);
    this->setVisible(show != 0);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MoveWindow(tagRECT* rect)
{
    if (!rect)
        return;
    const QRect r = SFRectInclusive(*rect);
    this->setGeometry(r);
    m_preferredSize = r.size();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MoveWindow(int x, int y, int w, int h)
{
    this->setGeometry(SFRectFromXYWH(x, y, w, h));
    m_preferredSize = QSize(w, h);
}

template <class QtBase, class Window>
QScreen* CSFQTSkinWindow<QtBase, Window>::CurrentScreen() const
{
    QScreen* screen = this->screen();
    return screen ? screen : QGuiApplication::primaryScreen();
}

template <class QtBase, class Window>
QRect CSFQTSkinWindow<QtBase, Window>::CenterArea() const
{
    QScreen* screen = CurrentScreen();
    return screen ? screen->availableGeometry() : QRect();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::CenterWindow(void**)
{
    QScreen* screen = CurrentScreen();
    if (!screen)
        return;
    const QRect avail = screen->availableGeometry();
    const QRect area = CenterArea();
    const QSize wanted = m_preferredSize.isValid() ? m_preferredSize : this->size();
    const int w = std::max(std::min(wanted.width(), avail.width()), m_minimumSize.width());
    const int h = std::max(std::min(wanted.height(), avail.height()), m_minimumSize.height());
    const int x = w <= area.width() ? area.x() + (area.width() - w) / 2 : area.x();
    const int y = h <= area.height() ? area.y() + (area.height() - h) / 2 : area.y();
    this->setGeometry(x, y, w, h);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetSkin(DialogStyle* style)
{
    if (!style)
        return;
    const bool sized = !style->strWindowSize.empty();
    if (sized) {
        m_preferredSize = SFParseSize(style->strWindowSize);
        SetDlgWindowPos(nullptr, 0, 0, m_preferredSize.width(), m_preferredSize.height(), 2);
        CenterWindow(nullptr);
    }
    m_skin.Load(*style, !m_bMainWindow);
    m_minimumSize = sized ? m_preferredSize : m_skin.FrameSize();
    // A window already on screen gets no resize to compose it.
    if (this->isVisible())
        m_composed = m_skin.Compose(this->width(), this->height(), m_bMainWindow);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::Screen2Client(tagPOINT* pt)
{
    if (!pt)
        return;
    const QPoint p = this->mapFromGlobal(QPoint(pt->x, pt->y));
    pt->x = p.x();
    pt->y = p.y();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::Screen2Client(tagRECT* rect)
{
    if (!rect)
        return;
    const QPoint tl = this->mapFromGlobal(QPoint(rect->left, rect->top));
    const QPoint br = this->mapFromGlobal(QPoint(rect->right, rect->bottom));
    *rect = tagRECT{ tl.x(), tl.y(), br.x(), br.y() };
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::GetDlgClientRect(tagRECT* rect)
{
    if (rect)
        *rect = tagRECT{ 0, 0, this->width(), this->height() };
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::GetDlgWindowRect(tagRECT* rect)
{
    if (rect)
        *rect = SFToTagRectExclusive(this->frameGeometry());
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetDrawBackGround(int)
{
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::DlgIsWindow()
{
    return this->isWindow() ? 1 : 0;
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::SetDlgWindowPos(void*, int x, int y, int cx, int cy,
                                                     unsigned int flags)
{
    const QRect g = this->geometry();
    if (flags & 2u) {
        x = g.x();
        y = g.y();
    }
    if (flags & 1u) {
        cx = g.width();
        cy = g.height();
    }
    this->setGeometry(x, y, cx, cy);
    this->update();
    return 1;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetWindowTextW(const wchar_t* text)
{
    const QString title = SFToQString(text);
    if (!m_pTitle) {
        m_pTitle = new QLabel(this);
        m_pTitle->setObjectName(QStringLiteral("title"));
        // Presses on the caption text still drag the window.
        m_pTitle->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_pTitle->setAutoFillBackground(false);
    }
    m_pTitle->setText(title);
    PlaceTitle();
    m_pTitle->show();
    this->setWindowTitle(title);
    if (!title.isEmpty())
        this->setAccessibleName(title);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::PlaceTitle()
{
    if (!m_pTitle)
        return;
    const QFontMetrics fm(m_pTitle->font());
    const int tw = fm.horizontalAdvance(m_pTitle->text()) + 1;
    const int th = fm.height();
    QPalette palette = m_pTitle->palette();
    if (m_bMainWindow) {
        palette.setColor(QPalette::WindowText, Qt::black);
        m_pTitle->setPalette(palette);
        m_pTitle->setGeometry(QRect(QPoint(15, 8), QPoint(15 + tw, 8 + th + 1)));
        return;
    }
    palette.setColor(QPalette::WindowText, m_skin.TitleColor());
    m_pTitle->setPalette(palette);
    const int W = this->width();
    int x = 15;
    if (m_skin.TitleAlign() == 1)
        x = (W - tw) / 2;
    else if (m_skin.TitleAlign() == 2)
        x = W - tw;
    m_pTitle->setGeometry(QRect(QPoint(x, 5), QPoint(x + tw, th + 6)));
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetDlgIcon(unsigned int)
{
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetDlgIcon(const wchar_t* file)
{
    const QString path = m_bMainWindow ? SFSkinFilePath(file ? file : L"") : SFToQString(file);
    const QIcon icon(path);
    this->setWindowIcon(icon);
    QApplication::setWindowIcon(icon);
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::IsDlgVisible()
{
    return this->isVisible() ? 1 : 0;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::EnableNcLBtnDown(int enable)
{
    m_nNcLBtnDown = enable;
}

template <class QtBase, class Window>
unsigned int CSFQTSkinWindow<QtBase, Window>::SetDlgTimer(unsigned int id, unsigned int ms)
{
    const int key = static_cast<int>(id);
    const auto it = m_timers.constFind(key);
    if (it != m_timers.constEnd())
        return static_cast<unsigned int>(it.value());
    const int qtId = this->startTimer(static_cast<int>(std::min(ms, 0x7FFFFFFFu)));
    if (qtId != 0)
        m_timers.insert(key, qtId);
    return static_cast<unsigned int>(qtId);
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::KillDlgTimer(unsigned int id)
{
    const auto it = m_timers.find(static_cast<int>(id));
    if (it == m_timers.end())
        return 0;
    this->killTimer(it.value());
    m_timers.erase(it);
    return 1;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetSizeRoundCorner(const wchar_t* size)
{
    m_skin.SetRadii(SFParseSize(size));
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MacShowFullScreen(bool full)
{
    if (full)
        this->showFullScreen();
    else
        this->showNormal();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MFCOK()
{
    Self()->accept();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MFCCancel()
{
    Self()->reject();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SendDlgMessage(unsigned int msg, unsigned int, long)
{
    if (msg == 16)
        Self()->reject();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::MacShowMinimize(bool minimize)
{
    if (minimize)
        this->showMinimized();
    else
        this->showNormal();
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::HasFocus()
{
    return this->hasFocus() ? 1 : 0;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::SetFocus()
{
    this->setFocus();
}

template <class QtBase, class Window>
int CSFQTSkinWindow<QtBase, Window>::IsActiveWindow()
{
    return this->isActiveWindow() ? 1 : 0;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::ActiveWindow()
{
    this->activateWindow();
}

template <class QtBase, class Window>
bool CSFQTSkinWindow<QtBase, Window>::IsMaximisedWindow() const
{
    return (this->windowState() & Qt::WindowMaximized) != 0;
}

template <class QtBase, class Window>
bool CSFQTSkinWindow<QtBase, Window>::DispatchCustomEvent(QEvent* e)
{
    if (!SFIsCustomEvent(e))
        return false;
    if (m_pHandler)
        SFDispatchMessageMap(m_pHandler, *static_cast<CSFCustomEvent*>(e));
    return true;
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::customEvent(QEvent* e)
{
    if (!DispatchCustomEvent(e))
        QtBase::customEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::resizeEvent(QResizeEvent* e)
{
    if (m_skin.HasFrame()) {
        const int W = this->width();
        const int H = this->height();
        m_skin.AdjustForResize(e->oldSize().width(), W);
        m_composed = m_skin.Compose(W, H, m_bMainWindow);
        if (m_pTitle)
            PlaceTitle();
        const QSize radii = m_skin.Radii();
        this->setMask(CSFFrameSkin::RoundMask(this->size(), radii.width(), radii.height()));
        if (m_pHandler) {
            int cx = W;
            int cy = H;
            m_pHandler->OnDlgSize(0, cx, cy);
        }
    }
    QtBase::resizeEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::paintEvent(QPaintEvent* e)
{
    if (m_composed.isNull()) {
        QtBase::paintEvent(e);
        return;
    }
    m_skin.PaintButtons(m_composed, m_nCurButton, m_nButtonState);
    QPainter painter(this);
    painter.drawPixmap(this->rect(), m_composed);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::RepaintButton(int n)
{
    const QRect hit = m_skin.ButtonHitRect(n);
    if (CSFFrameSkin::IsValidRect(hit))
        this->update(hit);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::UpdateHover(const QPoint& pos)
{
    const int n = m_skin.ButtonAt(pos);
    if (n != m_nCurButton) {
        const int old = m_nCurButton;
        m_nCurButton = n;
        m_nButtonState = n ? CSFFrameSkin::Hover : CSFFrameSkin::Normal;
        RepaintButton(old);
        RepaintButton(n);
    } else if (n && m_nButtonState != CSFFrameSkin::Hover) {
        m_nButtonState = CSFFrameSkin::Hover;
        RepaintButton(n);
    }
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::mousePressEvent(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton) {
        QtBase::mousePressEvent(e);
        return;
    }
    const QPoint pos = e->position().toPoint();
    if (CSFFrameSkin::RectHolds(m_skin.TitleRect(), pos) && !IsMaximisedWindow()) {
        m_bDrag = true;
        m_dragOffset = e->globalPosition().toPoint() - this->pos();
    }
    const int n = m_skin.ButtonAt(pos);
    if (n) {
        m_nCurButton = n;
        m_nButtonState = CSFFrameSkin::Pressed;
        m_bDrag = false;
        RepaintButton(n);
    } else {
        m_nCurButton = 0;
    }
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::mouseMoveEvent(QMouseEvent* e)
{
    if ((e->buttons() & Qt::LeftButton) && m_bDrag && !IsMaximisedWindow()) {
        QPoint target = e->globalPosition().toPoint() - m_dragOffset;
        // Above the work area the window could no longer be grabbed.
        if (QScreen* screen = CurrentScreen())
            target.setY(std::max(target.y(), screen->availableGeometry().top()));
        this->move(target);
    }
    UpdateHover(e->position().toPoint());
    if (m_pHandler)
        m_pHandler->OnDlgMouseHover();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::ApplyReleaseLimits()
{
    QScreen* screen = CurrentScreen();
    if (!screen)
        return;
    const QRect A = screen->availableGeometry();
    const QRect S = screen->geometry();
    const int margin = A.top();
    int x = this->x();
    int y = this->y();
    bool limited = false;
    if (y < A.top()) {
        y = A.top();
        limited = true;
    }
    if (A.bottom() < S.bottom() && y + A.top() > A.bottom()) {
        y = A.bottom() - A.top();
        limited = true;
    }
    if (A.left() > S.left() && x + this->width() + margin < A.left()) {
        x = A.left() - margin - this->width();
        limited = true;
    }
    if (A.right() < S.right() && x + A.top() > A.right()) {
        x = A.right() - A.top();
        limited = true;
    }
    if (limited)
        this->move(x, y);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::mouseReleaseEvent(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton) {
        QtBase::mouseReleaseEvent(e);
        return;
    }
    if (m_bDrag) {
        ApplyReleaseLimits();
        m_bDrag = false;
    }
    const int n = m_skin.ButtonAt(e->position().toPoint());
    if (!n)
        return;
    m_nCurButton = n;
    m_nButtonState = CSFFrameSkin::Hover;
    RepaintButton(n);
    const bool normal = this->windowState() == Qt::WindowNoState;
    switch (n) {
    case 1:
        emit Self()->sgnClose();
        break;
    case 2:
        if (normal)
            emit Self()->sgnMaximized();
        else if (IsMaximisedWindow())
            emit Self()->sgnNormal();
        break;
    case 3:
        if (normal) {
            emit Self()->sgnMinimized();
            this->setWindowState(Qt::WindowMinimized);
        } else if (IsMaximisedWindow()) {
            emit Self()->sgnNormal();
        }
        break;
    default:
        break;
    }
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::enterEvent(QEnterEvent* e)
{
    if (m_pHandler)
        m_pHandler->OnDlgMouseHover();
    QtBase::enterEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::leaveEvent(QEvent* e)
{
    if (!m_bMainWindow) {
        for (int n = 1; n <= CSFFrameSkin::ButtonCount; ++n) {
            if (m_nCurButton == n) {
                m_nCurButton = 0;
                m_nButtonState = CSFFrameSkin::Normal;
            }
            RepaintButton(n);
        }
    }
    if (m_pHandler)
        m_pHandler->OnDlgMouseLeave();
    QtBase::leaveEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::keyPressEvent(QKeyEvent* e)
{
    // The base class is left out so that Esc does not close a dialog by itself.
    if (!m_pHandler)
        return;
    const unsigned int key =
        m_bMainWindow ? SFMapMainWindowKey(e->key()) : SFMapDialogKey(e->key());
    m_pHandler->OnDlgKeyDown(SFMapKeyModifiers(e->modifiers()), key);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::keyReleaseEvent(QKeyEvent* e)
{
    if (!m_bMainWindow) {
        QtBase::keyReleaseEvent(e);
        return;
    }
    if (m_pHandler)
        m_pHandler->OnDlgKeyUp(SFMapKeyModifiers(e->modifiers()), SFMapMainWindowKey(e->key()));
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::closeEvent(QCloseEvent* e)
{
    if (m_bMainWindow)
        qCDebug(lcSf) << "CSFQTMainWindow::closeEvent!";
    if (m_pHandler && m_pHandler->Dlg_Close() == 1)
        e->ignore();
    else
        e->accept();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::showEvent(QShowEvent* e)
{
    QtBase::showEvent(e);
    if (m_pHandler)
        m_pHandler->OnDlgShowWindow(1, 0);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::focusInEvent(QFocusEvent* e)
{
    if (m_pHandler)
        m_pHandler->OnDlgNcActivate(e->type() == QEvent::FocusIn);
    QtBase::focusInEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::focusOutEvent(QFocusEvent* e)
{
    if (m_pHandler)
        m_pHandler->OnDlgNcActivate(e->type() == QEvent::FocusIn);
    QtBase::focusOutEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::timerEvent(QTimerEvent* e)
{
    unsigned int id = 0;
    for (auto it = m_timers.constBegin(); it != m_timers.constEnd(); ++it) {
        if (it.value() == e->timerId()) {
            id = static_cast<unsigned int>(it.key());
            break;
        }
    }
    if (m_pHandler)
        m_pHandler->OnDlgTimer(id);
    QtBase::timerEvent(e);
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::dragEnterEvent(QDragEnterEvent* e)
{
    if (e->mimeData() && e->mimeData()->hasUrls())
        e->acceptProposedAction();
}

template <class QtBase, class Window>
void CSFQTSkinWindow<QtBase, Window>::dropEvent(QDropEvent* e)
{
    if (!e->mimeData())
        return;
    const QList<QUrl> urls = e->mimeData()->urls();
    if (urls.isEmpty())
        return;
    const QString path = urls.first().toLocalFile();
    if (path.isEmpty() || !m_pHandler)
        return;
    const std::wstring wide = path.toStdWString();
    m_pHandler->OnDlgFileDrop(wide.c_str());
}

template class CSFQTSkinWindow<QDialog, CSFQTDialog>;
template class CSFQTSkinWindow<QMainWindow, CSFQTMainWindow>;
