#include "tools/skingen/SkinShapes.h"

#include <QBrush>
#include <QPainter>
#include <QPen>

QPainterPath SkinShapes::roundedPath(const QRectF& rect, qreal radius, bool topLeft, bool topRight,
                                     bool bottomRight, bool bottomLeft)
{
    const qreal r = qMin(radius, qMin(rect.width(), rect.height()) / 2.0);
    const qreal d = 2 * r;
    QPainterPath path;
    if (r <= 0) {
        path.addRect(rect);
        return path;
    }
    path.moveTo(rect.left() + (topLeft ? r : 0), rect.top());
    if (topRight) {
        path.lineTo(rect.right() - r, rect.top());
        path.arcTo(QRectF(rect.right() - d, rect.top(), d, d), 90, -90);
    } else {
        path.lineTo(rect.right(), rect.top());
    }
    if (bottomRight) {
        path.lineTo(rect.right(), rect.bottom() - r);
        path.arcTo(QRectF(rect.right() - d, rect.bottom() - d, d, d), 0, -90);
    } else {
        path.lineTo(rect.right(), rect.bottom());
    }
    if (bottomLeft) {
        path.lineTo(rect.left() + r, rect.bottom());
        path.arcTo(QRectF(rect.left(), rect.bottom() - d, d, d), 270, -90);
    } else {
        path.lineTo(rect.left(), rect.bottom());
    }
    if (topLeft) {
        path.lineTo(rect.left(), rect.top() + r);
        path.arcTo(QRectF(rect.left(), rect.top(), d, d), 180, -90);
    } else {
        path.lineTo(rect.left(), rect.top());
    }
    path.closeSubpath();
    return path;
}

void SkinShapes::panel(QPainter& p, const QRectF& rect, qreal radius, const QBrush& fill,
                       const QColor& border)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPath(roundedPath(rect, radius));
    if (border.isValid()) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(border, 1.0));
        p.drawPath(roundedPath(rect.adjusted(0.5, 0.5, -0.5, -0.5), qMax<qreal>(0, radius - 0.5)));
    }
    p.restore();
}

void SkinShapes::chevron(QPainter& p, const QPointF& c, qreal halfWidth, qreal height, bool up,
                         const QColor& colour, qreal stroke)
{
    p.save();
    QPen pen(colour, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    const qreal h = up ? -height / 2 : height / 2;
    QPainterPath path;
    path.moveTo(c.x() - halfWidth, c.y() - h);
    path.lineTo(c.x(), c.y() + h);
    path.lineTo(c.x() + halfWidth, c.y() - h);
    p.drawPath(path);
    p.restore();
}

void SkinShapes::hLine(QPainter& p, int x0, int x1, int y, const QColor& colour)
{
    p.fillRect(QRect(x0, y, x1 - x0 + 1, 1), colour);
}

void SkinShapes::vLine(QPainter& p, int x, int y0, int y1, const QColor& colour)
{
    p.fillRect(QRect(x, y0, 1, y1 - y0 + 1), colour);
}

QColor SkinShapes::mix(const QColor& a, const QColor& b, qreal t)
{
    auto lerp = [t](int u, int v) { return qRound(u + (v - u) * t); };
    return QColor(lerp(a.red(), b.red()), lerp(a.green(), b.green()), lerp(a.blue(), b.blue()),
                  lerp(a.alpha(), b.alpha()));
}
