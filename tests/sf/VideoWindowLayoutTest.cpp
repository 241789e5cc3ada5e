// The layout language of the video window: parsing, writing and resizing
// into pixels.

#include "sf/SFVideoWindow.h"
#include "sf/qt/QTVideoWindowLayout.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>

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

TEST(VideoWindowLayout, LastColumnAndRowTakeTheRemainder)
{
    Layout layout;
    ASSERT_EQ(layout.Parse(QString::fromStdString(CSFVideoWindow::GetGridLayout(3, 3))), 1);
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

INSTANTIATE_TEST_SUITE_P(Texts, MalformedLayout,
                         testing::Values(
                             "", "1/1/1/400:300/0:0:400:300", "0/1/1/400:300//", "65/1/1/400:300//",
                             "1/1/1/400:300/" +
                                 std::string(CQTVideoWindowLayout::kMaxTextLength, '0') + "/",
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
