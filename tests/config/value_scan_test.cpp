#include "config/value_scan.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

TEST(ScanDouble, ReadsLikePercentLfAndLeavesTargetWhenUnscannable) {
    double value = 3.25;
    for (const char *bad : {"", "abc", "-"}) {
        EXPECT_FALSE(ScanDouble(bad, value));
    }
    EXPECT_DOUBLE_EQ(value, 3.25);
    EXPECT_TRUE(ScanDouble("  -12.5e2xyz", value));
    EXPECT_DOUBLE_EQ(value, -1250.0);
}

TEST(ScanDouble, ReadsOnlyTheFirst255Characters) {
    double value = 0.0;
    EXPECT_TRUE(ScanDouble(std::string(254, '0') + "12345", value));
    EXPECT_DOUBLE_EQ(value, 1.0);
    EXPECT_TRUE(ScanDouble(std::string(100000, '9'), value));
    EXPECT_GT(value, 1e250);
}

TEST(ScanInt, ReadsLikePercentDAndClamps) {
    int value = 5;
    EXPECT_FALSE(ScanInt("x1", value));
    EXPECT_EQ(value, 5);
    EXPECT_TRUE(ScanInt(" -42abc", value));
    EXPECT_EQ(value, -42);
    EXPECT_TRUE(ScanInt("3.9", value));
    EXPECT_EQ(value, 3);
    EXPECT_TRUE(ScanInt("-99999999999999999999", value));
    EXPECT_EQ(value, INT_MIN);
}

TEST(IsTrue, OnlyTheExactLowerCaseWord) {
    EXPECT_TRUE(IsTrue("true"));
    EXPECT_FALSE(IsTrue("True") || IsTrue("true ") || IsTrue("") || IsTrue("1"));
}
