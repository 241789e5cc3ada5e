#pragma once
// What a skinned window keeps of its DialogStyle: the frame and background
// images, the pieces of the frame, the caption buttons and the title area.

#include "sf/DialogStyle.h"

#include <QBitmap>
#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <memory>

class CSFFrameSkin {
public:
    enum Piece {
        TopLeft,
        Top,
        TopRight,
        LeftTop,
        Left,
        LeftBottom,
        BottomLeft,
        Bottom,
        BottomRight,
        RightBottom,
        Right,
        RightTop,
        PieceCount
    };
    enum ButtonState { Normal = 0, Hover = 1, Pressed = 2 };
    static constexpr int ButtonCount = 4;

    CSFFrameSkin();
    ~CSFFrameSkin();
    CSFFrameSkin(const CSFFrameSkin&) = delete;
    CSFFrameSkin& operator=(const CSFFrameSkin&) = delete;

    // Reads the record in the window's order; the caption images, the title
    // alignment and the title colour only for dialogs.
    void Load(const DialogStyle& style, bool dialog);
    // Frees every image.
    void Release();

    bool HasFrame() const { return m_pFrame != nullptr; }
    QSize FrameSize() const;
    QSize Radii() const { return m_radii; }
    void SetRadii(const QSize& radii) { m_radii = radii; }
    QColor BackgroundColor() const { return m_bgColor; }
    QColor TitleColor() const { return m_titleColor; }
    int TitleAlign() const { return m_titleAlign; }
    QRect TitleRect() const { return m_title; }
    QRect PieceRect(Piece piece) const { return m_pieces[piece]; }
    // n is 1 to 4.
    QRect ButtonHitRect(int n) const;

    // The window picture for a size. With the shortcut, a window no larger
    // than the frame image is simply cut from its top-left corner.
    QPixmap Compose(int width, int height, bool allowShortcut) const;

    // Title across the new width; caption buttons follow the right edge.
    void AdjustForResize(int oldWidth, int newWidth);

    // Caption button n under the point, 0 for none.
    int ButtonAt(const QPoint& pt) const;
    // Draws buttons 1 to 4 into the composed picture.
    void PaintButtons(QPixmap& target, int currentButton, int currentState) const;

    // White outside, black inside a rectangle with elliptic corners.
    static QBitmap RoundMask(const QSize& size, int rx, int ry);
    // Inclusive rectangle with left <= right and top <= bottom.
    static bool IsValidRect(const QRect& rect);
    static bool RectHolds(const QRect& rect, const QPoint& pt);

private:
    std::unique_ptr<QPixmap> m_pFrame;
    std::unique_ptr<QPixmap> m_pBackground;
    QColor m_bgColor;
    QColor m_titleColor;
    QSize m_radii;
    QRect m_pieces[PieceCount];
    QRect m_buttonSource[ButtonCount][3];
    QRect m_buttonHit[ButtonCount];
    std::unique_ptr<QPixmap> m_buttonImage[ButtonCount][3];
    QRect m_title;
    int m_titleAlign;
};
