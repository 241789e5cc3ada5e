#include "sf/qt/SFFrameSkin.h"

#include "sf/qt/SFSkinParse.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <climits>

namespace {

// Positions are 64-bit: a skin's piece may be far larger than the window,
// and sums of such sizes overflow an int.
typedef qint64 Pos;

// A piece with a zero or negative size would make QPainter take the whole image.
void DrawPiece(QPainter& painter, const QPixmap& frame, Pos x, Pos y, const QRect& piece)
{
    if (!CSFFrameSkin::IsValidRect(piece))
        return;
    // Wholly outside the target, it would not show.
    const QPaintDevice* target = painter.device();
    if (x >= target->width() || y >= target->height() || x + piece.width() <= 0 ||
        y + piece.height() <= 0)
        return;
    painter.drawPixmap(QPoint(static_cast<int>(x), static_cast<int>(y)), frame, piece);
}

Pos PieceWidth(const QRect& r)
{
    return CSFFrameSkin::IsValidRect(r) ? r.width() : 0;
}

Pos PieceHeight(const QRect& r)
{
    return CSFFrameSkin::IsValidRect(r) ? r.height() : 0;
}

// Moves a rectangle sideways; an edge pushed past the int range stays at its end.
void Shift(QRect& r, Pos dx)
{
    const auto clamped = [](Pos v) {
        return static_cast<int>(std::clamp<Pos>(v, INT_MIN, INT_MAX));
    };
    r.setCoords(clamped(r.left() + dx), r.top(), clamped(r.right() + dx), r.bottom());
}

} // namespace

CSFFrameSkin::CSFFrameSkin()
    : m_bgColor(0, 0, 0), m_titleColor(0, 0, 0), m_radii(0, 0),
      m_title(QPoint(0, 0), QPoint(-1, -1)), m_titleAlign(0)
{
    for (QRect& r : m_pieces)
        r = QRect(QPoint(0, 0), QPoint(-1, -1));
    for (int n = 0; n < ButtonCount; ++n) {
        m_buttonHit[n] = QRect(QPoint(0, 0), QPoint(-1, -1));
        for (QRect& r : m_buttonSource[n])
            r = QRect(QPoint(0, 0), QPoint(-1, -1));
    }
}

CSFFrameSkin::~CSFFrameSkin() = default;

void CSFFrameSkin::Load(const DialogStyle& s, bool dialog)
{
    m_radii = SFParseSize(s.strRoundCorner);
    m_bgColor = SFParseColor(s.strBackgroundColor);
    m_pBackground = SFLoadSkinPixmap(s.strBackgroundImage);
    m_pFrame = SFLoadSkinPixmap(s.strFrameImage);

    const std::wstring* pieces[PieceCount] = { &s.strTopLeft,     &s.strTop,    &s.strTopRight,
                                               &s.strLeftTop,     &s.strLeft,   &s.strLeftBottom,
                                               &s.strBottomLeft,  &s.strBottom, &s.strBottomRight,
                                               &s.strRightBottom, &s.strRight,  &s.strRightTop };
    for (int i = 0; i < PieceCount; ++i)
        m_pieces[i] = SFParseRect(*pieces[i]);

    // Each caption button's cuts and images by state, and its hit rectangle.
    struct ButtonFields {
        const std::wstring* cuts[3];
        const std::wstring* images[3];
        const std::wstring* hit;
    };
    const ButtonFields buttons[ButtonCount] = {
        { { &s.strBtn1Normal, &s.strBtn1Hover, &s.strBtn1Pressed },
          { &s.strBtn1ImageNormal, &s.strBtn1ImageHover, &s.strBtn1ImagePressed },
          &s.strBtn1Rect },
        { { &s.strBtn2Normal, &s.strBtn2Hover, &s.strBtn2Pressed },
          { &s.strBtn2ImageNormal, &s.strBtn2ImageHover, &s.strBtn2ImagePressed },
          &s.strBtn2Rect },
        { { &s.strBtn3Normal, &s.strBtn3Hover, &s.strBtn3Pressed },
          { &s.strBtn3ImageNormal, &s.strBtn3ImageHover, &s.strBtn3ImagePressed },
          &s.strBtn3Rect },
        { { &s.strBtn4Normal, &s.strBtn4Hover, &s.strBtn4Pressed },
          { &s.strBtn4ImageNormal, &s.strBtn4ImageHover, &s.strBtn4ImagePressed },
          &s.strBtn4Rect },
    };
    for (int n = 0; n < ButtonCount; ++n) {
        for (int st = 0; st < 3; ++st) {
            m_buttonSource[n][st] = SFParseRect(*buttons[n].cuts[st]);
            // Only a dialog loads caption button images.
            if (dialog)
                m_buttonImage[n][st] = SFLoadSkinPixmap(*buttons[n].images[st]);
        }
        m_buttonHit[n] = SFParseRect(*buttons[n].hit);
    }
    m_title = SFParseRect(s.strTitleRect);

    if (dialog) {
        if (s.strTitleAlign == L"center")
            m_titleAlign = 1;
        else if (s.strTitleAlign == L"right")
            m_titleAlign = 2;
        else
            m_titleAlign = 0;
        m_titleColor = SFParseColor(s.strTitleColor);
    }
}

void CSFFrameSkin::Release()
{
    for (auto& images : m_buttonImage) {
        for (auto& image : images)
            image.reset();
    }
    m_pFrame.reset();
    m_pBackground.reset();
}

QSize CSFFrameSkin::FrameSize() const
{
    return m_pFrame ? m_pFrame->size() : QSize(0, 0);
}

QRect CSFFrameSkin::ButtonHitRect(int n) const
{
    if (n < 1 || n > ButtonCount)
        return QRect(QPoint(0, 0), QPoint(-1, -1));
    return m_buttonHit[n - 1];
}

QPixmap CSFFrameSkin::Compose(int W, int H, bool allowShortcut) const
{
    if (!m_pFrame || W <= 0 || H <= 0)
        return QPixmap();
    const QPixmap& frame = *m_pFrame;
    if (allowShortcut && W <= frame.width() && H <= frame.height())
        return frame.copy(0, 0, W, H);

    QPixmap target(W, H);
    target.fill(Qt::transparent);
    QPainter p(&target);
    if (m_pBackground)
        p.drawPixmap(QRect(0, 0, W, H), *m_pBackground);
    else
        p.fillRect(QRect(0, 0, W, H), m_bgColor);

    const QRect& tl = m_pieces[TopLeft];
    const QRect& top = m_pieces[Top];
    const QRect& tr = m_pieces[TopRight];
    const QRect& lt = m_pieces[LeftTop];
    const QRect& left = m_pieces[Left];
    const QRect& lb = m_pieces[LeftBottom];
    const QRect& bl = m_pieces[BottomLeft];
    const QRect& bottom = m_pieces[Bottom];
    const QRect& br = m_pieces[BottomRight];
    const QRect& rb = m_pieces[RightBottom];
    const QRect& right = m_pieces[Right];
    const QRect& rt = m_pieces[RightTop];
    const Pos T = PieceHeight(tl);
    const Pos B = PieceHeight(bl);

    DrawPiece(p, frame, 0, 0, tl);
    if (PieceWidth(top) > 0) {
        for (Pos x = PieceWidth(tl); x < W - PieceWidth(tr); x += PieceWidth(top))
            DrawPiece(p, frame, x, 0, top);
    }
    DrawPiece(p, frame, W - PieceWidth(tr), 0, tr);

    DrawPiece(p, frame, 0, T, lt);
    if (PieceHeight(left) > 0) {
        for (Pos y = T + PieceHeight(lt); y < H - PieceHeight(lb) - B; y += PieceHeight(left))
            DrawPiece(p, frame, 0, y, left);
    }
    DrawPiece(p, frame, 0, H - PieceHeight(lb) - B, lb);

    DrawPiece(p, frame, W - PieceWidth(rt), T, rt);
    if (PieceHeight(right) > 0) {
        for (Pos y = T + PieceHeight(rt); y < H - PieceHeight(rb) - B; y += PieceHeight(right))
            DrawPiece(p, frame, W - PieceWidth(right), y, right);
    }
    DrawPiece(p, frame, W - PieceWidth(rb), H - PieceHeight(rb) - B, rb);

    DrawPiece(p, frame, 0, H - PieceHeight(bl), bl);
    if (PieceWidth(bottom) > 0) {
        for (Pos x = PieceWidth(bl); x < W - PieceWidth(br); x += PieceWidth(bottom))
            DrawPiece(p, frame, x, H - PieceHeight(bottom), bottom);
    }
    DrawPiece(p, frame, W - PieceWidth(br), H - PieceHeight(br), br);
    return target;
}

void CSFFrameSkin::AdjustForResize(int oldWidth, int newWidth)
{
    m_title = QRect(0, 0, newWidth, m_title.height());
    const int delta = oldWidth >= 0 ? newWidth - oldWidth : 0;
    for (QRect& hit : m_buttonHit) {
        if (!IsValidRect(hit))
            continue;
        Shift(hit, hit.left() >= 0 ? delta : newWidth);
    }
}

int CSFFrameSkin::ButtonAt(const QPoint& pt) const
{
    for (int n = 0; n < ButtonCount; ++n) {
        if (RectHolds(m_buttonHit[n], pt))
            return n + 1;
    }
    return 0;
}

void CSFFrameSkin::PaintButtons(QPixmap& target, int currentButton, int currentState) const
{
    if (target.isNull())
        return;
    QPainter p(&target);
    for (int n = 0; n < ButtonCount; ++n) {
        const QRect& hit = m_buttonHit[n];
        const bool hasNormalImage = m_buttonImage[n][Normal] != nullptr;
        if (!IsValidRect(hit) && !hasNormalImage)
            continue;
        int state = Normal;
        if (currentButton == n + 1 && (currentState == Hover || currentState == Pressed))
            state = currentState;
        // Button 1 is tested by its hover image, the others by their normal one.
        const bool hasImage = n == 0 ? m_buttonImage[n][Hover] != nullptr : hasNormalImage;
        if (hasImage) {
            if (m_buttonImage[n][state] && IsValidRect(hit))
                p.drawPixmap(hit, *m_buttonImage[n][state]);
        } else if (m_pFrame && IsValidRect(m_buttonSource[n][state])) {
            p.drawPixmap(hit.topLeft(), *m_pFrame, m_buttonSource[n][state]);
        }
    }
}

QBitmap CSFFrameSkin::RoundMask(const QSize& size, int rx, int ry)
{
    QBitmap mask(size);
    if (mask.isNull())
        return mask;
    // Without corners the path covers every pixel: painting it antialiased
    // into a bitmap would only cost a conversion of the whole window.
    if (rx <= 0 && ry <= 0) {
        mask.fill(Qt::color1);
        return mask;
    }
    mask.fill(Qt::color0);
    const qreal w = size.width();
    const qreal h = size.height();
    const qreal dx = 2.0 * rx;
    const qreal dy = 2.0 * ry;
    QPainterPath path;
    path.moveTo(rx, 0);
    path.lineTo(w - rx, 0);
    path.arcTo(QRectF(w - dx, 0, dx, dy), 90, -90);
    path.lineTo(w, h - ry);
    path.arcTo(QRectF(w - dx, h - dy, dx, dy), 0, -90);
    path.lineTo(rx, h);
    path.arcTo(QRectF(0, h - dy, dx, dy), 270, -90);
    path.lineTo(0, ry);
    path.arcTo(QRectF(0, 0, dx, dy), 180, -90);
    path.closeSubpath();
    QPainter p(&mask);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::color1);
    p.drawPath(path);
    return mask;
}

bool CSFFrameSkin::IsValidRect(const QRect& rect)
{
    return rect.left() <= rect.right() && rect.top() <= rect.bottom();
}

bool CSFFrameSkin::RectHolds(const QRect& rect, const QPoint& pt)
{
    return IsValidRect(rect) && pt.x() >= rect.left() && pt.x() <= rect.right() &&
           pt.y() >= rect.top() && pt.y() <= rect.bottom();
}
