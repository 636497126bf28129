// Line cleaning, macro words and the two tokenisers, each as a table of texts
// and what they become.
#include "config/text_ops.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using Tokens = std::vector<std::string>;

struct Case {
    std::string in, out;
};

void ExpectEach(const std::vector<Case> &cases, const std::function<void(std::string &)> &op) {
    for (const Case &c : cases) {
        std::string text = c.in;
        op(text);
        EXPECT_EQ(text, c.out) << c.in;
    }
}

} // namespace

TEST(CleanConfigLine, SeparatorRunsShrinkAndAnUnquotedSemicolonEndsTheLine) {
    ExpectEach({{"PMI (2.5, 2.5,\t1.1)", "PMI 2.5 2.5 1.1"},
                {"\t\tKey ,\t( )  value  ", "Key value"},
                {" \t ,", ""},
                {"Thrust = 100 ; N \"x\"", "Thrust = 100"},
                {"A = 1 ; first ; second", "A = 1"},
                {"Name = \"a;b\" ; note", "Name = \"a;b\""},
                {"Mesh \"My  Mesh, (x)\"\t3", "Mesh \"My  Mesh, (x)\" 3"},
                // Quote parity counts from the end: an odd quote in a comment hides the semicolon.
                {"A = 1 ; it's \"odd", "A = 1 ; it's \"odd"}},
               [](std::string &s) { CleanConfigLine(s, QuoteHandling::KeepQuoted); });
}

TEST(NormaliseLine, IgnoresQuotesAndCutsOverlongText) {
    ExpectEach({{"Name \"a;b\"", "Name \"a"},
                {"\"x, y\"", "\"x y\""},
                {"H_A, H_B, ", "H_A H_B"},
                {std::string(10000, 'x'), std::string(kMaxLineLength, 'x')},
                {std::string(100000, ' ') + "end", ""}},
               NormaliseLine);
}

TEST(ExpandMacros, LabelsGoOnceValueWordsEverywhereWithinTheLineLimit) {
    std::string growing;
    while (growing.size() < kMaxLineLength - 6)
        growing += "cos45d";
    std::string grown;
    while (grown.size() < kMaxLineLength)
        grown += "0.707107";
    ExpectEach({{"Pos=pos 1 2 3", "Pos=1 2 3"},
                {"Pos=pos 1 pos 2", "Pos=1 pos 2"},
                // Case-sensitive and blind to word boundaries.
                {"Pos 1", "Pos 1"},
                {"repos 1", "re1"},
                {"X=1 pos", "X=1 pos"},
                // Inner label words need a blank on both sides; the physics line loses them all.
                {"1 RR 2 SF 3 CS 4 CW 5", "1 2 3 4 5"},
                {"RR 2", "RR 2"},
                {"Physics=Mass 1 PMI 2 3 4 RR 5 6 7 SF 8 9 PMS 1 YMS 1", "Physics=1 2 3 4 5 6 7 8 9 1 1"},
                {"Dir=zminus", "Dir=0 0 -1"},
                {"X=sin30d cos60d sin60d cos30d", "X=0.877583 0.877583 0.5 0.5"},
                {"xyz0 xyz0 v111", "0 0 0 0 0 0 1 1 1"},
                {"xplus xminus yplus yminus zplus", "1 0 0 -1 0 0 0 1 0 0 -1 0 0 0 1"},
                {"cos45dsin45d", "0.7071070.707107"},
                {growing, grown.substr(0, kMaxLineLength)}},
               ExpandMacros);
    std::string twice = "Pos=pos 1 pos 2";
    ExpandMacros(twice);
    ExpandMacros(twice);
    EXPECT_EQ(twice, "Pos=1 2");
}

TEST(SplitQuoted, BlanksSeparateAndQuotesGroup) {
    const std::pair<const char *, Tokens> cases[] = {
        {"a b c", {"a", "b", "c"}},
        {"a  b ", {"a", "", "b", ""}},
        {"", {""}},
        // A closed quote is followed by an empty token.
        {"\"My Mesh\" 3", {"My Mesh", "", "3"}},
        {"\"abc\"", {"abc", ""}},
        {"x \"a;b, c\" y", {"x", "a;b, c", "", "y"}},
        // Text in front of a quote within a word is dropped.
        {"ab\"cd\"ef g", {"cd", "ef", "g"}},
        // An open quote gives no further token.
        {"a \"b c", {"a"}},
        {"\"", {}},
    };
    for (const auto &[text, tokens] : cases)
        EXPECT_EQ(SplitQuoted(text), tokens) << text;
}

TEST(SplitBy, CutsAfterNormalisingAndExpandingInPlace) {
    std::string text = "pos (1, 2,\t3) ; comment";
    EXPECT_EQ(SplitBy(text, ' '), (Tokens{"1", "2", "3"}));
    EXPECT_EQ(text, "1 2 3");
    const std::tuple<std::string, char, Tokens> cases[] = {
        {"zminus", ' ', {"0", "0", "-1"}},
        {"", ' ', {}},
        {"abc", ':', {"abc"}},
        {"a:b:", ':', {"a", "b", ""}},
        {"a::b", ':', {"a", "", "b"}},
        // Only a comment: not empty on entry, so one empty token comes out.
        {"; nothing", ' ', {""}},
    };
    for (auto [in, separator, tokens] : cases)
        EXPECT_EQ(SplitBy(in, separator), tokens) << in;
}
