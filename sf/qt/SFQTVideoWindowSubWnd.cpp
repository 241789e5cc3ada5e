#include "sf/qt/SFQTVideoWindowSubWnd.h"

#include "sf/ImageButtonStyle.h"
#include "sf/ImageRadioBox.h"
#include "sf/SFButton.h"
#include "sf/SFControlTypes.h"
#include "sf/SFFactory.h"
#include "sf/SFRadioBox.h"
#include "sf/qt/SFQTVideoWindow.h"
#include "sf/qt/SFQTVideoWindowPlayWnd.h"
#include "sf/qt/SFQtConvert.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace {

ImageButtonStyle ButtonStyle(const std::wstring& normal, const std::wstring& hover,
                             const std::wstring& down)
{
    return ImageButtonStyle{ normal, hover, down, normal, {}, {}, {}, {} };
}

} // namespace

CSFQTVideoWindowSubWnd::CSFQTVideoWindowSubWnd(CSFQTVideoWindow* owner, int index, int id)
    : QWidget(owner), m_pOwner(owner), m_nIndex(index), m_nSubWinID(id), m_nVideo(-1),
      m_nRecordState(0), m_pOSDHandle(nullptr), m_bDragEnabled(true),
      m_pPlayWnd(new CSFQTVideoWindowPlayWnd(this)), m_pBtnClose(nullptr), m_pBtnSnap(nullptr),
      m_pBtnProperty(nullptr), m_pDragToggle(nullptr)
{
    setObjectName(QStringLiteral("videowindow_sub_%1").arg(id));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

CSFQTVideoWindowSubWnd::~CSFQTVideoWindowSubWnd()
{
    SFDestroyControl(m_pBtnClose);
    SFDestroyControl(m_pBtnSnap);
    SFDestroyControl(m_pBtnProperty);
    SFDestroyControl(m_pDragToggle);
}

void CSFQTVideoWindowSubWnd::SetRecordState(int state)
{
    m_nRecordState = state;
    update();
}

CSFButton* CSFQTVideoWindowSubWnd::Button(int id) const
{
    switch (id) {
    case ID_CLOSE:
        return m_pBtnClose;
    case ID_SNAP:
        return m_pBtnSnap;
    case ID_PROPERTY:
        return m_pBtnProperty;
    default:
        return nullptr;
    }
}

void CSFQTVideoWindowSubWnd::Refresh()
{
    const CSFQTVideoWindow::Skin& skin = m_pOwner->SkinData();
    m_pPlayWnd->SetIdlePicture(skin.idle, skin.back);
    if (m_pOwner->SubWinCtrlsVisible())
        EnsureControls();
    LayoutChildren();
    update();
}

// The controls are made on first need: the preview never shows them.
void CSFQTVideoWindowSubWnd::EnsureControls()
{
    if (m_pBtnClose || m_pBtnSnap || m_pBtnProperty || m_pDragToggle)
        return;
    const tagRECT none{ 0, 0, 0, 0 };
    void* self = SFHandleFromWidget(this);
    m_pBtnClose = SFCreateButton(this);
    m_pBtnSnap = SFCreateButton(this);
    m_pBtnProperty = SFCreateButton(this);
    m_pDragToggle = SFCreateRadioBox(m_pOwner);
    if (m_pBtnClose)
        m_pBtnClose->Create(L"", SF_WS_VISIBLE, none, self, ID_CLOSE);
    if (m_pBtnSnap)
        m_pBtnSnap->Create(L"", SF_WS_VISIBLE, none, self, ID_SNAP);
    if (m_pBtnProperty)
        m_pBtnProperty->Create(L"", SF_WS_VISIBLE, none, self, ID_PROPERTY);
    if (m_pDragToggle) {
        m_pDragToggle->Create(L"", SF_WS_VISIBLE, none, self, ID_DRAG);
        m_pDragToggle->SetCheck(m_bDragEnabled ? 1 : 0);
    }
    ReskinControls();
}

void CSFQTVideoWindowSubWnd::ReskinControls()
{
    const ImageVideoWindowStyle& s = m_pOwner->SkinData().style;
    if (m_pBtnClose) {
        ImageButtonStyle style = ButtonStyle(s.strCloseNormal, s.strCloseHover, s.strCloseDown);
        m_pBtnClose->SetSkin(&style);
    }
    if (m_pBtnSnap) {
        ImageButtonStyle style = ButtonStyle(s.strSnapNormal, s.strSnapHover, s.strSnapDown);
        m_pBtnSnap->SetSkin(&style);
    }
    if (m_pBtnProperty) {
        ImageButtonStyle style =
            ButtonStyle(s.strPropertyNormal, s.strPropertyHover, s.strPropertyDown);
        m_pBtnProperty->SetSkin(&style);
    }
    if (m_pDragToggle) {
        ImageRadioBox style;
        style.strCheckedNormal = style.strCheckedHover = style.strCheckedPressed = s.strDragOn;
        style.strCheckedDisabled = s.strDragOn;
        style.strUncheckedNormal = style.strUncheckedHover = style.strUncheckedPressed =
            s.strDragOff;
        style.strUncheckedDisabled = s.strDragOff;
        m_pDragToggle->SetSkin(&style);
    }
}

int CSFQTVideoWindowSubWnd::FrameInset() const
{
    if (!m_pOwner->ShowsFrames())
        return 0;
    const CSFQTVideoWindow::Skin& skin = m_pOwner->SkinData();
    return std::max(skin.frameWidth, skin.focusFrameWidth);
}

int CSFQTVideoWindowSubWnd::TitleHeight() const
{
    return m_pOwner->SubWinCtrlsVisible() ? m_pOwner->SkinData().titleHeight : 0;
}

void CSFQTVideoWindowSubWnd::LayoutChildren()
{
    const int inset = FrameInset();
    const int title = TitleHeight();
    const QRect inner = rect().adjusted(inset, inset, -inset, -inset);
    m_pPlayWnd->setGeometry(inner.adjusted(0, title, 0, 0));

    const bool visible = m_pOwner->SubWinCtrlsVisible();
    const QSize size = m_pOwner->SkinData().buttonSize;
    // From the right: close, property, snapshot, drag toggle.
    int x = inner.right() + 1;
    const int y = inner.top() + (title - size.height()) / 2;
    auto next = [&x, &size] {
        x -= size.width() + 2;
        return x;
    };
    for (CSFButton* button : { m_pBtnClose, m_pBtnProperty, m_pBtnSnap }) {
        if (!button)
            continue;
        button->MoveWindow(next(), y, size.width(), size.height());
        button->ShowWindow(visible ? 1 : 0);
    }
    if (m_pDragToggle) {
        m_pDragToggle->MoveWindow(next(), y, size.width(), size.height());
        m_pDragToggle->ShowWindow(visible ? 1 : 0);
    }
}

void CSFQTVideoWindowSubWnd::BTN_OnClicked(int id)
{
    m_pOwner->OnSubWinButton(this, id);
}

void CSFQTVideoWindowSubWnd::resizeEvent(QResizeEvent* e)
{
    LayoutChildren();
    QWidget::resizeEvent(e);
}

void CSFQTVideoWindowSubWnd::paintEvent(QPaintEvent*)
{
    const CSFQTVideoWindow::Skin& skin = m_pOwner->SkinData();
    QPainter painter(this);
    const int inset = FrameInset();
    if (inset > 0) {
        int line = skin.frameWidth;
        QColor color = skin.back;
        if (m_pOwner->DropTarget() == this) {
            color = skin.drop;
            line = inset;
        } else if (m_pOwner->GetCurrentSubWinIndex() == m_nIndex) {
            color = skin.focus;
            line = skin.focusFrameWidth;
        } else if (m_nRecordState) {
            color = skin.record;
        }
        const QRect outer = rect();
        painter.fillRect(outer, color);
        painter.fillRect(outer.adjusted(line, line, -line, -line), skin.back);
    } else {
        painter.fillRect(rect(), skin.back);
    }
    const int title = TitleHeight();
    if (title > 0)
        painter.fillRect(QRect(inset, inset, width() - 2 * inset, title), skin.title);
}

void CSFQTVideoWindowSubWnd::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        m_pOwner->OnSubWinLButtonDown(this, mapTo(m_pOwner, e->position().toPoint()));
    e->accept();
}

void CSFQTVideoWindowSubWnd::mouseMoveEvent(QMouseEvent* e)
{
    if (e->buttons() & Qt::LeftButton)
        m_pOwner->OnSubWinDrag(this, mapTo(m_pOwner, e->position().toPoint()));
    e->accept();
}

void CSFQTVideoWindowSubWnd::mouseReleaseEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        m_pOwner->OnSubWinLButtonUp(this, mapTo(m_pOwner, e->position().toPoint()));
    e->accept();
}

void CSFQTVideoWindowSubWnd::mouseDoubleClickEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        m_pOwner->OnSubWinDoubleClick(this);
    e->accept();
}
