#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

// Line icons drawn into a box; the stroke width is given so that a glyph can
// be kept crisp at the size it is shown.
class Glyphs {
public:
    static void close(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void minimise(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void info(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void plus(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void trash(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void clearList(QPainter& p, const QRectF& box, const QColor& colour, const QColor& badge,
                          qreal stroke);
    static void calculator(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void camera(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void cameraOff(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void sliders(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void move(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    static void check(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
    // Three stacked platters: the product's storage mark.
    static void storage(QPainter& p, const QRectF& box, const QColor& colour, qreal stroke);
};
