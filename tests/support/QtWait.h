#pragma once
// Waiting on a condition inside a GoogleTest body. QtTest's QTRY_ macros
// return silently from a gtest body on failure, so they must not be used.

#include <QTest>
#include <gtest/gtest.h>

#define EXPECT_EVENTUALLY(cond) \
    EXPECT_TRUE(QTest::qWaitFor([&] { return static_cast<bool>(cond); }, 5000)) << #cond

#define EXPECT_EVENTUALLY_EQ(actual, expected)                               \
    do {                                                                     \
        (void)QTest::qWaitFor([&] { return (actual) == (expected); }, 5000); \
        EXPECT_EQ(actual, expected);                                         \
    } while (0)
