#pragma once

#include "tools/skingen/SkinEntry.h"

#include <QImage>
#include <QStringList>
#include <vector>

// Every image of the skin, by the file name under which the program loads it.
class SkinCatalog {
public:
    SkinCatalog();

    const std::vector<SkinEntry>& entries() const { return m_entries; }
    QStringList names() const;

    static QImage render(const SkinEntry& entry);

    // Writes every image as PNG into the directory; false with a message for
    // the first one that cannot be written.
    bool writeAll(const QString& directory, QString* error) const;

private:
    static QImage Compact(const QImage& image);

    std::vector<SkinEntry> m_entries;
};
