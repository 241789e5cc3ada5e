#include "sf/qt/SFQTStatic.h"

#include "platform/WinTypes.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPropertyAnimation>
#include <algorithm>
#include <string>

namespace {

constexpr int kDefaultTwinkleMs = 2000;

} // namespace

CSFQTStatic::CSFQTStatic(ISFStaticEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_textColor(0, 0, 0), m_bold(0),
      m_textFlags(int(Qt::AlignLeft) | int(Qt::AlignVCenter) | int(Qt::TextSingleLine)),
      m_fontPixels(12), m_bgEnabled(0), m_textOffset(0), m_wordWrap(0), m_wrapAnywhere(0),
      m_tooltipEnabled(1), m_twinkleMs(kDefaultTwinkleMs)
{
}

CSFQTStatic::~CSFQTStatic()
{
    if (m_animation)
        m_animation->stop();
}

int CSFQTStatic::Create(const wchar_t* text, unsigned long style, const tagRECT& rect, void* parent,
                        unsigned int id)
{
    const QString label = SFToQString(text);
    setText(label);
    Place(parent, SFRectForCreate(rect), id, "label", label);
    setFont(PaintFont());
    GrowToText(PaintFont());
    SFApplyVisibleStyle(this, style);
    return 1;
}

// Unlike the other controls, a label moves by the exclusive reading of Create.
void CSFQTStatic::MoveWindow(tagRECT* rect)
{
    if (rect)
        setGeometry(SFRectForCreate(*rect));
}

int CSFQTStatic::GetStaticText(wchar_t* buffer, int size) const
{
    return SFCopyText(text(), buffer, size);
}

void CSFQTStatic::SetStaticText(const wchar_t* text)
{
    SetLabel(text);
    // Measured with the widget's own font, from where the label stands now.
    GrowToText(font());
    update();
}

void CSFQTStatic::SetTextAlignFlag(unsigned int flags)
{
    int result = 0;
    if (flags & DT_RIGHT)
        result = Qt::AlignRight;
    else if (flags & DT_CENTER)
        result = Qt::AlignHCenter;
    else
        result = Qt::AlignLeft;
    if (flags & DT_VCENTER)
        result |= int(Qt::AlignVCenter);
    if (flags & DT_WORDBREAK)
        result =
            (result & ~int(Qt::TextSingleLine)) | int(Qt::TextWordWrap) | int(Qt::TextDontClip);
    if (flags & DT_SINGLELINE)
        result = (result & ~int(Qt::TextWordWrap)) | int(Qt::TextSingleLine);
    if (result == 0)
        result = int(Qt::AlignHCenter) | int(Qt::AlignVCenter);
    m_textFlags = result;
    update();
}

unsigned int CSFQTStatic::GetTextAlignFlag()
{
    return static_cast<unsigned int>(m_textFlags);
}

void CSFQTStatic::SetTextColor(unsigned int color)
{
    m_textColor = SFColorFromRef(color);
    update();
}

void CSFQTStatic::SetTextBold(int bold)
{
    m_bold = bold;
    setFont(PaintFont());
    update();
}

void CSFQTStatic::GetTextSize(int& w, int& h)
{
    w = width();
    h = height();
}

void CSFQTStatic::SetBgColor(unsigned int color, int enable)
{
    m_bgColor = SFColorFromRef(color);
    m_bgEnabled = enable;
    update();
}

void CSFQTStatic::SetTextSize(int pixels)
{
    if (pixels > 0) {
        m_fontPixels = pixels;
        setFont(PaintFont());
    }
    setStyleSheet(QStringLiteral("QLabel {font-size:%1px;}").arg(pixels));
}

void CSFQTStatic::GetStaticCtrolPos(tagRECT& rect)
{
    rect = SFToTagRectInclusive(geometry());
}

void CSFQTStatic::SetTextOffset(int offset)
{
    m_textOffset = offset;
    update();
}

void CSFQTStatic::SetWordWrap(int wrap)
{
    m_wordWrap = wrap;
    SetTextFlag(Qt::TextWordWrap, wrap != 0);
    setWordWrap(wrap != 0);
    update();
}

void CSFQTStatic::SetTextFlag(int flag, bool on)
{
    if (on)
        m_textFlags |= flag;
    else
        m_textFlags &= ~flag;
}

int CSFQTStatic::GetWordWrap()
{
    return m_wordWrap;
}

void CSFQTStatic::SetWrapAnywhere(int wrap)
{
    m_wrapAnywhere = wrap;
    SetTextFlag(Qt::TextWrapAnywhere, wrap != 0);
    update();
}

int CSFQTStatic::GetWrapAnywher()
{
    return m_wrapAnywhere;
}

void CSFQTStatic::SetToolTipText(const wchar_t* text)
{
    setToolTip(SFToQString(text));
}

void CSFQTStatic::SetTooltipEnable(int enable)
{
    m_tooltipEnabled = enable;
}

tagRECT CSFQTStatic::GetGeometry()
{
    return SFToTagRectExclusive(geometry());
}

void CSFQTStatic::StartTwinkle()
{
    if (m_animation && m_animation->state() == QAbstractAnimation::Running && !isEnabled())
        return;
    if (m_animation) {
        m_animation->stop();
        delete m_animation;
    }
    auto* animation = new QPropertyAnimation(this, "Color", this);
    animation->setDuration(m_twinkleMs);
    animation->setKeyValueAt(0.0, QColor(0, 0, 0, 255));
    animation->setKeyValueAt(0.5, QColor(0, 0, 0, 0));
    animation->setKeyValueAt(1.0, QColor(0, 0, 0, 255));
    animation->setLoopCount(2);
    m_animation = animation;
    animation->start();
}

void CSFQTStatic::SetColorProperty(const QColor& color)
{
    m_textColor = color;
    update();
}

bool CSFQTStatic::TwinkleRunning() const
{
    return m_animation && m_animation->state() == QAbstractAnimation::Running;
}

void CSFQTStatic::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_bgEnabled == 1)
        painter.fillRect(rect(), m_bgColor);
    painter.setFont(PaintFont());
    painter.setPen(m_textColor);
    QRect area = rect();
    area.setLeft(m_textOffset);
    painter.drawText(area, m_textFlags, text());
}

QFont CSFQTStatic::PaintFont() const
{
    QFont f = font();
    f.setWeight(m_bold ? QFont::Bold : QFont::Normal);
    f.setPixelSize(m_fontPixels);
    return f;
}

void CSFQTStatic::GrowToText(const QFont& font)
{
    const QRect current = geometry();
    const QRect bounds =
        QFontMetrics(font).boundingRect(QRect(0, 0, current.width(), current.height()), m_textFlags,
                                        text());
    const int w = std::max(current.width(), bounds.width());
    const int h = std::max(current.height(), bounds.height());
    if (w != current.width() || h != current.height())
        setGeometry(QRect(current.topLeft(), QSize(w, h)));
}
