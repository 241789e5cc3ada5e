#pragma once

#include "tools/skingen/SkinEntry.h"

#include <QPainterPath>
#include <QPointF>
#include <vector>

class QPainter;

// The product logo on the toolbar, the banner of the About dialog and the
// application icon that desktops show.
class BrandSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

    // "Tallix" built from strokes, baseline at y 0 and starting at x 0, so
    // that the logo does not depend on the fonts of the build machine.
    static QPainterPath wordmark(qreal capHeight, qreal* advance);

private:
    static void logo(QPainter& p, const QSize& size);
    static void aboutBanner(QPainter& p, const QSize& size);
    static void appIcon(QPainter& p, const QSize& size);
    static void badge(QPainter& p, const QRectF& rect);
    // Wordmark and product line from the baseline origin; returns the x at
    // which the text ends.
    static qreal signature(QPainter& p, const QPointF& origin, qreal capHeight,
                           qreal taglinePixels);
};
