#include "tools/skingen/ToggleSkins.h"

#include "tools/skingen/Glyphs.h"
#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QLinearGradient>
#include <QPainter>

void ToggleSkins::addTo(std::vector<SkinEntry>& out)
{
    // The tabs stand at x 0, 151, 304 and 454 with their text centred over
    // the picture; the bottom row meets the panel's base line.
    out.push_back({ QStringLiteral("radioBox_checked.png"), QSize(150, 29),
                    [](QPainter& p, const QSize& s) { modeTab(p, s, true); } });
    out.push_back({ QStringLiteral("radioBox_normal.png"), QSize(150, 29),
                    [](QPainter& p, const QSize& s) { modeTab(p, s, false); } });
    out.push_back({ QStringLiteral("list_open_nor.png"), QSize(40, 22),
                    [](QPainter& p, const QSize& s) { audioSwitch(p, s, true); } });
    out.push_back({ QStringLiteral("list_close_nor.png"), QSize(40, 22),
                    [](QPainter& p, const QSize& s) { audioSwitch(p, s, false); } });
    out.push_back({ QStringLiteral("c_check.png"), QSize(16, 16), &ToggleSkins::checkMark });
}

void ToggleSkins::modeTab(QPainter& p, const QSize& size, bool checked)
{
    const int w = size.width();
    const int h = size.height();
    if (!checked) {
        // A short divider at the right keeps the row of tabs readable; the
        // gaps between the pictures differ, so the tabs draw no boxes.
        SkinShapes::vLine(p, w - 1, 8, h - 9, SkinPalette::divider());
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF body(1, 0, w - 3, h);
    QLinearGradient g(0, 0, 0, h);
    g.setColorAt(0.0, SkinPalette::accentTint());
    g.setColorAt(1.0,
                 SkinShapes::mix(SkinPalette::accentTint(), SkinPalette::accentTintStrong(), 0.6));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawPath(SkinShapes::roundedPath(body, 5, true, true, false, false));
    p.setBrush(Qt::NoBrush);
    p.setPen(
        QPen(SkinShapes::mix(SkinPalette::accentTintStrong(), SkinPalette::accent(), 0.3), 1.0));
    p.drawPath(
        SkinShapes::roundedPath(body.adjusted(0.5, 0.5, -0.5, 0), 4.5, true, true, false, false));
    p.setRenderHint(QPainter::Antialiasing, false);
    p.fillRect(QRect(1, h - 3, w - 3, 3), SkinPalette::accent());
}

void ToggleSkins::audioSwitch(QPainter& p, const QSize& size, bool on)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF track(1, 2, size.width() - 2, size.height() - 4);
    const qreal r = track.height() / 2;
    const QColor fill = on ? SkinPalette::accent() : SkinPalette::switchOff();
    SkinShapes::panel(p, track, r, fill,
                      on ? SkinPalette::accentDark() : SkinShapes::mix(fill, Qt::black, 0.1));
    const qreal knobR = r - 2;
    const QPointF knob(on ? track.right() - r : track.left() + r, track.center().y());
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawEllipse(knob + QPointF(0, 0.8), knobR + 0.4, knobR + 0.4);
    p.setBrush(SkinPalette::knob());
    p.drawEllipse(knob, knobR, knobR);
}

void ToggleSkins::checkMark(QPainter& p, const QSize& size)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF box(1, 1, size.width() - 2, size.height() - 2);
    SkinShapes::panel(p, box, 3, SkinPalette::accent(), SkinPalette::accentDark());
    Glyphs::check(p, QRectF(4, 4.5, size.width() - 8, size.height() - 9), SkinPalette::onAccent(),
                  2.0);
}
