#include "sf/SFVideoWindow.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace {

const int kSpaceWidth = 400;
const int kSpaceHeight = 300;

// Cells joined into one sub window.
struct Block {
    int row, col, rows, cols;
};

struct ReadyLayout {
    int rows, cols;
    std::vector<Block> blocks;
};

class CLayoutWriter {
public:
    CLayoutWriter(int rows, int cols, const std::vector<Block>& blocks)
        : m_rows(rows), m_cols(cols), m_w(kSpaceWidth / cols), m_h(kSpaceHeight / rows),
          m_owner(static_cast<size_t>(rows * cols), -1)
    {
        for (size_t b = 0; b < blocks.size(); ++b) {
            const Block& k = blocks[b];
            for (int r = k.row; r < k.row + k.rows; ++r)
                for (int c = k.col; c < k.col + k.cols; ++c)
                    m_owner[static_cast<size_t>(r * cols + c)] = static_cast<int>(b);
        }
        m_blocks = blocks;
    }

    std::string Text() const
    {
        int count = m_rows * m_cols;
        for (const Block& k : m_blocks)
            count -= k.rows * k.cols - 1;
        std::string out =
            Format("%d/%d/%d/%d:%d/", m_rows, m_cols, count, kSpaceWidth, kSpaceHeight);
        out += Separators();
        out += '/';
        out += Rectangles();
        return out;
    }

private:
    static std::string Format(const char* format, int a, int b, int c, int d, int e = 0, int f = 0)
    {
        char buffer[96];
        std::snprintf(buffer, sizeof buffer, format, a, b, c, d, e, f);
        return buffer;
    }

    bool Joined(int r1, int c1, int r2, int c2) const
    {
        const int a = m_owner[static_cast<size_t>(r1 * m_cols + c1)];
        return a >= 0 && a == m_owner[static_cast<size_t>(r2 * m_cols + c2)];
    }

    // Under row i, columns from the last to the first.
    void Horizontal(int i, std::string& out) const
    {
        for (int j = m_cols - 1; j >= 0; --j) {
            const int flag = Joined(i, j, i + 1, j) ? 0 : 1;
            // A minus sign would split the entry: very thin rows start at 0.
            Append(out, Format("%d:%d:%d:%d:%d:%d", i * 256 + j, flag, j * m_w,
                               std::max(0, (i + 1) * m_h - 5), (j + 1) * m_w, (i + 1) * m_h + 5));
        }
    }

    // Beside row r, columns from the last to the first.
    void Vertical(int r, std::string& out) const
    {
        for (int k = m_cols - 2; k >= 0; --k) {
            const int flag = Joined(r, k, r, k + 1) ? 0 : 1;
            Append(out, Format("%d:%d:%d:%d:%d:%d", 65536 + r * 256 + k, flag,
                               std::max(0, (k + 1) * m_w - 5), r * m_h, (k + 1) * m_w + 5,
                               (r + 1) * m_h));
        }
    }

    // The order of the lines is that of the texts the control has always
    // shipped: the first horizontal line, the vertical lines from the
    // bottom row up to the second, the other horizontal lines, and the
    // vertical line of the top row.
    std::string Separators() const
    {
        std::string out;
        if (m_rows > 1)
            Horizontal(0, out);
        for (int r = m_rows - 1; r >= 1; --r)
            Vertical(r, out);
        for (int i = 1; i < m_rows - 1; ++i)
            Horizontal(i, out);
        Vertical(0, out);
        return out;
    }

    // One entry per sub window, by its top left cell from the last to the first.
    std::string Rectangles() const
    {
        std::string out;
        for (int cell = m_rows * m_cols - 1; cell >= 0; --cell) {
            const int r = cell / m_cols;
            const int c = cell % m_cols;
            const int b = m_owner[static_cast<size_t>(cell)];
            int rows = 1;
            int cols = 1;
            if (b >= 0) {
                const Block& k = m_blocks[static_cast<size_t>(b)];
                if (k.row != r || k.col != c)
                    continue;
                rows = k.rows;
                cols = k.cols;
            }
            Append(out,
                   Format("%d:%d:%d:%d", c * m_w, r * m_h, (c + cols) * m_w, (r + rows) * m_h));
        }
        return out;
    }

    static void Append(std::string& out, const std::string& entry)
    {
        if (!out.empty())
            out += '-';
        out += entry;
    }

    int m_rows, m_cols, m_w, m_h;
    std::vector<int> m_owner;
    std::vector<Block> m_blocks;
};

const std::array<std::string, 10>& ReadyTexts()
{
    static const std::array<std::string, 10> texts = [] {
        const ReadyLayout ready[10] = {
            { 1, 1, {} },
            { 2, 2, {} },
            { 3, 3, { { 0, 0, 2, 2 } } },
            { 4, 4, { { 0, 0, 3, 3 } } },
            { 3, 3, {} },
            { 4, 4, { { 1, 1, 2, 2 } } },
            { 4, 4, {} },
            { 6, 6, { { 0, 0, 3, 3 }, { 0, 3, 3, 3 } } },
            { 5, 5, {} },
            { 6, 6, {} },
        };
        std::array<std::string, 10> out;
        for (size_t i = 0; i < out.size(); ++i)
            out[i] = CLayoutWriter(ready[i].rows, ready[i].cols, ready[i].blocks).Text();
        return out;
    }();
    return texts;
}

} // namespace

const char* CSFVideoWindow::GetDefaultLayout(DEFAULT_LAYOUT layout)
{
    const int value = static_cast<int>(layout);
    if (value < 0 || value > 9)
        return nullptr;
    return ReadyTexts()[static_cast<size_t>(value)].c_str();
}

std::string CSFVideoWindow::GetGridLayout(int rows, int columns)
{
    if (rows < 1 || columns < 1 || rows > SF_VIDEOWINDOW_MAX_GRID ||
        columns > SF_VIDEOWINDOW_MAX_GRID)
        return std::string();
    return CLayoutWriter(rows, columns, {}).Text();
}
