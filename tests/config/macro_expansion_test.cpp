#include "config/text_ops.h"

#include <gtest/gtest.h>

namespace {

std::string Expanded(std::string text) {
    ExpandMacros(text);
    return text;
}

} // namespace

TEST(ExpandMacros, LabelWordsGoAtFirstOccurrenceOnly) {
    EXPECT_EQ(Expanded("Pos=pos 1 2 3"), "Pos=1 2 3");
    EXPECT_EQ(Expanded("Pos=pos 1 pos 2"), "Pos=1 pos 2");
    EXPECT_EQ(Expanded(Expanded("Pos=pos 1 pos 2")), "Pos=1 2");
    // Case-sensitive and blind to word boundaries.
    EXPECT_EQ(Expanded("Pos 1"), "Pos 1");
    EXPECT_EQ(Expanded("repos 1"), "re1");
    EXPECT_EQ(Expanded("X=1 pos"), "X=1 pos");
}

TEST(ExpandMacros, InnerWordsBecomeOneBlankAndThePhysicsLineLosesAllItsLabels) {
    EXPECT_EQ(Expanded("1 RR 2 SF 3 CS 4 CW 5"), "1 2 3 4 5");
    EXPECT_EQ(Expanded("RR 2"), "RR 2");
    EXPECT_EQ(Expanded("Physics=Mass 1 PMI 2 3 4 RR 5 6 7 SF 8 9 PMS 1 YMS 1"),
              "Physics=1 2 3 4 5 6 7 8 9 1 1");
}

TEST(ExpandMacros, ValueWordsAreReplacedEverywhere) {
    EXPECT_EQ(Expanded("Dir=zminus"), "Dir=0 0 -1");
    EXPECT_EQ(Expanded("X=sin30d cos60d sin60d cos30d"), "X=0.877583 0.877583 0.5 0.5");
    EXPECT_EQ(Expanded("xyz0 xyz0 v111"), "0 0 0 0 0 0 1 1 1");
    EXPECT_EQ(Expanded("xplus xminus yplus yminus zplus"), "1 0 0 -1 0 0 0 1 0 0 -1 0 0 0 1");
    EXPECT_EQ(Expanded("cos45dsin45d"), "0.7071070.707107");
}

TEST(ExpandMacros, GrowthStaysWithinTheLineLimit) {
    std::string text;
    while (text.size() < kMaxLineLength - 6) {
        text += "cos45d";
    }
    ExpandMacros(text);
    EXPECT_EQ(text.size(), kMaxLineLength);
    EXPECT_EQ(text.substr(0, 16), "0.7071070.707107");
}
