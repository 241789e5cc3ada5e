#include "tools/skingen/VideoSkins.h"

#include "tools/skingen/Glyphs.h"
#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QPainter>
#include <QRadialGradient>

void VideoSkins::addTo(std::vector<SkinEntry>& out)
{
    // The picture fills the preview's video window, 450 by 430.
    out.push_back({ QStringLiteral("NoVideo.png"), QSize(450, 430), &VideoSkins::noVideo });
    struct Item {
        const char* name;
        Icon icon;
        bool active;
    };
    const Item items[] = {
        { "btn_videoclose.png", Icon::Close, false },
        { "btn_videoclosedown.png", Icon::Close, true },
        { "btn_videosnap.png", Icon::Snapshot, false },
        { "btn_videosnapdown.png", Icon::Snapshot, true },
        { "btn_propertynor.png", Icon::Property, false },
        { "btn_propertydown.png", Icon::Property, true },
        { "btn_dragcheck.png", Icon::Drag, true },
        { "btn_draguncheck.png", Icon::Drag, false },
    };
    for (const Item& item : items) {
        const Icon icon = item.icon;
        const bool active = item.active;
        out.push_back(
            { QString::fromLatin1(item.name), QSize(20, 20),
              [icon, active](QPainter& p, const QSize& s) { button(p, s, icon, active); } });
    }
}

void VideoSkins::button(QPainter& p, const QSize& size, Icon icon, bool active)
{
    p.setRenderHint(QPainter::Antialiasing);
    QColor glyph = SkinPalette::onChrome();
    if (active) {
        const QColor fill = icon == Icon::Close ? SkinPalette::danger() : SkinPalette::accent();
        SkinShapes::panel(p, QRectF(0, 0, size.width(), size.height()), 3, fill,
                          SkinShapes::mix(fill, Qt::black, 0.2));
        glyph = icon == Icon::Close ? SkinPalette::onDanger() : SkinPalette::onAccent();
    } else if (icon == Icon::Drag) {
        glyph = SkinPalette::onChromeMuted();
    }
    const QPointF c(size.width() / 2.0, size.height() / 2.0);
    // Each icon's glyph, the size it is centred in and its stroke, in the order of Icon.
    struct Drawing {
        void (*draw)(QPainter&, const QRectF&, const QColor&, qreal);
        QSizeF size;
        qreal stroke;
    };
    const Drawing drawings[] = {
        { &Glyphs::close, QSizeF(8, 8), 1.6 },
        { &Glyphs::camera, QSizeF(13, 11), 1.4 },
        { &Glyphs::sliders, QSizeF(12, 11), 1.3 },
        { &Glyphs::move, QSizeF(13, 13), 1.4 },
    };
    const Drawing& d = drawings[static_cast<int>(icon)];
    const QRectF box(c.x() - d.size.width() / 2, c.y() - d.size.height() / 2, d.size.width(),
                     d.size.height());
    d.draw(p, box, glyph, d.stroke);
}

void VideoSkins::noVideo(QPainter& p, const QSize& size)
{
    const int w = size.width();
    const int h = size.height();
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(QPointF(w / 2.0, h * 0.45), qMax(w, h) * 0.7);
    g.setColorAt(0.0, SkinPalette::videoMid());
    g.setColorAt(1.0, SkinPalette::videoDark());
    p.fillRect(QRect(0, 0, w, h), g);

    // Viewfinder corners.
    QColor corner = SkinPalette::videoGlyph();
    corner.setAlpha(150);
    p.setPen(QPen(corner, 2, Qt::SolidLine, Qt::SquareCap));
    const qreal m = 24;
    const qreal len = 22;
    const QPointF tl(m, m), tr(w - m, m), bl(m, h - m), br(w - m, h - m);
    p.drawLine(tl, tl + QPointF(len, 0));
    p.drawLine(tl, tl + QPointF(0, len));
    p.drawLine(tr, tr - QPointF(len, 0));
    p.drawLine(tr, tr + QPointF(0, len));
    p.drawLine(bl, bl + QPointF(len, 0));
    p.drawLine(bl, bl - QPointF(0, len));
    p.drawLine(br, br - QPointF(len, 0));
    p.drawLine(br, br - QPointF(0, len));

    Glyphs::cameraOff(p, QRectF(w / 2.0 - 44, h / 2.0 - 36, 88, 72), SkinPalette::videoGlyph(),
                      3.5);
}
