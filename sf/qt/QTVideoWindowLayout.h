#pragma once
// The grid model behind the video window: cells, the separators between
// them and the sub windows that cells joined by inactive separators form.
// Keys: horizontal separator under row i over column j is i * 256 + j;
// vertical separator right of column k beside row r is 65536 + r * 256 + k.

#include <QMap>
#include <QString>

class CQTVideoWindowLayout {
public:
    struct Separator {
        int nFlag = 1; // 1 keeps the two cells apart, 0 joins them
        int left = 0;
        int top = 0;
        int right = -1;
        int bottom = -1;
    };
    struct Rect {
        int left = 0;
        int top = 0;
        int right = -1;
        int bottom = -1;
    };

    // Texts longer than this, or with more entries, are refused unread.
    static constexpr int kMaxTextLength = 1 << 20;
    static constexpr int kMaxSeparatorEntries = 2 * 64 * 64;
    static constexpr int kMaxRectEntries = 64 * 64;

    CQTVideoWindowLayout();
    virtual ~CQTVideoWindowLayout();

    // 1, or 0 with nothing changed when the text is not six fields joined by
    // "/" or its grid is not 1 to 64 rows and columns. Numbers that do not
    // parse read as 0.
    int Parse(const QString& text);
    int Format(QString& out) const;
    // 0 when the size is unchanged; otherwise separators and sub windows
    // are recomputed in pixels of the new size and 1 is returned.
    int Resize(int width, int height);
    // Recomputes separators and sub windows for the current size.
    void Rebuild();

    static int HorizontalKey(int row, int col) { return row * 256 + col; }
    static int VerticalKey(int row, int col) { return 65536 + row * 256 + col; }

    int Rows() const { return m_nRows; }
    int Columns() const { return m_nCols; }
    int Count() const { return m_nCount; }
    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }
    const QMap<int, Separator>& Separators() const { return m_mapSeparators; }
    const QMap<int, Rect>& Rects() const { return m_mapRects; }
    // Sub windows in index order from 0, as many as there are without a gap
    // and at most rows times columns.
    int SubWindowCount() const;

private:
    void Recompute(int oldWidth, int oldHeight);
    void ComputeCells();
    int CellOfRect(const Rect& rect, int oldWidth, int oldHeight) const;

    int m_nRows;
    int m_nCols;
    int m_nCount;
    int m_nWidth;
    int m_nHeight;
    QMap<int, Separator> m_mapSeparators;
    QMap<int, Rect> m_mapRects;
    // Cell rectangles in pixels by cell number (row * columns + column).
    QMap<int, Rect> m_mapCells;
};
