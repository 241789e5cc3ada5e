#include "sf/qt/SFQTCheckBox.h"

#include "sf/qt/SFEventDispatch.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

// Left aligned beside the box, vertically centred, one line.
constexpr int kTextFlags = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft;

} // namespace

CSFQTCheckBox::CSFQTCheckBox(ISFCheckBoxEvent* handler, QWidget* parent)
    : CSFQTToggle(handler, parent, "check"), m_textFlags(kTextFlags)
{
}

CSFQTCheckBox::~CSFQTCheckBox()
{
}

void CSFQTCheckBox::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTCheckBox::OnClicked(bool checked, QPoint pt)
{
    QPointer<CSFQTCheckBox> alive(this);
    if (m_pHandler)
        m_pHandler->Check_OnCheckStateChanged(static_cast<int>(m_nID), checked ? 1 : 0,
                                              tagPOINT{ pt.x(), pt.y() });
    if (alive)
        SFSendCommandEvent(this, m_nID);
}

void CSFQTCheckBox::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton && m_pHandler)
        m_pHandler->BTN_OnLButtonDown();
    CSFQTToggle::mousePressEvent(e);
}

void CSFQTCheckBox::mouseReleaseEvent(QMouseEvent* e)
{
    m_state = CSFToggleSkin::StateNormal;
    QPointer<CSFQTCheckBox> alive(this);
    if (m_pHandler)
        m_pHandler->BTN_OnLButtonUp();
    if (alive)
        CSFQTToggle::mouseReleaseEvent(e);
}

void CSFQTCheckBox::mouseMoveEvent(QMouseEvent* e)
{
    if ((e->buttons() & Qt::LeftButton) && m_pHandler)
        m_pHandler->BTN_OnMouseMove();
    QPushButton::mouseMoveEvent(e);
}

void CSFQTCheckBox::paintEvent(QPaintEvent*)
{
    const int state = isEnabled() ? m_state : int(CSFToggleSkin::StateDisabled);
    const QPixmap& picture = m_skin.Pick(state, m_checked != 0);
    QPainter painter(this);
    QRect boxRect;
    if (picture.isNull()) {
        // Without a skin the style's own box stands in for the picture.
        QStyleOptionButton option;
        option.initFrom(this);
        const int side = style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, this);
        boxRect = QRect(0, (height() - side) >> 1, side, side);
        option.rect = boxRect;
        option.state |= m_checked ? QStyle::State_On : QStyle::State_Off;
        if (m_state == CSFToggleSkin::StatePressed)
            option.state |= QStyle::State_Sunken;
        style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, this);
    } else {
        boxRect = picture.rect().translated(0, (height() - picture.height()) >> 1);
        painter.drawPixmap(boxRect.topLeft(), picture);
    }
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const int textLeft = boxRect.right() + 1 + 4;
    painter.drawText(QRect(textLeft, 0, width() - textLeft, height()), m_textFlags, text());
}
