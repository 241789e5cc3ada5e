// The layout language of the video window: parsing, writing, the ready
// layouts against the grid rule, and resizing into pixels.

#include "QTVideoWindowLayout.h"
#include "SFVideoWindow.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

using Layout = CQTVideoWindowLayout;

QString Text(const char* s)
{
    return QString::fromLatin1(s);
}

std::string Formatted(const Layout& layout)
{
    QString out;
    EXPECT_EQ(layout.Format(out), 1);
    return out.toStdString();
}

std::tuple<int, int, int, int> Tuple(const Layout::Rect& r)
{
    return std::make_tuple(r.left, r.top, r.right, r.bottom);
}

const char* kOne = "1/1/1/400:300//0:0:400:300";

TEST(VideoWindowLayout, ParsesAndFormatsTheSingleWindow)
{
    Layout layout;
    ASSERT_EQ(layout.Parse(Text(kOne)), 1);
    EXPECT_EQ(layout.Rows(), 1);
    EXPECT_EQ(layout.Columns(), 1);
    EXPECT_EQ(layout.Count(), 1);
    EXPECT_EQ(layout.Width(), 400);
    EXPECT_EQ(layout.Height(), 300);
    EXPECT_TRUE(layout.Separators().isEmpty());
    ASSERT_EQ(layout.Rects().size(), 1);
    EXPECT_EQ(Tuple(layout.Rects()[0]), std::make_tuple(0, 0, 400, 300));
    EXPECT_EQ(Formatted(layout), kOne);

    // Formatting keeps every separator field.
    const char* two = "1/2/2/400:300/65536:0:195:0:205:300/200:0:400:300-0:0:200:300";
    ASSERT_EQ(layout.Parse(Text(two)), 1);
    EXPECT_EQ(Formatted(layout), two);
}

TEST(VideoWindowLayout, NoReadyLayoutOutsideZeroToNine)
{
    EXPECT_EQ(CSFVideoWindow::GetDefaultLayout(static_cast<DEFAULT_LAYOUT>(10)), nullptr);
    EXPECT_EQ(CSFVideoWindow::GetDefaultLayout(static_cast<DEFAULT_LAYOUT>(-1)), nullptr);
}

// A block of cells that forms one sub window: row, column, rows, columns.
struct Block {
    int row, col, rows, cols;
    bool operator<(const Block& o) const
    {
        return std::tie(row, col, rows, cols) < std::tie(o.row, o.col, o.rows, o.cols);
    }
    bool operator==(const Block& o) const { return !(*this < o) && !(o < *this); }
};

struct Ready {
    int value;
    const char* head;
    std::set<Block> joined;
};

class ReadyLayout : public testing::TestWithParam<Ready> {};

// Every ready layout against the grid rule: all separators present at the
// rule's places, flags 0 exactly inside a joined block, and rectangles that
// tile the cells with the joined blocks of the table; then resized.
TEST_P(ReadyLayout, FollowsTheGridRule)
{
    const Ready& ready = GetParam();
    const char* text = CSFVideoWindow::GetDefaultLayout(static_cast<DEFAULT_LAYOUT>(ready.value));
    ASSERT_NE(text, nullptr);
    ASSERT_EQ(std::string(text).rfind(ready.head, 0), 0u) << text;

    Layout layout;
    ASSERT_EQ(layout.Parse(Text(text)), 1);
    const int rows = layout.Rows();
    const int cols = layout.Columns();
    const int w = 400 / cols;
    const int h = 300 / rows;

    // Cell to sub window, from the rectangles.
    std::vector<int> owner(static_cast<size_t>(rows * cols), -1);
    std::set<Block> joined;
    for (auto it = layout.Rects().cbegin(); it != layout.Rects().cend(); ++it) {
        const Layout::Rect& r = it.value();
        ASSERT_EQ(r.left % w, 0);
        ASSERT_EQ(r.top % h, 0);
        ASSERT_EQ(r.right % w, 0);
        ASSERT_EQ(r.bottom % h, 0);
        const Block b{ r.top / h, r.left / w, (r.bottom - r.top) / h, (r.right - r.left) / w };
        if (b.rows * b.cols > 1)
            joined.insert(b);
        for (int y = b.row; y < b.row + b.rows; ++y) {
            for (int x = b.col; x < b.col + b.cols; ++x) {
                ASSERT_EQ(owner[static_cast<size_t>(y * cols + x)], -1) << "overlap";
                owner[static_cast<size_t>(y * cols + x)] = it.key();
            }
        }
    }
    for (int o : owner)
        EXPECT_GE(o, 0) << "uncovered cell";
    EXPECT_EQ(layout.Rects().size(), layout.Count());
    EXPECT_EQ(joined, ready.joined);

    ASSERT_EQ(layout.Separators().size(), (rows - 1) * cols + rows * (cols - 1));
    for (int i = 0; i + 1 < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            const int key = Layout::HorizontalKey(i, j);
            ASSERT_TRUE(layout.Separators().contains(key)) << key;
            const Layout::Separator& s = layout.Separators()[key];
            EXPECT_EQ(std::make_tuple(s.left, s.top, s.right, s.bottom),
                      std::make_tuple(j * w, (i + 1) * h - 5, (j + 1) * w, (i + 1) * h + 5))
                << key;
            const bool same = owner[static_cast<size_t>(i * cols + j)] ==
                              owner[static_cast<size_t>((i + 1) * cols + j)];
            EXPECT_EQ(s.nFlag, same ? 0 : 1) << key;
        }
    }
    for (int r = 0; r < rows; ++r) {
        for (int k = 0; k + 1 < cols; ++k) {
            const int key = Layout::VerticalKey(r, k);
            ASSERT_TRUE(layout.Separators().contains(key)) << key;
            const Layout::Separator& s = layout.Separators()[key];
            EXPECT_EQ(std::make_tuple(s.left, s.top, s.right, s.bottom),
                      std::make_tuple((k + 1) * w - 5, r * h, (k + 1) * w + 5, (r + 1) * h))
                << key;
            const bool same = owner[static_cast<size_t>(r * cols + k)] ==
                              owner[static_cast<size_t>(r * cols + k + 1)];
            EXPECT_EQ(s.nFlag, same ? 0 : 1) << key;
        }
    }

    // Resizing rebuilds the same shape: joined blocks come out as single windows.
    ASSERT_EQ(layout.Resize(450, 430), 1);
    EXPECT_EQ(layout.SubWindowCount(), layout.Count());
    EXPECT_EQ(layout.Rects().size(), layout.Count());
}

INSTANTIATE_TEST_SUITE_P(
    All, ReadyLayout,
    testing::Values(Ready{ 0, "1/1/1/400:300/", {} }, Ready{ 1, "2/2/4/400:300/", {} },
                    Ready{ 2, "3/3/6/400:300/", { { 0, 0, 2, 2 } } },
                    Ready{ 3, "4/4/8/400:300/", { { 0, 0, 3, 3 } } },
                    Ready{ 4, "3/3/9/400:300/", {} },
                    Ready{ 5, "4/4/13/400:300/", { { 1, 1, 2, 2 } } },
                    Ready{ 6, "4/4/16/400:300/", {} },
                    Ready{ 7, "6/6/20/400:300/", { { 0, 0, 3, 3 }, { 0, 3, 3, 3 } } },
                    Ready{ 8, "5/5/25/400:300/", {} }, Ready{ 9, "6/6/36/400:300/", {} }),
    [](const testing::TestParamInfo<Ready>& info) { return std::to_string(info.param.value); });

TEST(VideoWindowLayout, LastColumnAndRowTakeTheRemainder)
{
    Layout layout;
    ASSERT_EQ(layout.Parse(Text(CSFVideoWindow::GetDefaultLayout(DEFAULT_LAYOUT_9))), 1);
    ASSERT_EQ(layout.Resize(100, 50), 1);
    std::set<std::pair<int, int>> columns; // left, width
    std::set<std::pair<int, int>> rows;
    for (const Layout::Rect& r : layout.Rects()) {
        columns.insert({ r.left, r.right - r.left + 1 });
        rows.insert({ r.top, r.bottom - r.top + 1 });
    }
    EXPECT_EQ(columns, (std::set<std::pair<int, int>>{ { 0, 33 }, { 33, 33 }, { 66, 34 } }));
    EXPECT_EQ(rows, (std::set<std::pair<int, int>>{ { 0, 16 }, { 16, 16 }, { 32, 18 } }));

    // Separators lie from five before the boundary to four after it; the
    // ones of the last column and row reach its far edge.
    const Layout::Separator& v = layout.Separators()[Layout::VerticalKey(2, 1)];
    EXPECT_EQ(std::make_tuple(v.left, v.top, v.right, v.bottom), std::make_tuple(61, 32, 70, 49));
    const Layout::Separator& hz = layout.Separators()[Layout::HorizontalKey(1, 2)];
    EXPECT_EQ(std::make_tuple(hz.left, hz.top, hz.right, hz.bottom),
              std::make_tuple(66, 27, 99, 36));
}

class MalformedLayout : public testing::TestWithParam<std::string> {};

TEST_P(MalformedLayout, IsRefusedAndChangesNothing)
{
    Layout layout;
    ASSERT_EQ(layout.Parse(Text(kOne)), 1);
    EXPECT_EQ(layout.Parse(QString::fromStdString(GetParam())), 0);
    EXPECT_EQ(Formatted(layout), kOne);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MalformedLayout,
    testing::Values("", "1/1/1/400:300/0:0:400:300", "0/1/1/400:300//", "65/1/1/400:300//",
                    "1/1/1/400:300/" + std::string(CQTVideoWindowLayout::kMaxTextLength, '0') + "/",
                    "1/1/1/400:300//" + [] {
                        std::string s = "0";
                        for (int i = 0; i < CQTVideoWindowLayout::kMaxRectEntries; ++i)
                            s += "-0";
                        return s;
                    }()));

TEST(VideoWindowLayout, LargestGridResizesQuickly)
{
    const std::string grid = CSFVideoWindow::GetGridLayout(64, 64);
    ASSERT_FALSE(grid.empty());
    EXPECT_TRUE(CSFVideoWindow::GetGridLayout(65, 1).empty());
    Layout layout;
    ASSERT_EQ(layout.Parse(QString::fromStdString(grid)), 1);
    ASSERT_EQ(layout.Resize(1920, 1080), 1);
    EXPECT_EQ(layout.SubWindowCount(), 64 * 64);
}

} // namespace
