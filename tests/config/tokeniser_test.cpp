#include "config/text_ops.h"

#include <gtest/gtest.h>

using Tokens = std::vector<std::string>;

TEST(SplitQuoted, BlanksSeparateEveryToken) {
    EXPECT_EQ(SplitQuoted("a b c"), (Tokens{"a", "b", "c"}));
    EXPECT_EQ(SplitQuoted("a  b "), (Tokens{"a", "", "b", ""}));
    EXPECT_EQ(SplitQuoted(""), (Tokens{""}));
}

TEST(SplitQuoted, ClosedQuoteIsFollowedByAnEmptyToken) {
    EXPECT_EQ(SplitQuoted("\"My Mesh\" 3"), (Tokens{"My Mesh", "", "3"}));
    EXPECT_EQ(SplitQuoted("\"abc\""), (Tokens{"abc", ""}));
    EXPECT_EQ(SplitQuoted("x \"a;b, c\" y"), (Tokens{"x", "a;b, c", "", "y"}));
    // Text in front of a quote within a word is dropped.
    EXPECT_EQ(SplitQuoted("ab\"cd\"ef g"), (Tokens{"cd", "ef", "g"}));
}

TEST(SplitQuoted, OpenQuoteGivesNoFurtherToken) {
    EXPECT_EQ(SplitQuoted("a \"b c"), (Tokens{"a"}));
    EXPECT_EQ(SplitQuoted("\""), (Tokens{}));
}

TEST(SplitBy, CutsAfterNormalisingAndExpandingInPlace) {
    std::string text = "pos (1, 2,\t3) ; comment";
    EXPECT_EQ(SplitBy(text, ' '), (Tokens{"1", "2", "3"}));
    EXPECT_EQ(text, "1 2 3");
    std::string vector = "zminus";
    EXPECT_EQ(SplitBy(vector, ' '), (Tokens{"0", "0", "-1"}));
}

TEST(SplitBy, EmptyAndSeparatorEdges) {
    const auto split = [](std::string text, char separator) { return SplitBy(text, separator); };
    EXPECT_TRUE(split("", ' ').empty());
    EXPECT_EQ(split("abc", ':'), (Tokens{"abc"}));
    EXPECT_EQ(split("a:b:", ':'), (Tokens{"a", "b", ""}));
    EXPECT_EQ(split("a::b", ':'), (Tokens{"a", "", "b"}));
    // Only a comment: not empty on entry, so one empty token comes out.
    EXPECT_EQ(split("; nothing", ' '), (Tokens{""}));
}
