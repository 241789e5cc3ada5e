#include "tools/skingen/FieldSkins.h"

#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QPainter>

namespace {

constexpr qreal kFieldRadius = 3;
// Width of the up and down buttons that the spinner's style sheet lays over
// the right edge of its frame.
constexpr int kSpinButtons = 21;

} // namespace

void FieldSkins::addTo(std::vector<SkinEntry>& out)
{
    // Row combos of the channel table: faces at rows 0 (normal), 26 (open
    // upwards, also the disabled cut) and 78 (open downwards), 131 columns.
    // The arrow zone is the widget's height wide: 33 of 135 px, 32 source px.
    const std::vector<Band> row = { { 0, 26, Face::Normal },
                                    { 26, 27, Face::Open },
                                    { 53, 25, Face::Hover },
                                    { 78, 27, Face::Open } };
    out.push_back({ QStringLiteral("comobobox_nor.png"), QSize(131, 105),
                    [row](QPainter& p, const QSize& s) { strip(p, s, Kind::Outlined, 32, row); } });
    std::vector<Band> rowHover = row;
    rowHover[0].face = Face::Hover;
    out.push_back(
        { QStringLiteral("comobobox_hover.png"), QSize(131, 105),
          [rowHover](QPainter& p, const QSize& s) { strip(p, s, Kind::Outlined, 32, rowHover); } });

    // Calculator combos, about 127 by 36 on screen: normal at 0, open at 48,
    // disabled at 142.
    const std::vector<Band> panel = { { 0, 41, Face::Normal },
                                      { 48, 41, Face::Open },
                                      { 95, 41, Face::Hover },
                                      { 142, 41, Face::Disabled } };
    out.push_back(
        { QStringLiteral("ComboBox.png"), QSize(151, 183),
          [panel](QPainter& p, const QSize& s) { strip(p, s, Kind::Filled, 44, panel); } });
    // Unit combo, 75 by 32 on screen.
    const std::vector<Band> unit = { { 0, 36, Face::Normal },
                                     { 40, 36, Face::Open },
                                     { 82, 36, Face::Hover },
                                     { 124, 36, Face::Disabled } };
    out.push_back({ QStringLiteral("ComboBox_GBTB.png"), QSize(84, 160),
                    [unit](QPainter& p, const QSize& s) { strip(p, s, Kind::Filled, 37, unit); } });
    out.push_back(
        { QStringLiteral("ComboBox _150.png"), QSize(226, 183), &FieldSkins::recordPlanStrip });
    // Stream editor combos, 150 by 25: normal at 0, open upwards at 28 (and
    // disabled), open downwards at 84.
    const std::vector<Band> editor = { { 0, 28, Face::Normal },
                                       { 28, 29, Face::Open },
                                       { 57, 27, Face::Hover },
                                       { 84, 29, Face::Open } };
    out.push_back(
        { QStringLiteral("ComboBox_150.png"), QSize(151, 113),
          [editor](QPainter& p, const QSize& s) { strip(p, s, Kind::Filled, 26, editor); } });

    out.push_back(
        { QStringLiteral("selectbox_nor.png"), QSize(72, 32), &FieldSkins::tableSpinner });
    out.push_back(
        { QStringLiteral("bg_time_noal.png"), QSize(124, 32), &FieldSkins::panelSpinner });
}

void FieldSkins::face(QPainter& p, const QRectF& rect, Kind kind, Face face, qreal zone,
                      bool roundTop, bool roundBottom)
{
    QColor fill;
    QColor edge;
    if (kind == Kind::Outlined) {
        fill = SkinPalette::card();
        edge = face == Face::Hover      ? SkinPalette::accent()
               : face == Face::Open     ? SkinPalette::accentDark()
               : face == Face::Disabled ? SkinPalette::disabledEdge()
                                        : SkinPalette::fieldEdge();
        if (face == Face::Disabled)
            fill = SkinPalette::disabledFill();
    } else {
        // Filled faces differ in the arrow only, so that strips whose cuts
        // overlap still show one even field.
        fill = face == Face::Disabled ? SkinPalette::disabledFill()
               : face == Face::Hover
                   ? SkinShapes::mix(SkinPalette::fieldFill(), SkinPalette::fieldZone(), 0.5)
                   : SkinPalette::fieldFill();
    }
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path =
        SkinShapes::roundedPath(rect, kFieldRadius, roundTop, roundTop, roundBottom, roundBottom);
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPath(path);
    if (edge.isValid()) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(edge, 1.0));
        p.drawPath(SkinShapes::roundedPath(rect.adjusted(0.5, 0.5, -0.5, -0.5), kFieldRadius - 0.5,
                                           roundTop, roundTop, roundBottom, roundBottom));
    }
    p.restore();
    chevronIn(p, rect.right() - zone / 2.0, rect.center().y(), face);
}

void FieldSkins::chevronIn(QPainter& p, qreal x, qreal y, Face face)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QColor colour = face == Face::Open       ? SkinPalette::accentStroke()
                          : face == Face::Disabled ? SkinPalette::disabledGlyph()
                                                   : SkinPalette::glyph();
    SkinShapes::chevron(p, QPointF(x, y), 4.5, 4.5, face == Face::Open, colour, 1.8);
    p.restore();
}

void FieldSkins::strip(QPainter& p, const QSize& size, Kind kind, qreal zone,
                       const std::vector<Band>& bands)
{
    for (const Band& b : bands)
        face(p, QRectF(0, b.top, size.width(), b.height), kind, b.face, zone);
}

void FieldSkins::recordPlanStrip(QPainter& p, const QSize& size)
{
    // The record plan combo cuts its normal face at row 0, its downward open
    // face at row 28 and its upward one at row 48, each 41 rows: the cuts
    // overlap. One continuous filled field from row 0 to 88 with no edge in
    // between (so the normal face has square lower corners) keeps all three
    // clean; only the arrows tell them apart. Each open arrow sits 3.7 rows
    // off its cut's centre, just outside the other cut, so that neither shows
    // a piece of the other's arrow.
    const qreal w = size.width();
    const qreal zone = 42;
    face(p, QRectF(0, 0, w, 41), Kind::Filled, Face::Normal, zone, true, false);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(SkinPalette::fieldFill());
    p.drawPath(
        SkinShapes::roundedPath(QRectF(0, 41, w, 48), kFieldRadius, false, false, true, true));
    p.restore();
    chevronIn(p, w - zone / 2.0, 28 + 20.5 - 3.7, Face::Open);
    chevronIn(p, w - zone / 2.0, 48 + 20.5 + 3.7, Face::Open);
    face(p, QRectF(0, 95, w, 41), Kind::Filled, Face::Hover, zone);
    face(p, QRectF(0, 142, w, 41), Kind::Filled, Face::Disabled, zone);
}

void FieldSkins::tableSpinner(QPainter& p, const QSize& size)
{
    const qreal w = size.width();
    const qreal h = size.height();
    p.setRenderHint(QPainter::Antialiasing);
    SkinShapes::panel(p, QRectF(0, 0, w, h), kFieldRadius, SkinPalette::card(),
                      SkinPalette::fieldEdge());
    const int zx = size.width() - kSpinButtons;
    p.save();
    p.setClipRect(QRect(zx, 1, kSpinButtons - 1, size.height() - 2));
    p.setPen(Qt::NoPen);
    p.setBrush(SkinPalette::headerBand());
    p.drawPath(SkinShapes::roundedPath(QRectF(0, 1, w - 1, h - 2), kFieldRadius - 1));
    p.restore();
    p.setRenderHint(QPainter::Antialiasing, false);
    SkinShapes::vLine(p, zx, 1, size.height() - 2, SkinPalette::divider());
    SkinShapes::hLine(p, zx + 1, size.width() - 2, size.height() / 2, SkinPalette::divider());
    p.setRenderHint(QPainter::Antialiasing);
    const qreal cx = zx + kSpinButtons / 2.0 + 0.5;
    SkinShapes::chevron(p, QPointF(cx, h * 0.27), 3.5, 3.5, true, SkinPalette::glyph(), 1.5);
    SkinShapes::chevron(p, QPointF(cx, h * 0.75), 3.5, 3.5, false, SkinPalette::glyph(), 1.5);
}

void FieldSkins::panelSpinner(QPainter& p, const QSize& size)
{
    const qreal w = size.width();
    const qreal h = size.height();
    p.setRenderHint(QPainter::Antialiasing);
    SkinShapes::panel(p, QRectF(0, 0, w, h), kFieldRadius, SkinPalette::fieldFill(), QColor());
    const int zx = size.width() - kSpinButtons;
    p.setPen(Qt::NoPen);
    p.setBrush(SkinPalette::fieldZone());
    p.drawPath(SkinShapes::roundedPath(QRectF(zx, 0, kSpinButtons, h), kFieldRadius, false, true,
                                       true, false));
    // A hairline of the field colour splits the zone into its two buttons.
    p.setRenderHint(QPainter::Antialiasing, false);
    SkinShapes::hLine(p, zx, size.width() - 1, size.height() / 2, SkinPalette::fieldFill());
    p.setRenderHint(QPainter::Antialiasing);
    const qreal cx = zx + kSpinButtons / 2.0;
    SkinShapes::chevron(p, QPointF(cx, h * 0.27), 3.5, 3.5, true, SkinPalette::glyph(), 1.5);
    SkinShapes::chevron(p, QPointF(cx, h * 0.75), 3.5, 3.5, false, SkinPalette::glyph(), 1.5);
}
