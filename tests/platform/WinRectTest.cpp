#include "platform/WinRect.h"

#include "platform/WinMath.h"

#include <climits>
#include <gtest/gtest.h>
#include <ostream>

// Beside tagRECT in the global namespace, where lookup from gtest finds it.
static std::ostream& operator<<(std::ostream& os, const tagRECT& r)
{
    return os << '{' << r.left << ',' << r.top << ',' << r.right << ',' << r.bottom << '}';
}

namespace {

bool same(const tagRECT& a, const tagRECT& b)
{
    return EqualRect(&a, &b) != FALSE;
}

// Temporaries live to the end of the full expression.
const tagRECT* rp(const tagRECT& r)
{
    return &r;
}

const tagRECT kZero = { 0, 0, 0, 0 };
const tagRECT kBox = { 0, 0, 10, 10 };

struct RectCase {
    const char* name;
    tagRECT a;
    tagRECT b;
    BOOL ret;
    tagRECT dst;
};

std::ostream& operator<<(std::ostream& os, const RectCase& c)
{
    return os << c.name;
}

using RectFn = BOOL (*)(tagRECT*, const tagRECT*, const tagRECT*);

void checkCase(RectFn fn, const RectCase& c)
{
    tagRECT dst = { 7, 7, 7, 7 };
    EXPECT_EQ(fn(&dst, &c.a, &c.b), c.ret);
    EXPECT_TRUE(same(dst, c.dst)) << dst << " expected " << c.dst;
}

class IntersectRectTest : public ::testing::TestWithParam<RectCase> {};
TEST_P(IntersectRectTest, MatchesWin32)
{
    checkCase(IntersectRect, GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Table, IntersectRectTest,
    ::testing::Values(
        RectCase{ "overlap", kBox, { 5, 5, 15, 15 }, TRUE, { 5, 5, 10, 10 } },
        RectCase{ "contained", kBox, { 2, 3, 4, 5 }, TRUE, { 2, 3, 4, 5 } },
        RectCase{ "negative", { -10, -10, 0, 0 }, { -5, -5, 5, 5 }, TRUE, { -5, -5, 0, 0 } },
        RectCase{ "touchRight", kBox, { 10, 0, 20, 10 }, FALSE, kZero },
        RectCase{ "disjoint", kBox, { 20, 20, 30, 30 }, FALSE, kZero },
        RectCase{ "emptyInside", kBox, { 5, 0, 5, 10 }, FALSE, kZero },
        RectCase{ "invertedOverlap", { 10, 10, 0, 0 }, kBox, FALSE, kZero },
        RectCase{ "bothInverted", { 10, 10, 0, 0 }, { 10, 10, 0, 0 }, FALSE, kZero }));

class UnionRectTest : public ::testing::TestWithParam<RectCase> {};
TEST_P(UnionRectTest, MatchesWin32)
{
    checkCase(UnionRect, GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Table, UnionRectTest,
    ::testing::Values(
        RectCase{ "overlap", kBox, { 5, 5, 15, 15 }, TRUE, { 0, 0, 15, 15 } },
        RectCase{ "disjoint", { 0, 0, 1, 1 }, { 5, -5, 6, 6 }, TRUE, { 0, -5, 6, 6 } },
        RectCase{ "firstEmpty", { 3, 3, 3, 90 }, { 1, 1, 2, 2 }, TRUE, { 1, 1, 2, 2 } },
        RectCase{ "secondEmpty", { 1, 1, 2, 2 }, { -50, 3, 90, 3 }, TRUE, { 1, 1, 2, 2 } },
        RectCase{ "firstInverted", { 9, 9, 1, 1 }, { 1, 1, 2, 2 }, TRUE, { 1, 1, 2, 2 } },
        RectCase{ "bothEmpty", { 1, 1, 1, 5 }, { 9, 9, 1, 1 }, FALSE, kZero }));

class SubtractRectTest : public ::testing::TestWithParam<RectCase> {};
TEST_P(SubtractRectTest, MatchesWin32)
{
    checkCase(SubtractRect, GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Table, SubtractRectTest,
    ::testing::Values(RectCase{ "cutLeft", kBox, { -5, -5, 4, 15 }, TRUE, { 4, 0, 10, 10 } },
                      RectCase{ "cutRight", kBox, { 6, 0, 20, 10 }, TRUE, { 0, 0, 6, 10 } },
                      RectCase{ "cutTop", kBox, { 0, -1, 10, 3 }, TRUE, { 0, 3, 10, 10 } },
                      RectCase{ "cutBottom", kBox, { -1, 7, 11, 12 }, TRUE, { 0, 0, 10, 7 } },
                      RectCase{ "middleStrip", kBox, { 3, 0, 6, 10 }, TRUE, kBox },
                      RectCase{ "corner", kBox, { 5, 5, 15, 15 }, TRUE, kBox },
                      RectCase{ "sideNotFullHeight", kBox, { 0, 0, 4, 9 }, TRUE, kBox },
                      RectCase{ "disjoint", kBox, { 20, 20, 30, 30 }, TRUE, kBox },
                      RectCase{ "emptySubtrahend", kBox, { 0, 0, 0, 10 }, TRUE, kBox },
                      RectCase{ "covered", kBox, { -1, -1, 11, 11 }, FALSE, kZero },
                      RectCase{ "emptySource", { 0, 0, 0, 10 }, kBox, FALSE, kZero },
                      RectCase{
                          "invertedSource", { 10, 10, 0, 0 }, { 50, 50, 60, 60 }, FALSE, kZero }));

TEST(WinRect, DestinationMayAliasSource)
{
    tagRECT a = kBox;
    const tagRECT b = { 5, 5, 15, 15 };
    EXPECT_TRUE(IntersectRect(&a, &a, &b));
    EXPECT_TRUE(same(a, tagRECT{ 5, 5, 10, 10 }));
    a = kBox;
    EXPECT_TRUE(UnionRect(&a, &b, &a));
    EXPECT_TRUE(same(a, tagRECT{ 0, 0, 15, 15 }));
    a = kBox;
    EXPECT_TRUE(SubtractRect(&a, &a, rp({ 0, 0, 4, 10 })));
    EXPECT_TRUE(same(a, tagRECT{ 4, 0, 10, 10 }));
}

TEST(WinRect, IsRectEmpty)
{
    EXPECT_TRUE(IsRectEmpty(&kZero));
    EXPECT_FALSE(IsRectEmpty(&kBox));
    EXPECT_TRUE(IsRectEmpty(rp({ 0, 0, 1, 0 })));
    EXPECT_TRUE(IsRectEmpty(rp({ 5, 0, 4, 10 })));
    EXPECT_TRUE(IsRectEmpty(nullptr));
}

TEST(WinRect, PtInRectIsHalfOpen)
{
    EXPECT_TRUE(PtInRect(&kBox, tagPOINT{ 0, 0 }));
    EXPECT_TRUE(PtInRect(&kBox, tagPOINT{ 9, 9 }));
    EXPECT_FALSE(PtInRect(&kBox, tagPOINT{ 10, 5 }));
    EXPECT_FALSE(PtInRect(&kBox, tagPOINT{ -1, 5 }));
    EXPECT_FALSE(PtInRect(rp({ 10, 10, 0, 0 }), tagPOINT{ 5, 5 }));
    EXPECT_FALSE(PtInRect(nullptr, tagPOINT{ 0, 0 }));
}

TEST(WinRect, EqualRectComparesEveryField)
{
    EXPECT_TRUE(EqualRect(&kBox, &kBox));
    EXPECT_FALSE(EqualRect(&kBox, rp({ 1, 0, 10, 10 })));
    EXPECT_FALSE(EqualRect(&kBox, rp({ 0, 0, 11, 10 })));
    // Two different empty rectangles are not equal.
    EXPECT_FALSE(EqualRect(&kZero, rp({ 5, 5, 5, 5 })));
    EXPECT_FALSE(EqualRect(&kBox, nullptr));
}

TEST(WinRect, MoveAndResize)
{
    tagRECT r;
    EXPECT_TRUE(SetRect(&r, 1, 2, 3, 4));
    EXPECT_TRUE(OffsetRect(&r, -5, 10));
    EXPECT_TRUE(same(r, tagRECT{ -4, 12, -2, 14 }));
    EXPECT_TRUE(InflateRect(&r, 2, -1));
    EXPECT_TRUE(same(r, tagRECT{ -6, 13, 0, 13 }));
    tagRECT copy;
    EXPECT_TRUE(CopyRect(&copy, &r));
    EXPECT_TRUE(same(copy, r));
    EXPECT_TRUE(SetRectEmpty(&copy));
    EXPECT_TRUE(same(copy, kZero));
    EXPECT_FALSE(OffsetRect(nullptr, 1, 1));
    EXPECT_FALSE(InflateRect(nullptr, 1, 1));
    EXPECT_FALSE(CopyRect(nullptr, &r));
}

struct MulDivCase {
    int number;
    int numerator;
    int denominator;
    int expected;
};

std::ostream& operator<<(std::ostream& os, const MulDivCase& c)
{
    return os << "MulDiv(" << c.number << ',' << c.numerator << ',' << c.denominator << ')';
}

class MulDivTest : public ::testing::TestWithParam<MulDivCase> {};

TEST_P(MulDivTest, MatchesWin32)
{
    const MulDivCase& c = GetParam();
    EXPECT_EQ(MulDiv(c.number, c.numerator, c.denominator), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Table, MulDivTest,
                         ::testing::Values(MulDivCase{ 10, 3, 2, 15 },
                                           // Halves round away from zero whatever the signs.
                                           MulDivCase{ 5, 1, 2, 3 }, MulDivCase{ -5, 1, 2, -3 },
                                           MulDivCase{ 5, 1, -2, -3 }, MulDivCase{ -5, -1, -2, -3 },
                                           // Below and above a half.
                                           MulDivCase{ 7, 1, 3, 2 }, MulDivCase{ -8, 1, 3, -3 },
                                           MulDivCase{ 0, -1, 2, 0 },
                                           // Zero divisor.
                                           MulDivCase{ 1, 1, 0, -1 },
                                           // The intermediate product needs 64 bits.
                                           MulDivCase{ INT_MAX, INT_MAX, INT_MAX, INT_MAX },
                                           MulDivCase{ 1000000, 1000000, 1000, 1000000000 },
                                           MulDivCase{ INT_MIN, INT_MIN, INT_MIN, INT_MIN },
                                           // Results beyond 32 bits.
                                           MulDivCase{ INT_MAX, 2, 1, -1 },
                                           MulDivCase{ INT_MIN, -1, 1, -1 }));

} // namespace
