#include "config/config_file.h"
#include "config/text_ops.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Parsed {
    ConfigTable plain;
    SectionTable sections;
};

Parsed Parse(std::string_view text) {
    Parsed parsed;
    ParseConfigText(text, parsed.plain, parsed.sections);
    return parsed;
}

using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs PairsOf(const ConfigTable *table) {
    Pairs pairs;
    if (table != nullptr)
        for (const auto &[key, value] : *table)
            pairs.emplace_back(key, value);
    return pairs;
}

} // namespace

TEST(ParseConfigText, EqualsSignWithOrWithoutBlanks) {
    for (const char *line : {"A = 1", "A =1", "A= 1", "A=1", "\tA\t=\t1\t", "  A  =  1  "}) {
        const Parsed parsed = Parse(line);
        EXPECT_EQ(PairsOf(&parsed.plain), (Pairs{{"A", "1"}})) << line;
    }
}

TEST(ParseConfigText, PlainKeysAreCleanedAndExpandedAndOddLinesSkipped) {
    const Parsed parsed = Parse("Thrust = 100 ; N \"x\"\r\n"
                                "Name = \"a;b\"\r\n"
                                "Physics = Mass 1200, PMI (2.5, 2.5, 1.1)  ; comment\n"
                                "Pos = pos 1 pos 2\n"
                                "Dir = zminus\n"
                                "\r\n; comment only\r\nno equals here\r\n   \n"
                                "Pos = 9\n"
                                "Empty =\n"
                                "B=2\rC\nD=4");
    // A lone carriage return inside a line is kept; only the one before a line feed goes.
    EXPECT_EQ(PairsOf(&parsed.plain), (Pairs{{"Thrust", "100"},
                                             {"Name", "\"a;b\""},
                                             {"Physics", "1200 2.5 2.5 1.1"},
                                             {"Pos", "1 pos 2"},
                                             {"Dir", "0 0 -1"},
                                             {"Empty", ""},
                                             {"B", "2\rC"},
                                             {"D", "4"}}));
    EXPECT_TRUE(parsed.sections.Empty());
}

// A section opens only with the brace right behind the equals sign, and takes
// its lines up to the closing brace, the first of a name winning.
TEST(ParseConfigText, SectionsCollectTheirLines) {
    const Parsed parsed = Parse("Before = 1\n"
                                "Tanks = { \n"
                                "    Main   5000, pos (1, 2, 3)\n"
                                "    Aux\t100 ; small\n"
                                "    Main   9999\n"
                                "    Inside = skipped\n"
                                "    NoBlank\n"
                                "}\n"
                                "After = 2\n"
                                "Stray line\n"
                                "Tanks={\n"
                                "Extra \"My Tank\" xplus\n"
                                "} trailing text = x\n"
                                "NotSection = x {\n");
    EXPECT_EQ(PairsOf(&parsed.plain), (Pairs{{"Before", "1"}, {"After", "2"}, {"NotSection", "x {"}}));
    EXPECT_EQ(parsed.sections.Size(), 1u);
    EXPECT_EQ(PairsOf(parsed.sections.Find("Tanks")),
              (Pairs{{"Main", "5000 1 2 3"}, {"Aux", "100"}, {"Extra", "\"My Tank\" 1 0 0"}}));
}

TEST(ParseConfigText, OverlongLinesAreCutSafely) {
    std::string text = "Long = " + std::string(10000, '7') + "\nNext = 1\n";
    text += "Sec = {\n" + std::string(5000, ' ') + "\n" + std::string(8000, ';') + "\nK " +
            std::string(6000, 'v') + "\n}\n";
    const Parsed parsed = Parse(text);
    ASSERT_NE(parsed.plain.Find("Long"), nullptr);
    EXPECT_EQ(parsed.plain.Find("Long")->size(), kMaxLineLength - std::string("Long = ").size());
    EXPECT_NE(parsed.plain.Find("Next"), nullptr);
    const ConfigTable *section = parsed.sections.Find("Sec");
    ASSERT_NE(section, nullptr);
    ASSERT_NE(section->Find("K"), nullptr);
    EXPECT_EQ(section->Find("K")->size(), kMaxLineLength - 2);
}
