#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

class QBrush;
class QPainter;

// Drawing primitives shared by all skin pieces. Borders are one pixel wide and
// laid on pixel centres so that they stay crisp under antialiasing.
class SkinShapes {
public:
    // Rounded rectangle; each corner can be rounded or square.
    static QPainterPath roundedPath(const QRectF& rect, qreal radius, bool topLeft = true,
                                    bool topRight = true, bool bottomRight = true,
                                    bool bottomLeft = true);

    // Fills the rectangle and, if the border is valid, draws a crisp 1 px edge
    // inside it.
    static void panel(QPainter& p, const QRectF& rect, qreal radius, const QBrush& fill,
                      const QColor& border);

    // A "V" (or inverted "V" when up) centred on the point.
    static void chevron(QPainter& p, const QPointF& centre, qreal halfWidth, qreal height, bool up,
                        const QColor& colour, qreal stroke);

    // A 1 px horizontal or vertical line on pixel boundaries.
    static void hLine(QPainter& p, int x0, int x1, int y, const QColor& colour);
    static void vLine(QPainter& p, int x, int y0, int y1, const QColor& colour);

    // Colour blended towards another by t in [0, 1].
    static QColor mix(const QColor& a, const QColor& b, qreal t);
};
