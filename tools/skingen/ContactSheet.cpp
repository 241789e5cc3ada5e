#include "tools/skingen/ContactSheet.h"

#include <QDir>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <vector>

namespace {

constexpr int kWidth = 1800;
constexpr int kMargin = 16;
constexpr int kLabel = 18;

void checkerboard(QPainter& p, const QRect& r)
{
    const int cell = 8;
    p.save();
    p.setClipRect(r);
    for (int y = r.top(); y <= r.bottom(); y += cell) {
        for (int x = r.left(); x <= r.right(); x += cell) {
            const bool odd = ((x - r.left()) / cell + (y - r.top()) / cell) % 2;
            p.fillRect(QRect(x, y, cell, cell),
                       odd ? QColor(0xA8, 0xB0, 0xB9) : QColor(0xC4, 0xCA, 0xD1));
        }
    }
    p.restore();
}

} // namespace

qreal ContactSheet::zoomFor(const QSize& size)
{
    const int longest = qMax(size.width(), size.height());
    if (size.width() > 800)
        return 0.5;
    if (longest <= 32)
        return 4;
    if (longest <= 64)
        return 3;
    if (longest <= 200)
        return 2;
    return 1;
}

QImage ContactSheet::build(const QString& directory, const QStringList& names)
{
    struct Cell {
        QString name;
        QImage image;
        QSize shown;
        QPoint at;
    };
    std::vector<Cell> cells;
    const QDir dir(directory);
    for (const QString& name : names) {
        Cell c;
        c.name = name;
        c.image.load(dir.filePath(name));
        const QSize natural = c.image.isNull() ? QSize(40, 20) : c.image.size();
        c.shown = natural * zoomFor(natural);
        cells.push_back(c);
    }

    QFont font;
    font.setPixelSize(12);
    const QFontMetrics fm(font);

    // Flow the cells into rows.
    int x = kMargin;
    int y = kMargin;
    int rowHeight = 0;
    for (Cell& c : cells) {
        const int cellWidth =
            qMax(c.shown.width(), fm.horizontalAdvance(c.name + QStringLiteral(" 0000x000")));
        if (x > kMargin && x + cellWidth > kWidth - kMargin) {
            x = kMargin;
            y += rowHeight + kMargin;
            rowHeight = 0;
        }
        c.at = QPoint(x, y);
        x += cellWidth + kMargin;
        rowHeight = qMax(rowHeight, kLabel + c.shown.height());
    }
    const int height = y + rowHeight + kMargin;

    QImage sheet(kWidth, height, QImage::Format_ARGB32);
    sheet.fill(QColor(0x2B, 0x30, 0x38));
    QPainter p(&sheet);
    p.setFont(font);
    for (const Cell& c : cells) {
        const QString size =
            c.image.isNull() ? QStringLiteral("MISSING")
                             : QStringLiteral("%1x%2").arg(c.image.width()).arg(c.image.height());
        p.setPen(c.image.isNull() ? QColor(Qt::red) : QColor(0xE8, 0xEC, 0xF0));
        p.drawText(c.at + QPoint(0, 13), c.name + QLatin1Char(' ') + size);
        const QRect target(c.at + QPoint(0, kLabel), c.shown);
        checkerboard(p, target);
        if (!c.image.isNull())
            p.drawImage(target, c.image);
    }
    return sheet;
}
