#pragma once

#include <QImage>
#include <QStringList>

// All images of a directory on one labelled canvas, small ones enlarged, on a
// checkerboard that shows their transparency; for reviewing the skin by eye.
class ContactSheet {
public:
    static QImage build(const QString& directory, const QStringList& names);

private:
    static qreal zoomFor(const QSize& size);
};
