#include "tools/skingen/BrandSkins.h"

#include "tools/skingen/Glyphs.h"
#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPathStroker>
#include <QRadialGradient>

namespace {

QPainterPath strokeOf(const QPainterPath& centre, qreal width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(centre);
}

QFont taglineFont(qreal pixels)
{
    QFont font;
    // The style sheet's families, in its order.
    font.setFamilies({ QStringLiteral("Segoe UI"), QStringLiteral("Noto Sans CJK SC"),
                       QStringLiteral("DejaVu Sans") });
    font.setPixelSize(qRound(pixels));
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    return font;
}

} // namespace

void BrandSkins::addTo(std::vector<SkinEntry>& out)
{
    out.push_back({ QStringLiteral("Tallix_LOGO.png"), QSize(300, 59), &BrandSkins::logo });
    out.push_back({ QStringLiteral("AboutPic.png"), QSize(359, 59), &BrandSkins::aboutBanner });
    out.push_back({ QStringLiteral("tallix.png"), QSize(256, 256), &BrandSkins::appIcon });
}

QPainterPath BrandSkins::wordmark(qreal H, qreal* advance)
{
    const qreal s = 0.16 * H; // stroke
    const qreal X = 0.7 * H;  // x-height
    const qreal gap = 0.15 * H;
    QPainterPath out;
    out.setFillRule(Qt::WindingFill);
    qreal x = 0;

    // T
    const qreal tWidth = 0.74 * H;
    {
        QPainterPath c;
        c.moveTo(x, -H + s / 2);
        c.lineTo(x + tWidth, -H + s / 2);
        c.moveTo(x + tWidth / 2, -H + s);
        c.lineTo(x + tWidth / 2, 0);
        out.addPath(strokeOf(c, s));
    }
    x += tWidth - 0.03 * H; // the bowl of the a tucks under the bar

    // a: single-storey, bowl and stem
    {
        const qreal r = (X - s) / 2;
        const QPointF centre(x + s / 2 + r, -X / 2);
        QPainterPath c;
        c.addEllipse(centre, r, r);
        out.addPath(strokeOf(c, s));
        QPainterPath stem;
        stem.moveTo(centre.x() + r, -X);
        stem.lineTo(centre.x() + r, 0);
        out.addPath(strokeOf(stem, s));
        x += 2 * r + s;
    }
    x += gap;

    // l, l
    for (int i = 0; i < 2; ++i) {
        QPainterPath c;
        c.moveTo(x + s / 2, -H * 1.04);
        c.lineTo(x + s / 2, 0);
        out.addPath(strokeOf(c, s));
        x += s + gap;
    }

    // i
    {
        QPainterPath c;
        c.moveTo(x + s / 2, -X);
        c.lineTo(x + s / 2, 0);
        out.addPath(strokeOf(c, s));
        QPainterPath dot;
        dot.addEllipse(QPointF(x + s / 2, -H * 1.04 + s * 0.6), s * 0.6, s * 0.6);
        out.addPath(dot);
        x += s + gap;
    }

    // x: two diagonals trimmed to the x-height band
    {
        const qreal xw = 0.78 * X;
        QPainterPath c;
        c.moveTo(x, -X - s);
        c.lineTo(x + xw, s);
        c.moveTo(x + xw, -X - s);
        c.lineTo(x, s);
        QPainterPath band;
        band.addRect(QRectF(x - s, -X, xw + 2 * s, X));
        out.addPath(strokeOf(c, s * 1.08).intersected(band));
        x += xw;
    }
    if (advance)
        *advance = x;
    return out.simplified();
}

void BrandSkins::badge(QPainter& p, const QRectF& rect)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(rect.topLeft(), rect.bottomRight());
    g.setColorAt(0.0, SkinPalette::accentLight());
    g.setColorAt(1.0, SkinPalette::accentDark());
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawRoundedRect(rect, rect.width() * 0.26, rect.width() * 0.26);
    // Soft sheen on the upper half.
    QLinearGradient sheen(rect.topLeft(), QPointF(rect.left(), rect.center().y()));
    sheen.setColorAt(0.0, QColor(255, 255, 255, 46));
    sheen.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.setBrush(sheen);
    p.drawRoundedRect(rect, rect.width() * 0.26, rect.width() * 0.26);
    const qreal gw = rect.width() * 0.44;
    const qreal gh = rect.height() * 0.52;
    Glyphs::storage(p, QRectF(rect.center().x() - gw / 2, rect.center().y() - gh / 2, gw, gh),
                    SkinPalette::onAccent(), rect.width() * 0.065);
    p.restore();
}

qreal BrandSkins::signature(QPainter& p, const QPointF& origin, qreal capHeight,
                            qreal taglinePixels)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    qreal advance = 0;
    const QPainterPath mark = wordmark(capHeight, &advance);
    p.translate(origin);
    QLinearGradient g(0, -capHeight, 0, 0);
    g.setColorAt(0.0, Qt::white);
    g.setColorAt(1.0, SkinPalette::onChrome());
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawPath(mark);

    // A hairline and the product's line, at the wordmark's x-height centre.
    // Both snap to whole pixels of the image: a hairline or a baseline
    // between two rows comes out as a grey smear.
    auto snap = [](qreal v, qreal at) { return qRound(at + v) - at; };
    const qreal dx = snap(advance + capHeight * 0.55, origin.x());
    const qreal ruleTop = snap(-capHeight * 0.95, origin.y());
    QColor rule = SkinPalette::onChromeMuted();
    rule.setAlpha(150);
    p.fillRect(QRectF(dx, ruleTop, 1, snap(0, origin.y()) - ruleTop), rule);
    const QFont font = taglineFont(taglinePixels);
    p.setFont(font);
    p.setPen(SkinPalette::onChromeMuted());
    const QFontMetricsF fm(font);
    const QString tagline = QStringLiteral("Storage Planner");
    const qreal tx = snap(dx + capHeight * 0.55, origin.x());
    const qreal baseline = snap(-capHeight * 0.475 + (fm.ascent() - fm.descent()) / 2, origin.y());
    p.drawText(QPointF(tx, baseline), tagline);
    p.restore();
    return origin.x() + tx + fm.horizontalAdvance(tagline);
}

void BrandSkins::logo(QPainter& p, const QSize& size)
{
    // Stretched over a 300 by 59 picture control at the toolbar's left.
    const qreal h = size.height();
    badge(p, QRectF(2, (h - 34) / 2, 34, 34));
    signature(p, QPointF(48, h / 2 + 11), 22, 13);
}

void BrandSkins::aboutBanner(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, w, h);
    g.setColorAt(0.0, SkinPalette::chromeLow());
    g.setColorAt(1.0, SkinPalette::chromeHigh());
    p.fillRect(QRect(0, 0, w, h), g);
    badge(p, QRectF(16, (h - 36) / 2.0 - 1, 36, 36));
    const qreal textEnd = signature(p, QPointF(64, h / 2.0 + 11), 23, 13);

    // Rings of a lens at the right, behind the dialog's close button; the
    // widest stops short of the product's line rather than run through it.
    p.save();
    p.setClipRect(QRectF(textEnd + 6, 0, w, h - 2));
    const QPointF lens(w - 40, h * 0.72);
    const int rings = 4;
    const qreal inner = 12;
    const qreal outer = qMax(inner + rings, lens.x() - textEnd - 12);
    QColor tone = SkinPalette::accent();
    for (int i = 0; i < rings; ++i) {
        tone.setAlpha(80 - i * 16);
        p.setPen(QPen(tone, 1.2));
        p.setBrush(Qt::NoBrush);
        const qreal r = inner + (outer - inner) * i / (rings - 1);
        p.drawEllipse(lens, r, r);
    }
    QRadialGradient glow(lens, 36);
    tone.setAlpha(70);
    glow.setColorAt(0.0, tone);
    tone.setAlpha(0);
    glow.setColorAt(1.0, tone);
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(lens, 36, 36);
    p.restore();

    QLinearGradient rule(0, 0, w, 0);
    rule.setColorAt(0.0, SkinPalette::accent());
    rule.setColorAt(1.0, SkinShapes::mix(SkinPalette::accent(), SkinPalette::chromeHigh(), 0.8));
    p.fillRect(QRect(0, h - 2, w, 2), rule);
}

void BrandSkins::appIcon(QPainter& p, const QSize& size)
{
    // The toolbar's badge, with the margin desktop icon themes leave around
    // a square icon so that it sits level with its neighbours.
    const qreal margin = size.width() / 16.0;
    badge(p, QRectF(margin, margin, size.width() - 2 * margin, size.height() - 2 * margin));
}
