#include "tools/skingen/ButtonSkins.h"

#include "tools/skingen/Glyphs.h"
#include "tools/skingen/SkinPalette.h"
#include "tools/skingen/SkinShapes.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

// A face's colours: the top and bottom of its shading, and its edge.
struct FaceColours {
    QColor top;
    QColor bottom;
    QColor edge;
};

// A rounded face shaded from top to bottom, with its edge.
void shadedFace(QPainter& p, const QRectF& rect, qreal radius, const FaceColours& c)
{
    QLinearGradient g(0, rect.top(), 0, rect.bottom());
    g.setColorAt(0.0, c.top);
    g.setColorAt(1.0, c.bottom);
    SkinShapes::panel(p, rect, radius, g, c.edge);
}

void addStates(std::vector<SkinEntry>& out, const QSize& size, const QString (&names)[4],
               const std::function<void(QPainter&, const QSize&, SkinState)>& draw)
{
    const SkinState states[4] = { SkinState::Normal, SkinState::Hover, SkinState::Pressed,
                                  SkinState::Disabled };
    for (int i = 0; i < 4; ++i) {
        if (names[i].isEmpty())
            continue;
        const SkinState state = states[i];
        out.push_back(
            { names[i], size, [draw, state](QPainter& p, const QSize& s) { draw(p, s, state); } });
    }
}

} // namespace

void ButtonSkins::addTo(std::vector<SkinEntry>& out)
{
    // Toolbar and dialog title buttons. The close images also serve the
    // dialogs, at 24 by 24 and 17 by 16, on a light title band: the chip keeps
    // them legible on both grounds.
    struct ChipFiles {
        const char* name;
        QSize size;
        Chip chip;
    };
    const ChipFiles chips[] = {
        { "about", QSize(24, 24), Chip::About },
        { "min", QSize(27, 24), Chip::Minimise },
        { "close", QSize(27, 24), Chip::Close },
    };
    for (const ChipFiles& files : chips) {
        const QString name = QString::fromLatin1(files.name);
        const QString names[4] = { name + QStringLiteral("-normal.png"),
                                   name + QStringLiteral("-hover.png"),
                                   name + QStringLiteral("-pressed.png"),
                                   name + QStringLiteral("-disabled.png") };
        const Chip chip = files.chip;
        addStates(out, files.size, names, [chip](QPainter& p, const QSize& s, SkinState st) {
            windowChip(p, s, chip, st);
        });
    }

    // Channel page: a label is laid over these from x 26 (add) and x 25 (clear).
    const QString add[4] = { QStringLiteral("add_nor.png"), QStringLiteral("add_hove.png"),
                             QStringLiteral("add_press.png"), QStringLiteral("add_dis.png") };
    addStates(out, QSize(131, 36), add, &ButtonSkins::addButton);
    // The page uses one picture for hover and pressed.
    const QString clear[4] = { QStringLiteral("delect_nor.png"), QStringLiteral("delect_press.png"),
                               QString(), QStringLiteral("delect_dis.png") };
    addStates(out, QSize(100, 36), clear, &ButtonSkins::clearButton);

    const QString rowDel[4] = { QStringLiteral("list_clear_nor.png"),
                                QStringLiteral("list_clear_hover.png"), QString(),
                                QStringLiteral("list_clear_dis.png") };
    addStates(out, QSize(22, 27), rowDel, &ButtonSkins::rowDelete);

    // Text buttons of the message dialog and the stream editor, which also
    // asks for the misspelt disabled picture.
    const QString text[4] = { QStringLiteral("btn_normal.png"), QStringLiteral("btn_hover.png"),
                              QStringLiteral("btn_press.png"), QStringLiteral("btn_disabled.png") };
    addStates(out, QSize(72, 25), text, &ButtonSkins::textButton);
    out.push_back({ QStringLiteral("btn_diabled.png"), QSize(72, 25),
                    [](QPainter& p, const QSize& s) { textButton(p, s, SkinState::Disabled); } });

    const QString calc[4] = { QStringLiteral("calculator_nor.png"),
                              QStringLiteral("calculator_hover.png"),
                              QStringLiteral("calculator_push.png"),
                              QStringLiteral("calculator_dis.png") };
    addStates(out, QSize(56, 48), calc, &ButtonSkins::calculateButton);
}

void ButtonSkins::windowChip(QPainter& p, const QSize& size, Chip chip, SkinState state)
{
    p.setRenderHint(QPainter::Antialiasing);
    const bool isClose = chip == Chip::Close;
    QColor fill;
    QColor glyph = SkinPalette::onChrome();
    switch (state) {
    case SkinState::Normal:
        fill = SkinPalette::chromeChip();
        break;
    case SkinState::Hover:
        fill = isClose ? SkinPalette::danger() : SkinPalette::accent();
        glyph = isClose ? SkinPalette::onDanger() : SkinPalette::onAccent();
        break;
    case SkinState::Pressed:
        fill = isClose ? SkinPalette::dangerDark() : SkinPalette::accentDark();
        glyph = isClose ? SkinPalette::onDanger() : SkinPalette::onAccent();
        break;
    case SkinState::Disabled:
        fill = SkinPalette::disabledChip();
        glyph = SkinPalette::disabledOnChrome();
        break;
    }
    const QRectF body(1, 1, size.width() - 2, size.height() - 2);
    QLinearGradient g(0, body.top(), 0, body.bottom());
    g.setColorAt(0.0, SkinShapes::mix(fill, Qt::white, state == SkinState::Pressed ? 0.0 : 0.08));
    g.setColorAt(1.0, fill);
    SkinShapes::panel(p, body, 4, g, SkinShapes::mix(fill, Qt::black, 0.18));

    const QPointF c = body.center() + (state == SkinState::Pressed ? QPointF(0, 0.5) : QPointF());
    switch (chip) {
    case Chip::About:
        Glyphs::info(p, QRectF(c.x() - 2, c.y() - 5.5, 4, 11), glyph, 2.0);
        break;
    case Chip::Minimise:
        Glyphs::minimise(p, QRectF(c.x() - 5, c.y() + 0.5, 10, 2), glyph, 2.0);
        break;
    case Chip::Close:
        Glyphs::close(p, QRectF(c.x() - 4.5, c.y() - 4.5, 9, 9), glyph, 1.8);
        break;
    }
}

void ButtonSkins::lightFace(QPainter& p, const QRectF& rect, qreal radius, SkinState state)
{
    // Near flat: hover warms the face to the pale amber of the table's
    // highlight, pressing deepens it a step.
    const FaceColours faces[] = {
        { SkinPalette::card(), SkinShapes::mix(SkinPalette::card(), SkinPalette::fieldFill(), 0.7),
          SkinPalette::fieldEdge() },
        { SkinPalette::accentTint(),
          SkinShapes::mix(SkinPalette::accentTint(), SkinPalette::accentTintStrong(), 0.6),
          SkinPalette::accent() },
        { SkinPalette::accentTintStrong(),
          SkinShapes::mix(SkinPalette::accentTintStrong(), SkinPalette::accent(), 0.18),
          SkinPalette::accentDark() },
        { SkinPalette::disabledFill(), SkinPalette::disabledFill(), SkinPalette::disabledEdge() },
    };
    shadedFace(p, rect, radius, faces[static_cast<int>(state)]);
}

void ButtonSkins::addButton(QPainter& p, const QSize& size, SkinState state)
{
    p.setRenderHint(QPainter::Antialiasing);
    lightFace(p, QRectF(0, 0, size.width(), size.height()), 5, state);
    const bool off = state == SkinState::Disabled;
    const QColor disc = off                           ? SkinPalette::disabledGlyph()
                        : state == SkinState::Pressed ? SkinPalette::accentDark()
                                                      : SkinPalette::accent();
    const QPointF c(14, size.height() / 2.0);
    p.setPen(Qt::NoPen);
    p.setBrush(disc);
    p.drawEllipse(c, 8, 8);
    Glyphs::plus(p, QRectF(c.x() - 4, c.y() - 4, 8, 8),
                 off ? SkinPalette::card() : SkinPalette::onAccent(), 1.8);
}

void ButtonSkins::clearButton(QPainter& p, const QSize& size, SkinState state)
{
    p.setRenderHint(QPainter::Antialiasing);
    lightFace(p, QRectF(0, 0, size.width(), size.height()), 5, state);
    const bool off = state == SkinState::Disabled;
    const QColor lines = off ? SkinPalette::disabledGlyph() : SkinPalette::glyph();
    const QColor cross = off ? SkinPalette::disabledGlyph() : SkinPalette::danger();
    const qreal top = size.height() / 2.0 - 6.5;
    Glyphs::clearList(p, QRectF(7, top, 14, 13), lines, cross, 1.8);
}

void ButtonSkins::textButton(QPainter& p, const QSize& size, SkinState state)
{
    // The caption is drawn by the button: black, and white while pressed, so
    // the pressed face is the one dark face: the top band's charcoal, with
    // the accent as its edge instead of as its fill.
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF rect(0, 0, size.width(), size.height());
    if (state == SkinState::Pressed) {
        QLinearGradient g(0, 0, 0, rect.height());
        g.setColorAt(0.0, SkinPalette::chromeHigh());
        g.setColorAt(1.0, SkinPalette::chromeLow());
        SkinShapes::panel(p, rect, 4, g, SkinPalette::accentDark());
        return;
    }
    lightFace(p, rect, 4, state);
}

void ButtonSkins::calculateButton(QPainter& p, const QSize& size, SkinState state)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF rect(0, 0, size.width(), size.height());
    const FaceColours faces[] = {
        { SkinShapes::mix(SkinPalette::accent(), SkinPalette::accentLight(), 0.5),
          SkinPalette::accent(), SkinPalette::accentDark() },
        { SkinShapes::mix(SkinPalette::accentLight(), SkinPalette::card(), 0.2),
          SkinPalette::accentLight(), SkinPalette::accent() },
        { SkinPalette::accentDark(),
          SkinShapes::mix(SkinPalette::accentDark(), SkinPalette::accent(), 0.4),
          SkinPalette::accentStroke() },
        { SkinPalette::disabledFill(), SkinPalette::disabledFill(), SkinPalette::disabledEdge() },
    };
    shadedFace(p, rect, 6, faces[static_cast<int>(state)]);
    const QColor glyph =
        state == SkinState::Disabled ? SkinPalette::disabledGlyph() : SkinPalette::onAccent();
    const qreal dy = state == SkinState::Pressed ? 1 : 0;
    Glyphs::calculator(p, QRectF(18, 11 + dy, 20, 26), glyph, 2.0);
}

void ButtonSkins::rowDelete(QPainter& p, const QSize& size, SkinState state)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QColor colour = state == SkinState::Hover      ? SkinPalette::danger()
                          : state == SkinState::Disabled ? SkinPalette::disabledGlyph()
                                                         : SkinPalette::glyph();
    const QRectF box(size.width() / 2.0 - 6, size.height() / 2.0 - 6.5, 12, 13);
    Glyphs::trash(p, box, colour, 1.5);
}
