#include "SFQTCheckBox.h"

#include "SFEventDispatch.h"
#include "SFQtConvert.h"
#include "SFWrapMath.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

using sf_detail::WrapAdd;
using sf_detail::WrapSub;

namespace {

// Left aligned beside the box, vertically centred, one line.
constexpr int kTextFlags = Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft;

} // namespace

CSFQTCheckBox::CSFQTCheckBox(ISFCheckBoxEvent* handler, QWidget* parent)
    : QPushButton(parent), CSFCheckBox(handler),
      m_state(CSFToggleSkin::StateNormal), m_checked(0), m_textFlags(kTextFlags)
{
    setCheckable(true);
}

CSFQTCheckBox::~CSFQTCheckBox()
{
}

int CSFQTCheckBox::Create(const wchar_t* text, unsigned long style, const tagRECT& rect,
                          void* parent, unsigned int id)
{
    setGeometry(SFRectForCreate(rect));
    const QString label = SFToQString(text);
    setText(label);
    m_nID = id;
    setParent(SFWidgetFromHandle(parent));
    SFNameControl(this, "check", id, label);
    SFApplyVisibleStyle(this, style);
    return 1;
}

void CSFQTCheckBox::SetCursor()
{
}

int CSFQTCheckBox::SetSkin(ImageRadioBox* style)
{
    if (!m_skin.Load(style))
        return 0;
    update();
    return 1;
}

void CSFQTCheckBox::ShowWindow(int show)
{
    setVisible(show != 0);
}

void CSFQTCheckBox::MoveWindow(tagRECT* rect)
{
    if (rect)
        MoveWindow(rect->left, rect->top, WrapAdd(WrapSub(rect->right, rect->left), 1),
                   WrapAdd(WrapSub(rect->bottom, rect->top), 1));
}

void CSFQTCheckBox::MoveWindow(int x, int y, int w, int h)
{
    setGeometry(SFRectFromXYWH(x, y, w, h));
}

void CSFQTCheckBox::SetCheck(int check)
{
    m_state = CSFToggleSkin::StateNormal;
    m_checked = check != 0 ? 1 : 0;
    SyncQtCheck();
    update();
}

int CSFQTCheckBox::GetCheck() const
{
    return m_checked;
}

int CSFQTCheckBox::GetWindowTextW(wchar_t* buffer, int size) const
{
    if (!buffer || size <= 0)
        return 0;
    const std::wstring value = text().toStdWString();
    const int count = std::min(static_cast<int>(value.size()), size);
    std::copy(value.begin(), value.begin() + count, buffer);
    return count;
}

void CSFQTCheckBox::SetWindowTextW(const wchar_t* text)
{
    const QString label = SFToQString(text);
    setText(label);
    setAccessibleName(label);
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

void CSFQTCheckBox::enterEvent(QEnterEvent* e)
{
    m_state = CSFToggleSkin::StateHover;
    QPushButton::enterEvent(e);
    update();
}

void CSFQTCheckBox::leaveEvent(QEvent* e)
{
    m_state = CSFToggleSkin::StateNormal;
    QPushButton::leaveEvent(e);
    update();
}

void CSFQTCheckBox::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton && m_pHandler)
        m_pHandler->BTN_OnLButtonDown();
    m_state = CSFToggleSkin::StatePressed;
    update();
    QPushButton::mousePressEvent(e);
    e->accept();
}

void CSFQTCheckBox::mouseReleaseEvent(QMouseEvent* e)
{
    m_state = CSFToggleSkin::StateNormal;
    QPointer<CSFQTCheckBox> alive(this);
    if (m_pHandler)
        m_pHandler->BTN_OnLButtonUp();
    if (!alive)
        return;
    const QPoint pt = e->position().toPoint();
    if (rect().contains(pt)) {
        m_checked = m_checked ? 0 : 1;
        SyncQtCheck();
        OnClicked(m_checked != 0, pt);
        if (!alive)
            return;
    }
    QPushButton::mouseReleaseEvent(e);
    e->accept();
    update();
}

void CSFQTCheckBox::mouseMoveEvent(QMouseEvent* e)
{
    if ((e->buttons() & Qt::LeftButton) && m_pHandler)
        m_pHandler->BTN_OnMouseMove();
    QPushButton::mouseMoveEvent(e);
}

void CSFQTCheckBox::mouseDoubleClickEvent(QMouseEvent* e)
{
    e->accept();
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
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                   QPalette::WindowText));
    const int textLeft = boxRect.right() + 1 + 4;
    painter.drawText(QRect(textLeft, 0, width() - textLeft, height()), m_textFlags, text());
}

void CSFQTCheckBox::nextCheckState()
{
    // m_checked decides; Qt's own toggling on click must not drift from it.
    SyncQtCheck();
}

void CSFQTCheckBox::SyncQtCheck()
{
    const QSignalBlocker block(this);
    setChecked(m_checked != 0);
}
