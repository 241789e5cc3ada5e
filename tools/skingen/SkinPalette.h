#pragma once

#include <QColor>

// The few colours the whole skin is drawn from: a slate/navy frame, light
// panels, one teal accent for hover, pressed and checked, grey for disabled.
class SkinPalette
{
public:
    // Window frame and toolbar.
    static QColor navyDeep() { return QColor(0x14, 0x1C, 0x28); }
    static QColor navyLow() { return QColor(0x1A, 0x24, 0x34); }
    static QColor navyHigh() { return QColor(0x25, 0x33, 0x4A); }
    static QColor slateChip() { return QColor(0x34, 0x45, 0x5D); }
    static QColor onNavy() { return QColor(0xE6, 0xEC, 0xF3); }
    static QColor onNavyMuted() { return QColor(0x93, 0xA2, 0xB6); }

    // Light surfaces.
    static QColor page() { return QColor(0xEC, 0xF0, 0xF4); }
    static QColor card() { return QColor(0xFF, 0xFF, 0xFF); }
    static QColor cardEdge() { return QColor(0xD3, 0xDA, 0xE3); }
    static QColor headerBand() { return QColor(0xF4, 0xF7, 0xFA); }
    static QColor dialogHead() { return QColor(0xE7, 0xEC, 0xF2); }
    static QColor dialogEdge() { return QColor(0x5A, 0x6A, 0x80); }
    static QColor divider() { return QColor(0xDC, 0xE2, 0xE9); }

    // Input fields.
    static QColor fieldFill() { return QColor(0xEC, 0xF0, 0xF5); }
    static QColor fieldZone() { return QColor(0xE0, 0xE6, 0xED); }
    static QColor fieldEdge() { return QColor(0xBF, 0xC9, 0xD5); }
    static QColor glyph() { return QColor(0x56, 0x66, 0x7C); }

    // Accent.
    static QColor accent() { return QColor(0x19, 0x9C, 0xA6); }
    static QColor accentLight() { return QColor(0x2A, 0xB3, 0xBD); }
    static QColor accentDark() { return QColor(0x12, 0x7A, 0x84); }
    static QColor accentTint() { return QColor(0xE3, 0xF3, 0xF4); }
    static QColor accentTintStrong() { return QColor(0xC9, 0xE8, 0xEB); }

    // Close and delete.
    static QColor danger() { return QColor(0xD6, 0x48, 0x48); }
    static QColor dangerDark() { return QColor(0xAF, 0x34, 0x34); }

    // Disabled.
    static QColor disabledFill() { return QColor(0xE5, 0xE9, 0xEE); }
    static QColor disabledEdge() { return QColor(0xD0, 0xD6, 0xDE); }
    static QColor disabledGlyph() { return QColor(0xA7, 0xB1, 0xBD); }
    static QColor disabledChip() { return QColor(0x5C, 0x68, 0x7A); }

    // Video area.
    static QColor videoDark() { return QColor(0x0D, 0x12, 0x19); }
    static QColor videoMid() { return QColor(0x1A, 0x22, 0x2E); }
    static QColor videoGlyph() { return QColor(0x4B, 0x59, 0x6B); }
};
