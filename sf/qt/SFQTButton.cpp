#include "sf/qt/SFQTButton.h"

#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFLog.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"
#include "sf/qt/SFSkinPicture.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>

namespace {

// Win32 DrawText bits that SetTextAlign reads.
constexpr unsigned int kDtCenter = 0x1;
constexpr unsigned int kDtRight = 0x2;
constexpr unsigned int kDtEndEllipsis = 0x8000;

constexpr int kFlagsCentre = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignHCenter; // 388
constexpr int kFlagsRight = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignRight;    // 386
constexpr int kFlagsLeft = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft;      // 385

const QColor kDisabledText = QColor::fromRgba(0xFF6B6B6Bu);

} // namespace

CSFQTButton::CSFQTButton(ISFButtonEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_textFlags(kFlagsCentre), m_elide(3), m_state(StateNormal),
      m_selected(0), m_keepSelected(1), m_textColor(Qt::black), m_textOffsetX(0), m_textOffsetY(0),
      m_tooltipEnabled(0), m_fade(this), m_iconPos(ICON_POS_STRETCH)
{
    connect(this, &QPushButton::clicked, this, &CSFQTButton::OnClicked);
}

CSFQTButton::~CSFQTButton()
{
}

int CSFQTButton::Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
                        unsigned int id)
{
    const QString label = SFToQString(text);
    setText(label);
    Place(parent, SFRectForCreate(rect), id, "button", label);
    SFApplyVisibleStyle(this, style);
    return 1;
}

int CSFQTButton::SetSkin(ImageButtonStyle* style)
{
    if (!style)
        return 0;
    SFLoadSkinPicture(m_picNormal, style->strNormal);
    SFLoadSkinPicture(m_picHover, style->strHover);
    SFLoadSkinPicture(m_picPressed, style->strPressed);
    SFLoadSkinPicture(m_picDisabled, style->strDisabled);
    SFLoadSkinPicture(m_picSelected, style->strHover);
    update();
    return 1;
}

void CSFQTButton::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTButton::SetTextColor(unsigned long color)
{
    m_textColor = SFColorFromRef(color);
    update();
}

void CSFQTButton::SetTextOffset(int x, int y)
{
    m_textOffsetX = x;
    m_textOffsetY = y;
}

void CSFQTButton::SetTextAlign(unsigned int flags)
{
    if (flags & kDtCenter)
        m_textFlags = kFlagsCentre;
    else if (flags & kDtRight)
        m_textFlags = kFlagsRight;
    else
        m_textFlags = kFlagsLeft;
    // Once asked for, eliding stays on.
    if (flags & kDtEndEllipsis)
        m_elide = 1;
    update();
}

void CSFQTButton::SetTooltipEnable(int enable)
{
    m_tooltipEnabled = enable;
}

void CSFQTButton::SetToolTipText(const wchar_t* text)
{
    const QString tip = SFToQString(text);
    setToolTip(tip);
    // Picture-only buttons are named for screen readers by their tip.
    if (QPushButton::text().isEmpty())
        setAccessibleName(tip);
}

int CSFQTButton::GetWindowTextW(wchar_t* buffer, int size) const
{
    return SFCopyText(text(), buffer, size);
}

void CSFQTButton::SetWindowTextW(const wchar_t* text)
{
    SetLabel(text);
}

void CSFQTButton::GetBTNWindowRect(tagRECT* rect)
{
    if (rect)
        *rect = SFToTagRectExclusive(QRect(mapToGlobal(QPoint(0, 0)), size()));
}

void CSFQTButton::EnableAnimation(int enable)
{
    m_fade.Enable(enable);
}

bool CSFQTButton::IsEnabled()
{
    return isEnabled();
}

void CSFQTButton::SetBtnState(int state)
{
    m_state = state;
    update();
}

void CSFQTButton::SetIconPos(ICON_POS pos)
{
    m_iconPos = pos;
    update();
}

void CSFQTButton::SetSelected(bool selected)
{
    m_selected = selected ? 1 : 0;
    const int idle = selected ? StateSelected : StateNormal;
    if (idle != m_state)
        TakeState(idle);
}

void CSFQTButton::SetPicTransparence(float opacity)
{
    m_fade.SetOpacity(opacity);
    repaint();
}

const QPixmap& CSFQTButton::Picture(int state) const
{
    switch (state) {
    case StateHover:
        return m_picHover;
    case StatePressed:
        return m_picPressed;
    case StateSelected:
        return m_picSelected;
    case StateNormal:
    default:
        return m_picNormal;
    }
}

void CSFQTButton::OnClicked()
{
    // The handler may destroy the button; the parent then hears nothing.
    QPointer<CSFQTButton> alive(this);
    if (m_pHandler)
        m_pHandler->BTN_OnClicked(static_cast<int>(m_nID));
    if (alive)
        SFSendCommandEvent(this, m_nID);
}

void CSFQTButton::OnAnimationPicTransFinished()
{
    m_fade.Finished(sender());
}

void CSFQTButton::enterEvent(QEnterEvent* e)
{
    if (m_pHandler)
        m_pHandler->BTN_OnMouseMove(static_cast<int>(m_nID), 0, tagPOINT{ 0, 0 });
    if (!(m_keepSelected && m_state == StateSelected)) {
        TakeState(StateHover);
        RunAnimation();
    }
    QPushButton::enterEvent(e);
}

void CSFQTButton::leaveEvent(QEvent* e)
{
    if (m_pHandler)
        m_pHandler->BTN_OnMouseLeave(static_cast<int>(m_nID), 0, 0);
    TakeState(m_selected ? StateSelected : StateNormal);
    QPushButton::leaveEvent(e);
}

void CSFQTButton::mousePressEvent(QMouseEvent* e)
{
    if (e->button() != Qt::RightButton && m_pHandler)
        m_pHandler->BTN_OnLButtonDown(static_cast<int>(m_nID), 0, tagPOINT{ 0, 0 });
    TakeState(StatePressed);
    RunAnimation();
    QPushButton::mousePressEvent(e);
    // Other buttons are the button's too; the page below must not see them.
    e->accept();
}

void CSFQTButton::mouseReleaseEvent(QMouseEvent* e)
{
    TakeState(StateSelected);
    QPointer<CSFQTButton> alive(this);
    if (m_pHandler)
        m_pHandler->BTN_OnLButtonUp(static_cast<int>(m_nID), 0, tagPOINT{ 0, 0 });
    if (!alive)
        return;
    QPushButton::mouseReleaseEvent(e);
    e->accept();
}

void CSFQTButton::mouseMoveEvent(QMouseEvent* e)
{
    if (e->buttons() & Qt::LeftButton) {
        if (m_pHandler)
            m_pHandler->BTN_OnMouseMove(static_cast<int>(m_nID), 0, tagPOINT{ 0, 0 });
        TakeState(StatePressed);
    } else {
        if (m_state != StateHover && m_state != StatePressed) {
            qCDebug(lcSf) << "mousemove enter";
            TakeState(StateHover);
        }
        qCDebug(lcSf) << "mousemove over";
    }
    QPushButton::mouseMoveEvent(e);
}

void CSFQTButton::focusOutEvent(QFocusEvent* e)
{
    TakeState(StateNormal);
    QPushButton::focusOutEvent(e);
}

void CSFQTButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap& picture = PictureToPaint();
    painter.setOpacity(m_fade.Opacity());
    if (!picture.isNull()) {
        if (m_iconPos == ICON_POS_TOPLEFT)
            painter.drawPixmap(0, 0, picture);
        else
            painter.drawPixmap(rect(), picture);
    }
    const QString label = text();
    if (label.isEmpty())
        return;
    painter.setPen(isEnabled() ? m_textColor : kDisabledText);
    const int inset = (height() - (fontMetrics().height() + 1)) / 2;
    const QRect textRect = rect().adjusted(2, inset, -2, -inset);
    const QString shown =
        m_elide == 1 ? fontMetrics().elidedText(label, Qt::ElideRight, textRect.width()) : label;
    painter.drawText(textRect, m_textFlags, shown);
}

void CSFQTButton::TakeState(int state)
{
    m_state = state;
    update();
}

void CSFQTButton::RunAnimation()
{
    m_fade.Run(this, &CSFQTButton::OnAnimationPicTransFinished);
}

const QPixmap& CSFQTButton::PictureToPaint() const
{
    if (!isEnabled())
        return m_picDisabled;
    return Picture(m_state);
}
