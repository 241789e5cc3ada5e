#include "tools/skingen/WindowSkins.h"

#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

// Main window: 60 px toolbar over the page; the window never resizes, so its
// frame image is the whole window.
constexpr int kToolbarHeight = 60;

// Dialog frame pieces: 27 px title band, 1 px sides, 10 px bottom band, cut
// from a 148 by 140 image.
constexpr int kDialogTitle = 27;

// Calculator panel: totals in the top band, mode tabs on a base line.
constexpr int kPanelHeaderBottom = 37;
constexpr int kPanelTabBase = 73;

} // namespace

void WindowSkins::addTo(std::vector<SkinEntry>& out)
{
    out.push_back({ QStringLiteral("FrameMain.png"), QSize(1100, 750), &WindowSkins::frameMain });
    out.push_back(
        { QStringLiteral("bgColorMain.png"), QSize(16, 16), &WindowSkins::pageBackground });
    out.push_back({ QStringLiteral("bg_toolbar.png"), QSize(1100, 60), &WindowSkins::toolbar });
    out.push_back({ QStringLiteral("Frame.png"), QSize(148, 140), &WindowSkins::dialogFrame });
    out.push_back(
        { QStringLiteral("background.png"), QSize(148, 140), &WindowSkins::dialogBackground });
    out.push_back(
        { QStringLiteral("BottomBg(2).png"), QSize(1050, 287), &WindowSkins::calculatorPanel });
}

void WindowSkins::toolbar(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    QLinearGradient g(0, 0, 0, h);
    g.setColorAt(0.0, SkinPalette::chromeHigh());
    g.setColorAt(1.0, SkinPalette::chromeLow());
    p.fillRect(QRect(0, 0, w, h), g);
    // Faint highlight along the top edge.
    SkinShapes::hLine(p, 0, w - 1, 0, SkinShapes::mix(SkinPalette::chromeHigh(), Qt::white, 0.10));
    // Accent rule along the bottom, fading out towards the window controls.
    // In 40 even steps rather than a smooth gradient: the window frames then
    // keep to 256 colours and are stored with a palette.
    constexpr int kSteps = 40;
    for (int i = 0; i < kSteps; ++i) {
        const double t = (i + 0.5) / kSteps;
        const double fade = t < 0.55 ? 0.35 * t / 0.55 : 0.35 + 0.5 * (t - 0.55) / 0.45;
        const int x0 = w * i / kSteps;
        const int x1 = w * (i + 1) / kSteps;
        p.fillRect(QRect(x0, h - 2, x1 - x0, 2),
                   SkinShapes::mix(SkinPalette::accent(), SkinPalette::chromeLow(), fade));
    }
    SkinShapes::vLine(p, 0, 0, h - 1, SkinPalette::chromeDeep());
    SkinShapes::vLine(p, w - 1, 0, h - 1, SkinPalette::chromeDeep());
}

void WindowSkins::frameMain(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    p.fillRect(QRect(0, 0, w, h), SkinPalette::page());
    toolbar(p, QSize(w, kToolbarHeight));
    // A soft shadow under the toolbar; the page view above it is transparent.
    for (int i = 0; i < 4; ++i) {
        QColor shade = SkinPalette::chromeDeep();
        shade.setAlpha(46 - i * 12);
        p.fillRect(QRect(0, kToolbarHeight + i, w, 1), shade);
    }
    SkinShapes::vLine(p, 0, 0, h - 1, SkinPalette::chromeDeep());
    SkinShapes::vLine(p, w - 1, 0, h - 1, SkinPalette::chromeDeep());
    SkinShapes::hLine(p, 0, w - 1, h - 1, SkinPalette::chromeDeep());
}

void WindowSkins::pageBackground(QPainter& p, const QSize& size)
{
    p.fillRect(QRect(QPoint(0, 0), size), SkinPalette::page());
}

void WindowSkins::dialogHeader(QPainter& p, int width)
{
    QLinearGradient g(0, 0, 0, kDialogTitle);
    g.setColorAt(0.0, SkinShapes::mix(SkinPalette::dialogHead(), Qt::white, 0.45));
    g.setColorAt(1.0, SkinPalette::dialogHead());
    p.fillRect(QRect(0, 0, width, kDialogTitle), g);
}

void WindowSkins::dialogFrame(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    // Only the title band and the 1 px edges are opaque: the window's own
    // background shows through the rest of every piece.
    dialogHeader(p, w);
    SkinShapes::hLine(p, 0, w - 1, kDialogTitle - 1,
                      SkinShapes::mix(SkinPalette::dialogHead(), SkinPalette::dialogEdge(), 0.3));
    SkinShapes::hLine(p, 0, w - 1, 0, SkinPalette::dialogEdge());
    SkinShapes::vLine(p, 0, 0, h - 1, SkinPalette::dialogEdge());
    SkinShapes::vLine(p, w - 1, 0, h - 1, SkinPalette::dialogEdge());
    SkinShapes::hLine(p, 0, w - 1, h - 1, SkinPalette::dialogEdge());
}

void WindowSkins::dialogBackground(QPainter& p, const QSize& size)
{
    // Stretched under every dialog, and the frame image of the scene preview:
    // the title band and its edges sit where the frame pieces are cut. The
    // edges end with the band: stretched across a dialog's width they turn
    // two pixels wide, and below the band the frame's one-pixel sides would
    // not cover them.
    const int w = size.width();
    const int h = size.height();
    p.fillRect(QRect(0, 0, w, h), SkinShapes::mix(SkinPalette::page(), Qt::white, 0.6));
    dialogHeader(p, w);
    SkinShapes::hLine(p, 0, w - 1, 0, SkinPalette::dialogEdge());
    SkinShapes::vLine(p, 0, 0, kDialogTitle - 1, SkinPalette::dialogEdge());
    SkinShapes::vLine(p, w - 1, 0, kDialogTitle - 1, SkinPalette::dialogEdge());
}

void WindowSkins::calculatorPanel(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF card(0, 0, w, h);
    SkinShapes::panel(p, card, 6, SkinPalette::card(), QColor());
    // Totals band.
    p.save();
    p.setClipPath(SkinShapes::roundedPath(card, 6));
    p.fillRect(QRect(0, 0, w, kPanelHeaderBottom), SkinPalette::headerBand());
    p.setRenderHint(QPainter::Antialiasing, false);
    SkinShapes::hLine(p, 0, w - 1, kPanelHeaderBottom, SkinPalette::divider());
    // Base line the mode tabs stand on.
    SkinShapes::hLine(p, 0, w - 1, kPanelTabBase, SkinPalette::divider());
    p.restore();
    SkinShapes::panel(p, card, 6, Qt::NoBrush, SkinPalette::cardEdge());
}
