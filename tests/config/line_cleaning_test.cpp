#include "config/text_ops.h"

#include <gtest/gtest.h>

namespace {

std::string Cleaned(std::string line) {
    CleanConfigLine(line, QuoteHandling::KeepQuoted);
    return line;
}

std::string Normalised(std::string text) {
    NormaliseLine(text);
    return text;
}

} // namespace

TEST(CleanConfigLine, SeparatorRunsBecomeOneBlank) {
    EXPECT_EQ(Cleaned("PMI (2.5, 2.5,\t1.1)"), "PMI 2.5 2.5 1.1");
    EXPECT_EQ(Cleaned("\t\tKey ,\t( )  value  "), "Key value");
    EXPECT_EQ(Cleaned(" \t ,"), "");
}

TEST(CleanConfigLine, UnquotedSemicolonEndsTheLine) {
    EXPECT_EQ(Cleaned("Thrust = 100 ; N \"x\""), "Thrust = 100");
    EXPECT_EQ(Cleaned("A = 1 ; first ; second"), "A = 1");
    EXPECT_EQ(Cleaned("Name = \"a;b\" ; note"), "Name = \"a;b\"");
    EXPECT_EQ(Cleaned("Mesh \"My  Mesh, (x)\"\t3"), "Mesh \"My  Mesh, (x)\" 3");
    // Quote parity counts from the end: an odd quote in a comment hides the semicolon.
    EXPECT_EQ(Cleaned("A = 1 ; it's \"odd"), "A = 1 ; it's \"odd");
}

TEST(NormaliseLine, IgnoresQuotes) {
    EXPECT_EQ(Normalised("Name \"a;b\""), "Name \"a");
    EXPECT_EQ(Normalised("\"x, y\""), "\"x y\"");
    EXPECT_EQ(Normalised("H_A, H_B, "), "H_A H_B");
}

TEST(NormaliseLine, OverlongTextIsCut) {
    std::string text(10000, 'x');
    NormaliseLine(text);
    EXPECT_EQ(text.size(), kMaxLineLength);
    std::string blanks = std::string(100000, ' ') + "end";
    NormaliseLine(blanks);
    EXPECT_EQ(blanks, "");
}
