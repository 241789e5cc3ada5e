#pragma once

#include <QColor>

// Every colour the skin is drawn from, and the only place that names one: a
// charcoal band on top, neutral light surfaces that sit with the table's grey
// rows, one amber accent for hover, pressed, checked and focus, grey for
// disabled, red only for closing and deleting. data/Tallix_Style.css repeats
// these values for what Qt paints itself; change both together.
class SkinPalette {
public:
    // Top band (toolbar, About banner, window chips).
    static QColor chromeDeep() { return QColor(0x16, 0x18, 0x1C); }
    static QColor chromeLow() { return QColor(0x1E, 0x21, 0x26); }
    static QColor chromeHigh() { return QColor(0x2B, 0x2F, 0x36); }
    static QColor chromeChip() { return QColor(0x3A, 0x3F, 0x47); }
    static QColor onChrome() { return QColor(0xF1, 0xF2, 0xF4); }
    static QColor onChromeMuted() { return QColor(0xA4, 0xA9, 0xB1); }

    // Light surfaces; the divider is the table's darker row colour.
    static QColor page() { return QColor(0xF3, 0xF3, 0xF3); }
    static QColor card() { return QColor(0xFF, 0xFF, 0xFF); }
    static QColor cardEdge() { return QColor(0xDA, 0xDA, 0xDA); }
    static QColor headerBand() { return QColor(0xF7, 0xF7, 0xF7); }
    static QColor dialogHead() { return QColor(0xEE, 0xEE, 0xEE); }
    static QColor dialogEdge() { return QColor(0x5E, 0x63, 0x6B); }
    static QColor divider() { return QColor(0xE4, 0xE4, 0xE4); }
    static QColor ink() { return QColor(0x1F, 0x29, 0x37); }

    // Input fields.
    static QColor fieldFill() { return QColor(0xF1, 0xF1, 0xF1); }
    static QColor fieldZone() { return QColor(0xE5, 0xE5, 0xE5); }
    static QColor fieldEdge() { return QColor(0xC8, 0xC8, 0xC8); }
    static QColor glyph() { return QColor(0x5B, 0x60, 0x68); }

    // Accent: amber faces carry dark glyphs, never white ones. The stroke
    // shade is for thin amber lines on light ground, where the pure accent
    // would be too faint to read.
    static QColor accent() { return QColor(0xFA, 0xB4, 0x00); }
    static QColor accentLight() { return QColor(0xFF, 0xC6, 0x33); }
    static QColor accentDark() { return QColor(0xE0, 0x9C, 0x00); }
    static QColor accentStroke() { return QColor(0xC7, 0x86, 0x00); }
    // Amber text on light ground, for controls that colour their own text.
    static QColor accentText() { return QColor(0x9A, 0x67, 0x00); }
    static QColor accentTint() { return QColor(0xFF, 0xF4, 0xE3); }
    static QColor accentTintStrong() { return QColor(0xFC, 0xE2, 0xC6); }
    static QColor onAccent() { return ink(); }

    // Switch track when off, and the knob of either state.
    static QColor switchOff() { return QColor(0xCC, 0xCE, 0xD1); }
    static QColor knob() { return QColor(0xFF, 0xFF, 0xFF); }

    // Close and delete.
    static QColor danger() { return QColor(0xD9, 0x45, 0x3E); }
    static QColor dangerDark() { return QColor(0xB3, 0x36, 0x30); }
    static QColor onDanger() { return QColor(0xFF, 0xFF, 0xFF); }

    // Disabled.
    static QColor disabledFill() { return QColor(0xEC, 0xEC, 0xEC); }
    static QColor disabledEdge() { return QColor(0xD8, 0xD8, 0xD8); }
    static QColor disabledGlyph() { return QColor(0xAC, 0xAC, 0xAC); }
    static QColor disabledChip() { return QColor(0x33, 0x37, 0x3D); }
    static QColor disabledOnChrome() { return QColor(0x6E, 0x74, 0x7C); }

    // Video area.
    static QColor videoDark() { return QColor(0x10, 0x11, 0x13); }
    static QColor videoMid() { return QColor(0x1C, 0x1E, 0x22); }
    static QColor videoGlyph() { return QColor(0x4D, 0x52, 0x59); }
};
