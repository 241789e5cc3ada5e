#include "sf/qt/SFQTRadioBox.h"

#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace {

constexpr int kFlagsBase = Qt::TextSingleLine | Qt::AlignVCenter; // 384
constexpr int kWeightUnset = -1;

} // namespace

CSFQTRadioBox::CSFQTRadioBox(ISFRadioBoxEvent* handler, QWidget* parent)
    : CSFQTToggle(handler, parent, "radio"), m_bkFull(1), m_font(font()),
      m_fontWeight(kWeightUnset), m_textOffset(0), m_textFlags(kFlagsBase | Qt::AlignHCenter),
      m_iconAlign(0), m_fade(this), m_expandBg(0), m_tooltipEnabled(0)
{
    // Qt's exclusivity would uncheck sibling boxes behind the page's back.
    setAutoExclusive(false);
}

CSFQTRadioBox::~CSFQTRadioBox()
{
}

void CSFQTRadioBox::SetBoldHeavy(int bold)
{
    m_fontWeight = bold ? QFont::Bold : QFont::Normal;
    m_font.setWeight(static_cast<QFont::Weight>(m_fontWeight));
    update();
}

void CSFQTRadioBox::SetTextColor(unsigned long color)
{
    m_textColor = SFColorFromRef(color);
    update();
}

void CSFQTRadioBox::SetTextOffset(int offset)
{
    m_textOffset = offset;
    update();
}

void CSFQTRadioBox::SetTextAlign(unsigned long flags)
{
    m_textFlags = kFlagsBase;
    if (flags & 0x1)
        m_textFlags += Qt::AlignHCenter;
    if (flags & 0x2)
        m_textFlags += Qt::AlignRight;
    update();
}

void CSFQTRadioBox::GetRadioClientRect(tagRECT* rect)
{
    if (rect)
        *rect = SFToTagRectExclusive(this->rect());
}

void CSFQTRadioBox::GetRadioWindowRect(tagRECT* rect)
{
    if (rect)
        *rect = SFToTagRectExclusive(QRect(mapToGlobal(QPoint(0, 0)), size()));
}

void CSFQTRadioBox::SetImageInfo(void*, void*)
{
}

void CSFQTRadioBox::SetBkColor(unsigned long checked, unsigned long unchecked)
{
    m_bkChecked = SFColorFromRef(checked);
    m_bkUnchecked = SFColorFromRef(unchecked);
    update();
}

void CSFQTRadioBox::SetBkRect(bool full)
{
    m_bkFull = full ? 1 : 0;
    update();
}

void CSFQTRadioBox::SetTooltipEnable(int enable)
{
    m_tooltipEnabled = enable;
}

void CSFQTRadioBox::SetToolTipText(const wchar_t* text)
{
    setToolTip(SFToQString(text));
}

int CSFQTRadioBox::IsWindowVisible()
{
    return isVisible() ? 1 : 0;
}

int CSFQTRadioBox::IsWindow()
{
    return 1;
}

void CSFQTRadioBox::Invalidate(int)
{
    update();
}

void CSFQTRadioBox::SetEnabled(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTRadioBox::EnableAnimation(int enable)
{
    m_fade.Enable(enable);
}

void CSFQTRadioBox::SetExpendBGImge(int expand)
{
    m_expandBg = expand;
    update();
}

void CSFQTRadioBox::SetIconAlign(unsigned long align)
{
    m_iconAlign = static_cast<int>(align);
    update();
}

void CSFQTRadioBox::SetPicTransparence(float opacity)
{
    m_fade.SetOpacity(opacity);
    repaint();
}

void CSFQTRadioBox::OnClicked(bool checked, QPoint pt)
{
    // The handler may destroy the box; the parent then hears nothing.
    QPointer<CSFQTRadioBox> alive(this);
    if (m_pHandler)
        m_pHandler->RADIO_OnClicked(checked ? 1 : 0, static_cast<int>(m_nID),
                                    tagPOINT{ pt.x(), pt.y() }, static_cast<CSFRadioBox*>(this));
    if (alive)
        SFSendCommandEvent(this, m_nID);
}

void CSFQTRadioBox::OnAnimationPicTransFinished()
{
    m_fade.Finished(sender());
}

void CSFQTRadioBox::enterEvent(QEnterEvent* e)
{
    CSFQTToggle::enterEvent(e);
    RunAnimation();
}

void CSFQTRadioBox::mouseReleaseEvent(QMouseEvent* e)
{
    QPointer<CSFQTRadioBox> alive(this);
    CSFQTToggle::mouseReleaseEvent(e);
    if (alive)
        RunAnimation();
}

void CSFQTRadioBox::paintEvent(QPaintEvent* e)
{
    if (!isEnabled())
        m_state = CSFToggleSkin::StateDisabled;
    const QPixmap& picture = m_skin.Pick(m_state, m_checked != 0);
    if (picture.isNull()) {
        QRadioButton::paintEvent(e);
        return;
    }
    QPainter painter(this);
    painter.setOpacity(m_fade.Opacity());
    QRect picRect = picture.rect();
    picRect.translate(0, (height() - picture.height()) >> 1);

    const QColor& background = m_checked ? m_bkChecked : m_bkUnchecked;
    if (background.isValid()) {
        if (m_bkFull) {
            painter.fillRect(rect(), background);
        } else {
            const int bottom = m_checked ? height() - 2 : height() - 3;
            painter.fillRect(QRect(QPoint(picRect.right() + 1, 2), QPoint(width() - 1, bottom)),
                             background);
        }
    }

    painter.setPen(m_textColor.isValid() ? m_textColor : palette().color(QPalette::WindowText));
    painter.setFont(m_font);

    if (m_expandBg) {
        for (int x = 0; x < width(); x += picture.width())
            painter.drawPixmap(x, picRect.top(), picture);
    } else {
        if (m_iconAlign == 1) {
            const int textWidth = QFontMetrics(m_font).horizontalAdvance(text());
            picRect.moveLeft((width() - m_textOffset - picRect.right() - textWidth - 3) / 2 +
                             picRect.left());
        }
        painter.drawPixmap(picRect.topLeft(), picture);
    }

    const int textLeft = picRect.right() + m_textOffset + 2;
    painter.drawText(QRect(textLeft, 0, width() - textLeft, height()), m_textFlags, text());
}

void CSFQTRadioBox::changeEvent(QEvent* e)
{
    if (e->type() == QEvent::FontChange) {
        // A style sheet or parent font reaches the text; the bold choice stays.
        m_font = font();
        if (m_fontWeight != kWeightUnset)
            m_font.setWeight(static_cast<QFont::Weight>(m_fontWeight));
    } else if (e->type() == QEvent::EnabledChange && isEnabled() &&
               m_state == CSFToggleSkin::StateDisabled) {
        // Painting marks a disabled box; enabled again, it starts normal.
        m_state = CSFToggleSkin::StateNormal;
    }
    QRadioButton::changeEvent(e);
}

void CSFQTRadioBox::RunAnimation()
{
    m_fade.Run(this, &CSFQTRadioBox::OnAnimationPicTransFinished);
}
