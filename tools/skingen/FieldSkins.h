#pragma once

#include "tools/skingen/SkinEntry.h"

#include <QRectF>
#include <vector>

class QPainter;

// Combo box strips and spinner frames. A combo box cuts each face out of its
// strip as x, y, width + 1, height + 1 and stretches it over itself, so every
// face here spans exactly those rows and columns.
class FieldSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

private:
    enum class Face { Normal, Hover, Open, Disabled };
    // Outlined faces stand on the table's grey rows; filled faces on the
    // white calculator panel.
    enum class Kind { Outlined, Filled };

    struct Band {
        int top;
        int height;
        Face face;
    };

    static void face(QPainter& p, const QRectF& rect, Kind kind, Face face, qreal zone,
                     bool roundTop = true, bool roundBottom = true);
    static void chevronIn(QPainter& p, qreal zoneCentreX, qreal centreY, Face face);
    static void strip(QPainter& p, const QSize& size, Kind kind, qreal zone,
                      const std::vector<Band>& bands);
    static void recordPlanStrip(QPainter& p, const QSize& size);
    static void tableSpinner(QPainter& p, const QSize& size);
    static void panelSpinner(QPainter& p, const QSize& size);
};
