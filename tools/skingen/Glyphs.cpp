#include "tools/skingen/Glyphs.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QtMath>
#include <initializer_list>

namespace {

QPen linePen(const QColor& colour, qreal stroke)
{
    return QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// Saves the painter and sets a round line pen; restores it at the end of the scope.
class LineScope {
public:
    LineScope(QPainter& p, const QColor& colour, qreal stroke) : m_p(p)
    {
        m_p.save();
        m_p.setPen(linePen(colour, stroke));
    }
    ~LineScope() { m_p.restore(); }
    LineScope(const LineScope&) = delete;
    LineScope& operator=(const LineScope&) = delete;

private:
    QPainter& m_p;
};

// Point at fractions of the box.
QPointF at(const QRectF& b, qreal fx, qreal fy)
{
    return QPointF(b.left() + b.width() * fx, b.top() + b.height() * fy);
}

// Draws the open path through the points at the given fractions of the box.
void drawThrough(QPainter& p, const QRectF& b, std::initializer_list<QPointF> fractions)
{
    QPainterPath path;
    for (const QPointF& f : fractions) {
        if (path.elementCount() == 0)
            path.moveTo(at(b, f.x(), f.y()));
        else
            path.lineTo(at(b, f.x(), f.y()));
    }
    p.drawPath(path);
}

} // namespace

void Glyphs::close(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.drawLine(box.topLeft(), box.bottomRight());
    p.drawLine(box.topRight(), box.bottomLeft());
}

void Glyphs::minimise(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    const qreal y = box.center().y();
    p.drawLine(QPointF(box.left(), y), QPointF(box.right(), y));
}

void Glyphs::info(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    const qreal cx = box.center().x();
    const qreal dot = stroke * 0.75;
    p.drawEllipse(QPointF(cx, box.top() + dot), dot, dot);
    p.setPen(QPen(colour, stroke, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF(cx, box.top() + box.height() * 0.36), QPointF(cx, box.bottom()));
    // Small serifs make the letter read at 10 px.
    QPen thin(colour, stroke * 0.7, Qt::SolidLine, Qt::FlatCap);
    p.setPen(thin);
    const qreal half = stroke * 1.25;
    p.drawLine(QPointF(cx - half, box.bottom() - thin.widthF() / 2),
               QPointF(cx + half, box.bottom() - thin.widthF() / 2));
    p.drawLine(QPointF(cx - half, box.top() + box.height() * 0.36 + thin.widthF() / 2),
               QPointF(cx, box.top() + box.height() * 0.36 + thin.widthF() / 2));
    p.restore();
}

void Glyphs::plus(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    const QPointF c = box.center();
    p.drawLine(QPointF(box.left(), c.y()), QPointF(box.right(), c.y()));
    p.drawLine(QPointF(c.x(), box.top()), QPointF(c.x(), box.bottom()));
}

void Glyphs::trash(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    // Lid and handle.
    p.drawLine(at(b, 0.0, 0.2), at(b, 1.0, 0.2));
    drawThrough(p, b, { { 0.34, 0.2 }, { 0.38, 0.02 }, { 0.62, 0.02 }, { 0.66, 0.2 } });
    // Body.
    drawThrough(p, b, { { 0.1, 0.32 }, { 0.18, 1.0 }, { 0.82, 1.0 }, { 0.9, 0.32 } });
    QPen ribs = linePen(colour, stroke * 0.8);
    p.setPen(ribs);
    p.drawLine(at(b, 0.4, 0.44), at(b, 0.41, 0.86));
    p.drawLine(at(b, 0.6, 0.44), at(b, 0.59, 0.86));
}

void Glyphs::clearList(QPainter& p, const QRectF& b, const QColor& colour, const QColor& badge,
                       qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.drawLine(at(b, 0.0, 0.15), at(b, 0.78, 0.15));
    p.drawLine(at(b, 0.0, 0.45), at(b, 0.55, 0.45));
    p.drawLine(at(b, 0.0, 0.75), at(b, 0.4, 0.75));
    // The cross that clears the list.
    QPen cross = linePen(badge, stroke);
    p.setPen(cross);
    const qreal s = b.width() * 0.17;
    const QPointF c = at(b, 0.78, 0.7);
    p.drawLine(c + QPointF(-s, -s), c + QPointF(s, s));
    p.drawLine(c + QPointF(s, -s), c + QPointF(-s, s));
}

void Glyphs::calculator(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    const qreal half = stroke / 2;
    p.drawRoundedRect(b.adjusted(half, half, -half, -half), b.width() * 0.14, b.width() * 0.14);
    // Display.
    const QRectF display(b.left() + b.width() * 0.22, b.top() + b.height() * 0.16, b.width() * 0.56,
                         b.height() * 0.17);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawRoundedRect(display, stroke * 0.4, stroke * 0.4);
    // Keys: three by three.
    const qreal r = b.width() * 0.065;
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            const QPointF c(b.left() + b.width() * (0.3 + 0.2 * col),
                            b.top() + b.height() * (0.5 + 0.16 * row));
            p.drawEllipse(c, r, r);
        }
    }
}

void Glyphs::camera(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    QPainterPath body;
    const QRectF r(b.left(), b.top() + b.height() * 0.22, b.width(), b.height() * 0.78);
    body.addRoundedRect(r, b.width() * 0.1, b.width() * 0.1);
    p.drawPath(body);
    // Viewfinder bump.
    drawThrough(p, b, { { 0.3, 0.22 }, { 0.37, 0.04 }, { 0.63, 0.04 }, { 0.7, 0.22 } });
    const qreal lens = qMin(r.width(), r.height()) * 0.27;
    p.drawEllipse(r.center(), lens, lens);
}

void Glyphs::cameraOff(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke)
{
    // Drawn on a layer of its own, so that the gap cut around the slash does
    // not cut through whatever lies beneath the glyph.
    const int pad = qCeil(stroke * 2);
    const QPoint origin(qFloor(box.left()) - pad, qFloor(box.top()) - pad);
    QImage layer(qCeil(box.width()) + 2 * pad + 1, qCeil(box.height()) + 2 * pad + 1,
                 QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter lp(&layer);
        lp.setRenderHint(QPainter::Antialiasing);
        const QRectF b(box.left() - origin.x(), box.top() - origin.y(), box.width(), box.height());
        camera(lp,
               b.adjusted(b.width() * 0.08, b.height() * 0.12, -b.width() * 0.08,
                          -b.height() * 0.12),
               colour, stroke);
        const QPointF from = b.topLeft() + QPointF(b.width() * 0.1, b.height() * 0.08);
        const QPointF to = b.bottomRight() - QPointF(b.width() * 0.1, b.height() * 0.08);
        lp.setCompositionMode(QPainter::CompositionMode_Clear);
        lp.setPen(QPen(Qt::transparent, stroke * 3.2, Qt::SolidLine, Qt::RoundCap));
        lp.drawLine(from, to);
        lp.setCompositionMode(QPainter::CompositionMode_SourceOver);
        lp.setPen(linePen(colour, stroke));
        lp.drawLine(from, to);
    }
    p.drawImage(origin, layer);
}

void Glyphs::sliders(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    const qreal knobs[3] = { 0.3, 0.7, 0.45 };
    for (int i = 0; i < 3; ++i) {
        const qreal y = b.top() + b.height() * (0.15 + 0.35 * i);
        p.setPen(linePen(colour, stroke));
        p.drawLine(QPointF(b.left(), y), QPointF(b.right(), y));
        p.setPen(Qt::NoPen);
        p.setBrush(colour);
        p.drawEllipse(QPointF(b.left() + b.width() * knobs[i], y), stroke * 1.5, stroke * 1.5);
    }
}

void Glyphs::move(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    const QPointF c = b.center();
    p.drawLine(QPointF(b.left(), c.y()), QPointF(b.right(), c.y()));
    p.drawLine(QPointF(c.x(), b.top()), QPointF(c.x(), b.bottom()));
    const qreal a = b.width() * 0.2;
    auto head = [&](QPointF tip, QPointF dir) {
        const QPointF side(-dir.y(), dir.x());
        QPainterPath path;
        path.moveTo(tip - dir * a + side * a);
        path.lineTo(tip);
        path.lineTo(tip - dir * a - side * a);
        p.drawPath(path);
    };
    head(QPointF(b.left(), c.y()), QPointF(-1, 0));
    head(QPointF(b.right(), c.y()), QPointF(1, 0));
    head(QPointF(c.x(), b.top()), QPointF(0, -1));
    head(QPointF(c.x(), b.bottom()), QPointF(0, 1));
}

void Glyphs::check(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    drawThrough(p, b, { { 0.0, 0.55 }, { 0.36, 0.9 }, { 1.0, 0.12 } });
}

void Glyphs::storage(QPainter& p, const QRectF& b, const QColor& colour, qreal stroke)
{
    const LineScope scope(p, colour, stroke);
    p.setBrush(Qt::NoBrush);
    const qreal ry = b.height() * 0.14;
    const QRectF top(b.left(), b.top(), b.width(), 2 * ry);
    p.drawEllipse(top);
    // Sides and the lower rims of the three platters.
    p.drawLine(QPointF(b.left(), b.top() + ry), QPointF(b.left(), b.bottom() - ry));
    p.drawLine(QPointF(b.right(), b.top() + ry), QPointF(b.right(), b.bottom() - ry));
    for (int i = 1; i <= 3; ++i) {
        const qreal cy = b.top() + ry + (b.height() - 2 * ry) * i / 3.0;
        const QRectF rim(b.left(), cy - ry, b.width(), 2 * ry);
        p.drawArc(rim, 180 * 16, 180 * 16);
    }
}
