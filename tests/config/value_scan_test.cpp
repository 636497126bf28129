#include "config/value_scan.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

// As %lf reads, within the first 255 characters; the target stays when
// nothing scans.
TEST(ScanDouble, ReadsLikePercentLfFromTheFirst255Characters) {
    double value = 3.25;
    for (const char *bad : {"", "abc", "-"})
        EXPECT_FALSE(ScanDouble(bad, value)) << bad;
    EXPECT_DOUBLE_EQ(value, 3.25);
    const std::pair<std::string, double> cases[] = {
        {"  -12.5e2xyz", -1250.0}, {std::string(254, '0') + "12345", 1.0}, {std::string(100000, '9'), 1e255}};
    for (const auto &[text, want] : cases) {
        EXPECT_TRUE(ScanDouble(text, value));
        EXPECT_DOUBLE_EQ(value, want) << text.substr(0, 20);
    }
}

TEST(ScanInt, ReadsLikePercentDAndClamps) {
    int value = 5;
    EXPECT_FALSE(ScanInt("x1", value));
    EXPECT_EQ(value, 5);
    for (const auto &[text, want] :
         {std::pair{" -42abc", -42}, {"3.9", 3}, {"-99999999999999999999", INT_MIN}}) {
        EXPECT_TRUE(ScanInt(text, value));
        EXPECT_EQ(value, want) << text;
    }
}

TEST(IsTrue, OnlyTheExactLowerCaseWord) {
    EXPECT_TRUE(IsTrue("true"));
    EXPECT_FALSE(IsTrue("True") || IsTrue("true ") || IsTrue("") || IsTrue("1"));
}
