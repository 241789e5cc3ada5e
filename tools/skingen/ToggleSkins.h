#pragma once

#include "tools/skingen/SkinEntry.h"

#include <vector>

class QPainter;

// Pictures of toggles, which draw their picture at its natural size: the
// calculator's mode tabs, the audio switch of a table row and a check mark.
class ToggleSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

private:
    static void modeTab(QPainter& p, const QSize& size, bool checked);
    static void audioSwitch(QPainter& p, const QSize& size, bool on);
    static void checkMark(QPainter& p, const QSize& size);
};
