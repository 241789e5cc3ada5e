#include "sf/qt/QTVideoWindowLayout.h"

#include "sf/SFVideoWindow.h"

#include <QList>
#include <QStringView>
#include <algorithm>
#include <climits>
#include <numeric>
#include <vector>

namespace {

int ToInt(QStringView text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? value : 0;
}

// Up to count numbers joined by ":"; missing ones read as 0.
void ReadNumbers(QStringView entry, int* numbers, int count)
{
    std::fill(numbers, numbers + count, 0);
    int i = 0;
    for (QStringView part : entry.tokenize(u':')) {
        if (i >= count)
            break;
        numbers[i++] = ToInt(part);
    }
}

bool InGrid(int n)
{
    return n >= 1 && n <= SF_VIDEOWINDOW_MAX_GRID;
}

// Sets of cells joined by inactive separators.
class CCellSets {
public:
    explicit CCellSets(int count) : m_parent(static_cast<size_t>(count))
    {
        std::iota(m_parent.begin(), m_parent.end(), 0);
    }
    int Find(int cell)
    {
        while (m_parent[static_cast<size_t>(cell)] != cell) {
            int& up = m_parent[static_cast<size_t>(cell)];
            up = m_parent[static_cast<size_t>(up)];
            cell = up;
        }
        return cell;
    }
    void Join(int a, int b)
    {
        a = Find(a);
        b = Find(b);
        if (a != b)
            m_parent[static_cast<size_t>(std::max(a, b))] = std::min(a, b);
    }

private:
    std::vector<int> m_parent;
};

struct SubWindow {
    CQTVideoWindowLayout::Rect rect;
    int firstCell = 0;
    int textIndex = INT_MAX;
};

// A separator covers the ten pixels around its boundary, along the cell beside it.
void PlaceSeparator(CQTVideoWindowLayout::Separator& s, int left, int top, int right, int bottom)
{
    s.left = left;
    s.top = top;
    s.right = right;
    s.bottom = bottom;
}

} // namespace

CQTVideoWindowLayout::CQTVideoWindowLayout()
    : m_nRows(0), m_nCols(0), m_nCount(0), m_nWidth(0), m_nHeight(0)
{
}

CQTVideoWindowLayout::~CQTVideoWindowLayout()
{
}

int CQTVideoWindowLayout::Parse(const QString& text)
{
    if (text.size() > kMaxTextLength || text.count(u'/') != 5)
        return 0;
    const QList<QStringView> parts = QStringView(text).split(u'/');
    const int rows = ToInt(parts[0]);
    const int cols = ToInt(parts[1]);
    if (!InGrid(rows) || !InGrid(cols))
        return 0;

    int size[2];
    ReadNumbers(parts[3], size, 2);

    QMap<int, Separator> separators;
    if (!parts[4].isEmpty()) {
        int entries = 0;
        for (QStringView entry : parts[4].tokenize(u'-')) {
            if (++entries > kMaxSeparatorEntries)
                return 0;
            int n[6];
            ReadNumbers(entry, n, 6);
            Separator& s = separators[n[0]];
            s.nFlag = n[1];
            s.left = n[2];
            s.top = n[3];
            s.right = n[4];
            s.bottom = n[5];
        }
    }

    QMap<int, Rect> rects;
    if (!parts[5].isEmpty()) {
        int index = 0;
        for (QStringView entry : parts[5].tokenize(u'-')) {
            if (index >= kMaxRectEntries)
                return 0;
            int n[4];
            ReadNumbers(entry, n, 4);
            Rect& r = rects[index++];
            r.left = n[0];
            r.top = n[1];
            r.right = n[2];
            r.bottom = n[3];
        }
    }

    m_nRows = rows;
    m_nCols = cols;
    m_nCount = ToInt(parts[2]);
    m_nWidth = size[0];
    m_nHeight = size[1];
    m_mapSeparators.swap(separators);
    m_mapRects.swap(rects);
    m_mapCells.clear();
    return 1;
}

int CQTVideoWindowLayout::Format(QString& out) const
{
    out = QStringLiteral("%1/%2/%3/%4:%5/")
              .arg(m_nRows)
              .arg(m_nCols)
              .arg(m_nCount)
              .arg(m_nWidth)
              .arg(m_nHeight);
    bool first = true;
    for (auto it = m_mapSeparators.cbegin(); it != m_mapSeparators.cend(); ++it) {
        if (!first)
            out += QLatin1Char('-');
        first = false;
        const Separator& s = it.value();
        out += QStringLiteral("%1:%2:%3:%4:%5:%6")
                   .arg(it.key())
                   .arg(s.nFlag)
                   .arg(s.left)
                   .arg(s.top)
                   .arg(s.right)
                   .arg(s.bottom);
    }
    out += QLatin1Char('/');
    first = true;
    for (const Rect& r : m_mapRects) {
        if (!first)
            out += QLatin1Char('-');
        first = false;
        out += QStringLiteral("%1:%2:%3:%4").arg(r.left).arg(r.top).arg(r.right).arg(r.bottom);
    }
    return 1;
}

int CQTVideoWindowLayout::Resize(int width, int height)
{
    if (width == m_nWidth && height == m_nHeight)
        return 0;
    const int oldWidth = m_nWidth;
    const int oldHeight = m_nHeight;
    m_nWidth = width;
    m_nHeight = height;
    Recompute(oldWidth, oldHeight);
    return 1;
}

void CQTVideoWindowLayout::Rebuild()
{
    Recompute(m_nWidth, m_nHeight);
}

int CQTVideoWindowLayout::SubWindowCount() const
{
    const int limit = m_nRows * m_nCols;
    int n = 0;
    while (n < limit && m_mapRects.contains(n))
        ++n;
    return n;
}

void CQTVideoWindowLayout::ComputeCells()
{
    m_mapCells.clear();
    const int width = std::max(0, m_nWidth);
    const int height = std::max(0, m_nHeight);
    const int w = width / m_nCols;
    const int h = height / m_nRows;
    // The last column and row take what the truncation leaves over.
    const int restW = width % m_nCols;
    const int restH = height % m_nRows;
    for (int r = 0; r < m_nRows; ++r) {
        for (int c = 0; c < m_nCols; ++c) {
            Rect cell;
            cell.left = c * w;
            cell.top = r * h;
            cell.right = cell.left + w - 1 + (c == m_nCols - 1 ? restW : 0);
            cell.bottom = cell.top + h - 1 + (r == m_nRows - 1 ? restH : 0);
            m_mapCells.insert(r * m_nCols + c, cell);

            // A missing separator keeps its cells apart.
            if (c < m_nCols - 1)
                PlaceSeparator(m_mapSeparators[VerticalKey(r, c)], (c + 1) * w - 5, cell.top,
                               (c + 1) * w + 4, cell.bottom);
            if (r < m_nRows - 1)
                PlaceSeparator(m_mapSeparators[HorizontalKey(r, c)], cell.left, (r + 1) * h - 5,
                               cell.right, (r + 1) * h + 4);
        }
    }
}

int CQTVideoWindowLayout::CellOfRect(const Rect& rect, int oldWidth, int oldHeight) const
{
    const qint64 w = oldWidth / m_nCols;
    const qint64 h = oldHeight / m_nRows;
    if (w <= 0 || h <= 0)
        return -1;
    // Nearest cell boundary, so that a corner a pixel off still counts.
    const qint64 col = std::clamp<qint64>((rect.left + w / 2) / w, 0, m_nCols - 1);
    const qint64 row = std::clamp<qint64>((rect.top + h / 2) / h, 0, m_nRows - 1);
    return static_cast<int>(row * m_nCols + col);
}

void CQTVideoWindowLayout::Recompute(int oldWidth, int oldHeight)
{
    if (m_nRows < 1 || m_nCols < 1) {
        m_mapCells.clear();
        m_mapRects.clear();
        return;
    }
    ComputeCells();

    const int cells = m_nRows * m_nCols;
    CCellSets sets(cells);
    for (int cell = 0; cell < cells; ++cell) {
        const int r = cell / m_nCols;
        const int c = cell % m_nCols;
        if (c < m_nCols - 1 && m_mapSeparators.value(VerticalKey(r, c)).nFlag == 0)
            sets.Join(cell, cell + 1);
        if (r < m_nRows - 1 && m_mapSeparators.value(HorizontalKey(r, c)).nFlag == 0)
            sets.Join(cell, cell + m_nCols);
    }

    // The root of a set is its first cell, so sets come in cell order.
    std::vector<int> windowOfRoot(static_cast<size_t>(cells), -1);
    std::vector<SubWindow> windows;
    for (int cell = 0; cell < cells; ++cell) {
        const int root = sets.Find(cell);
        int& index = windowOfRoot[static_cast<size_t>(root)];
        const Rect& rc = m_mapCells[cell];
        if (index < 0) {
            index = static_cast<int>(windows.size());
            SubWindow window;
            window.rect = rc;
            window.firstCell = cell;
            windows.push_back(window);
            continue;
        }
        Rect& u = windows[static_cast<size_t>(index)].rect;
        u.left = std::min(u.left, rc.left);
        u.top = std::min(u.top, rc.top);
        u.right = std::max(u.right, rc.right);
        u.bottom = std::max(u.bottom, rc.bottom);
    }

    // A sub window keeps the index of the entry that lay over its first
    // cell before, so indexes stay those of the layout text.
    for (auto it = m_mapRects.cbegin(); it != m_mapRects.cend(); ++it) {
        const int cell = CellOfRect(it.value(), oldWidth, oldHeight);
        if (cell < 0)
            continue;
        SubWindow& window =
            windows[static_cast<size_t>(windowOfRoot[static_cast<size_t>(sets.Find(cell))])];
        window.textIndex = std::min(window.textIndex, it.key());
    }
    std::stable_sort(windows.begin(), windows.end(), [](const SubWindow& a, const SubWindow& b) {
        return a.textIndex < b.textIndex;
    });

    m_mapRects.clear();
    for (size_t i = 0; i < windows.size(); ++i)
        m_mapRects.insert(static_cast<int>(i), windows[i].rect);
}
