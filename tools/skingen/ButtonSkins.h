#pragma once

#include "tools/skingen/SkinEntry.h"
#include "tools/skingen/SkinState.h"

#include <QRectF>
#include <vector>

class QPainter;

// State images of the push buttons; each image has the size of its button,
// since a button stretches its picture over itself.
class ButtonSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

private:
    enum class Chip { About, Minimise, Close };
    static void windowChip(QPainter& p, const QSize& size, Chip chip, SkinState state);
    static void lightFace(QPainter& p, const QRectF& rect, qreal radius, SkinState state);
    static void addButton(QPainter& p, const QSize& size, SkinState state);
    static void clearButton(QPainter& p, const QSize& size, SkinState state);
    static void textButton(QPainter& p, const QSize& size, SkinState state);
    static void calculateButton(QPainter& p, const QSize& size, SkinState state);
    static void rowDelete(QPainter& p, const QSize& size, SkinState state);
};
