#include "config/config_table.h"

#include <gtest/gtest.h>

TEST(ConfigTable, FirstInsertionWinsAndGetOfAMissingKeyAddsItEmpty) {
    ConfigTable table;
    EXPECT_TRUE(table.Insert("B", "1"));
    EXPECT_FALSE(table.Insert("B", "2"));
    EXPECT_EQ(*table.Find("B"), "1");
    EXPECT_EQ(table.Find("Z"), nullptr);
    EXPECT_EQ(table.Get("Z"), "");
    // The empty entry now stands, so a later insertion of the key is ignored.
    EXPECT_FALSE(table.Insert("Z", "late"));
}

TEST(ConfigTable, MergeGivesVariantOverClassOverCommonInVariantOrder) {
    ConfigTable common, cls, variant, merged;
    for (const char *key : {"A", "B", "C"})
        common.Insert(key, "common");
    cls.Insert("B", "class");
    cls.Insert("A", "class");
    variant.Insert("A", "variant");
    MergeInto(merged, variant, cls, common);
    std::vector<std::pair<std::string, std::string>> pairs(merged.begin(), merged.end());
    EXPECT_EQ(pairs, (decltype(pairs){{"A", "variant"}, {"B", "class"}, {"C", "common"}}));
}
