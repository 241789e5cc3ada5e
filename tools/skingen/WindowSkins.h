#pragma once

#include "tools/skingen/SkinEntry.h"

#include <vector>

class QPainter;

// Window frames, window and view backgrounds.
class WindowSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

    // The toolbar strip, shared by the toolbar view and the main frame.
    static void toolbar(QPainter& p, const QSize& size);

private:
    static void frameMain(QPainter& p, const QSize& size);
    static void pageBackground(QPainter& p, const QSize& size);
    static void dialogFrame(QPainter& p, const QSize& size);
    static void dialogBackground(QPainter& p, const QSize& size);
    static void calculatorPanel(QPainter& p, const QSize& size);
    static void dialogHeader(QPainter& p, int width);
};
