#pragma once

#include <QSize>
#include <QString>
#include <functional>

class QPainter;

// One image of the skin: the file name the program asks for, its size, and
// how to draw it onto a transparent canvas of that size.
struct SkinEntry {
    QString name;
    QSize size;
    std::function<void(QPainter&, const QSize&)> draw;
};
