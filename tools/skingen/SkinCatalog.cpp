#include "tools/skingen/SkinCatalog.h"

#include "tools/skingen/BrandSkins.h"
#include "tools/skingen/ButtonSkins.h"
#include "tools/skingen/FieldSkins.h"
#include "tools/skingen/ToggleSkins.h"
#include "tools/skingen/VideoSkins.h"
#include "tools/skingen/WindowSkins.h"

#include <QDir>
#include <QHash>
#include <QList>
#include <QPainter>

SkinCatalog::SkinCatalog()
{
    WindowSkins::addTo(m_entries);
    BrandSkins::addTo(m_entries);
    ButtonSkins::addTo(m_entries);
    FieldSkins::addTo(m_entries);
    ToggleSkins::addTo(m_entries);
    VideoSkins::addTo(m_entries);
}

QStringList SkinCatalog::names() const
{
    QStringList out;
    for (const SkinEntry& e : m_entries)
        out << e.name;
    return out;
}

QImage SkinCatalog::render(const SkinEntry& entry)
{
    QImage image(entry.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        entry.draw(p, entry.size);
    }
    return image.convertToFormat(QImage::Format_ARGB32);
}

// An image of at most 256 colours is stored with a palette, exactly: one
// byte a pixel is a quarter of what the program has to decode.
QImage SkinCatalog::Compact(const QImage& image)
{
    QList<QRgb> palette;
    QHash<QRgb, int> seen;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (seen.contains(line[x]))
                continue;
            if (palette.size() == 256)
                return image;
            seen.insert(line[x], static_cast<int>(palette.size()));
            palette.append(line[x]);
        }
    }
    QImage indexed(image.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        uchar* out = indexed.scanLine(y);
        for (int x = 0; x < image.width(); ++x)
            out[x] = static_cast<uchar>(seen.value(line[x]));
    }
    return indexed;
}

bool SkinCatalog::writeAll(const QString& directory, QString* error) const
{
    QDir dir(directory);
    if (!dir.exists() && !dir.mkpath(QStringLiteral("."))) {
        if (error)
            *error = QStringLiteral("cannot create ") + directory;
        return false;
    }
    for (const SkinEntry& e : m_entries) {
        const QString path = dir.filePath(e.name);
        // Stored uncompressed: the program decodes the skins on its way up,
        // and inflating them cost more than reading the larger files.
        if (!Compact(render(e)).save(path, "PNG", 100)) {
            if (error)
                *error = QStringLiteral("cannot write ") + path;
            return false;
        }
    }
    return true;
}
