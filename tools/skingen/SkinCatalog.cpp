#include "SkinCatalog.h"

#include "BrandSkins.h"
#include "ButtonSkins.h"
#include "FieldSkins.h"
#include "ToggleSkins.h"
#include "VideoSkins.h"
#include "WindowSkins.h"

#include <QDir>
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
        if (!render(e).save(path, "PNG")) {
            if (error)
                *error = QStringLiteral("cannot write ") + path;
            return false;
        }
    }
    return true;
}
