// CSFPoint, CSFSize and CSFRect: Win32 results on ordinary and edge rectangles.

#include "SFPoint.h"
#include "SFRect.h"
#include "SFSize.h"

#include <climits>
#include <gtest/gtest.h>
#include <ostream>

namespace {

struct R {
    int l, t, r, b;
};

bool Same(const tagRECT& a, R b)
{
    return a.left == b.l && a.top == b.t && a.right == b.r && a.bottom == b.b;
}

std::ostream& operator<<(std::ostream& os, R r)
{
    return os << "(" << r.l << "," << r.t << "," << r.r << "," << r.b << ")";
}

::testing::AssertionResult RectIs(const tagRECT& a, R b)
{
    if (Same(a, b))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
        << "got " << R{ a.left, a.top, a.right, a.bottom } << ", want " << b;
}

struct BinaryCase {
    R a, b;
    bool ok;
    R out;
};

class Intersect : public testing::TestWithParam<BinaryCase> {
};

TEST_P(Intersect, MatchesWin32)
{
    const BinaryCase c = GetParam();
    CSFRect a(c.a.l, c.a.t, c.a.r, c.a.b), b(c.b.l, c.b.t, c.b.r, c.b.b);
    CSFRect out(7, 7, 7, 7);
    EXPECT_EQ(out.IntersectRect(a, b), c.ok);
    EXPECT_TRUE(RectIs(out, c.out));
    EXPECT_TRUE(RectIs(a & b, c.out));
    a &= b;
    EXPECT_TRUE(RectIs(a, c.out));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Intersect,
    testing::Values(BinaryCase{ { 0, 0, 10, 10 }, { 5, 5, 15, 15 }, true, { 5, 5, 10, 10 } },
                    // Sharing an edge is no overlap: right is exclusive.
                    BinaryCase{ { 0, 0, 10, 10 }, { 10, 0, 20, 10 }, false, { 0, 0, 0, 0 } },
                    BinaryCase{ { 0, 0, 10, 10 }, { 3, 3, 3, 8 }, false, { 0, 0, 0, 0 } },
                    BinaryCase{ { 0, 0, 10, 10 }, { 2, 2, 4, 4 }, true, { 2, 2, 4, 4 } },
                    BinaryCase{ { 10, 10, 0, 0 }, { 0, 0, 10, 10 }, false, { 0, 0, 0, 0 } }));

class Union : public testing::TestWithParam<BinaryCase> {
};

TEST_P(Union, MatchesWin32)
{
    const BinaryCase c = GetParam();
    CSFRect a(c.a.l, c.a.t, c.a.r, c.a.b), b(c.b.l, c.b.t, c.b.r, c.b.b);
    CSFRect out;
    EXPECT_EQ(out.UnionRect(a, b), c.ok);
    EXPECT_TRUE(RectIs(out, c.out));
    EXPECT_TRUE(RectIs(a | b, c.out));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Union,
    testing::Values(BinaryCase{ { 0, 0, 10, 10 }, { 5, 5, 15, 15 }, true, { 0, 0, 15, 15 } },
                    // An empty rectangle takes no part.
                    BinaryCase{ { 0, 0, 10, 10 }, { 50, 50, 50, 60 }, true, { 0, 0, 10, 10 } },
                    BinaryCase{ { 5, 5, 5, 5 }, { 1, 1, 0, 9 }, false, { 0, 0, 0, 0 } }));

class Subtract : public testing::TestWithParam<BinaryCase> {
};

TEST_P(Subtract, MatchesWin32)
{
    const BinaryCase c = GetParam();
    CSFRect a(c.a.l, c.a.t, c.a.r, c.a.b), b(c.b.l, c.b.t, c.b.r, c.b.b);
    CSFRect out;
    EXPECT_EQ(out.SubtractRect(a, b), c.ok);
    EXPECT_TRUE(RectIs(out, c.out));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Subtract,
    testing::Values(BinaryCase{ { 0, 0, 10, 10 }, { -5, -5, 4, 15 }, true, { 4, 0, 10, 10 } },
                    BinaryCase{ { 0, 0, 10, 10 }, { 0, 6, 10, 20 }, true, { 0, 0, 10, 6 } },
                    // A hole in the middle leaves the rectangle as it was.
                    BinaryCase{ { 0, 0, 10, 10 }, { 3, 3, 6, 6 }, true, { 0, 0, 10, 10 } },
                    BinaryCase{ { 0, 0, 10, 10 }, { -1, -1, 11, 11 }, false, { 0, 0, 0, 0 } }));

TEST(CSFRectBasics, MeasuresAndMembers)
{
    CSFRect r(10, 20, 110, 70);
    EXPECT_EQ(r.Width(), 100);
    EXPECT_EQ(r.Height(), 50);
    EXPECT_EQ(r.Size(), CSFSize(100, 50));
    EXPECT_EQ(r.CenterPoint(), CSFPoint(60, 45));
    EXPECT_EQ(CSFRect(-3, -3, 0, 0).CenterPoint(), CSFPoint(-1, -1)) << "truncating mean";
    EXPECT_EQ(CSFRect(INT_MAX - 1, 0, INT_MAX, 0).CenterPoint().x, INT_MAX - 1);

    r.TopLeft() = CSFPoint(1, 2);
    r.BottomRight().Offset(1, 1);
    EXPECT_TRUE(RectIs(r, { 1, 2, 111, 71 }));

    EXPECT_TRUE(r.PtInRect(CSFPoint(1, 2)));
    EXPECT_FALSE(r.PtInRect(CSFPoint(111, 10)));
    EXPECT_FALSE(r.PtInRect(CSFPoint(10, 71)));
    EXPECT_TRUE(CSFRect(5, 5, 5, 10).IsRectEmpty());
    EXPECT_TRUE(CSFRect(5, 5, 4, 10).IsRectEmpty());
    EXPECT_FALSE(CSFRect(5, 5, 4, 10).IsRectNull());
    EXPECT_TRUE(CSFRect(0, 0, 0, 0).IsRectNull());
    EXPECT_TRUE(CSFRect(1, 2, 3, 4).EqualRect(CSFRect(1, 2, 3, 4)));
    EXPECT_TRUE(CSFRect(1, 2, 3, 4) != CSFRect(1, 2, 3, 5));

    CSFRect swapped(1, 2, 3, 4);
    swapped.SwapLeftRight();
    EXPECT_TRUE(RectIs(swapped, { 3, 2, 1, 4 }));
    CSFRect reversed(9, 8, 1, 2);
    reversed.NormalizeRect();
    EXPECT_TRUE(RectIs(reversed, { 1, 2, 9, 8 }));
    CSFRect::SwapLeftRight(nullptr);
    EXPECT_TRUE(RectIs(CSFRect(static_cast<const tagRECT*>(nullptr)), { 0, 0, 0, 0 }));
}

TEST(CSFRectBasics, MovesInflatesAndScales)
{
    CSFRect r(10, 10, 20, 30);
    r.MoveToXY(-5, 100);
    EXPECT_TRUE(RectIs(r, { -5, 100, 5, 120 }));
    r.OffsetRect(CSFSize(5, -100));
    EXPECT_TRUE(RectIs(r, { 0, 0, 10, 20 }));
    r.InflateRect(1, 2);
    EXPECT_TRUE(RectIs(r, { -1, -2, 11, 22 }));
    r.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(RectIs(r, { 0, 0, 8, 18 }));
    const CSFRect margins(1, 1, 2, 2);
    EXPECT_TRUE(RectIs(r + static_cast<const tagRECT*>(margins), { -1, -1, 10, 20 }));
    EXPECT_TRUE(RectIs(r - static_cast<const tagRECT*>(margins), { 1, 1, 6, 16 }));
    EXPECT_TRUE(RectIs(r + CSFPoint(2, 3), { 2, 3, 10, 21 }));
    EXPECT_TRUE(RectIs(r - CSFSize(2, 3), { -2, -3, 6, 15 }));
    r += CSFPoint(1, 1);
    r -= CSFSize(1, 1);
    EXPECT_TRUE(RectIs(r, { 0, 0, 8, 18 }));

    // MulDiv rounds half away from zero; a zero divisor gives -1.
    EXPECT_TRUE(RectIs(CSFRect(1, 3, -1, -3).MulDiv(1, 2), { 1, 2, -1, -2 }));
    EXPECT_TRUE(RectIs(CSFRect(10, 20, 30, 40).MulDiv(3, 2), { 15, 30, 45, 60 }));
    EXPECT_TRUE(RectIs(CSFRect(1, 2, 3, 4).MulDiv(1, 0), { -1, -1, -1, -1 }));

    // Coordinates wrap as 32-bit Win32 code does.
    CSFRect edge(INT_MAX - 1, 0, INT_MAX, 1);
    edge.OffsetRect(2, 0);
    EXPECT_TRUE(RectIs(edge, { INT_MIN, 0, INT_MIN + 1, 1 }));
}

TEST(CSFPointAndSize, PackedConstructorsAndOperators)
{
    const CSFPoint packed(static_cast<long>(0xFFFF8001L));
    EXPECT_EQ(packed.x, -32767);
    EXPECT_EQ(packed.y, -1);
    const CSFSize size(0x7FFF8000ul);
    EXPECT_EQ(size.cx, -32768);
    EXPECT_EQ(size.cy, 32767);
    const CSFSize negative(0xFFFF0002ul);
    EXPECT_EQ(negative.cx, 2);
    EXPECT_EQ(negative.cy, -1);

    const CSFPoint a(10, 20), b(3, 4);
    EXPECT_EQ(a - b, CSFSize(7, 16));
    EXPECT_EQ(a + b, CSFPoint(13, 24));
    EXPECT_EQ(a + CSFSize(1, 1), CSFPoint(11, 21));
    EXPECT_EQ(-a, CSFPoint(-10, -20));
    const CSFRect r(0, 0, 5, 5);
    EXPECT_TRUE(RectIs(a + static_cast<const tagRECT*>(r), { 10, 20, 15, 25 }));
    EXPECT_TRUE(RectIs(a - static_cast<const tagRECT*>(r), { -10, -20, -5, -15 }));
    EXPECT_EQ(CSFSize(5, 6) + CSFPoint(1, 1), CSFPoint(6, 7));
    EXPECT_EQ(CSFSize(5, 6) - CSFSize(1, 1), CSFSize(4, 5));
    EXPECT_EQ(-CSFSize(5, 6), CSFSize(-5, -6));
    EXPECT_TRUE(RectIs(CSFSize(1, 2) + static_cast<const tagRECT*>(r), { 1, 2, 6, 7 }));
    EXPECT_TRUE(RectIs(CSFSize(1, 2) - static_cast<const tagRECT*>(r), { -1, -2, 4, 3 }));
    EXPECT_EQ(CSFSize(5, 6) - CSFPoint(1, 8), CSFPoint(4, -2));
    EXPECT_EQ(CSFSize(INT_MIN, 0) - CSFPoint(1, 0), CSFPoint(INT_MAX, 0));

    CSFPoint p(1, 1);
    p += CSFSize(1, 2);
    p -= CSFPoint(2, 3);
    EXPECT_EQ(p, CSFPoint(0, 0));
}

} // namespace
