#pragma once

#include "tools/skingen/SkinEntry.h"

#include <vector>

class QPainter;

// The scene preview's video area: its idle picture and the 20 by 20 buttons
// of a sub window's title bar.
class VideoSkins {
public:
    static void addTo(std::vector<SkinEntry>& out);

private:
    enum class Icon { Close, Snapshot, Property, Drag };
    static void button(QPainter& p, const QSize& size, Icon icon, bool active);
    static void noVideo(QPainter& p, const QSize& size);
};
