// ToParent, the docks and Reentry: host objects made from plain keys.
#include "keys_fixture.h"

TEST_F(KeysTest, ToParentMakesTheChildSidePoint) {
    ProbeVessel &p = LoadWithKeys("ToParent = Carrier pos (0, 0, 1.5) dir zminus rot yplus\n");
    ASSERT_EQ(Host(p).attachments.size(), 1u);
    hullhost::Attachment &a = *Host(p).attachments[0];
    EXPECT_EQ(p.ToParentAttachment, a.Handle());
    EXPECT_TRUE(a.toParent);
    EXPECT_EQ(a.id, "Carrier");
    EXPECT_THAT(a.pos, IsVector(0, 0, 1.5));
    EXPECT_THAT(a.rot, IsVector(0, 1, 0));
    EXPECT_THAT(p.ConfigToParentDir, IsVector(0, 0, -1));

    // An id alone still makes the point.
    EXPECT_EQ(Host(LoadWithKeys("ToParent = Top\n")).attachments.at(0)->id, "Top");
    EXPECT_TRUE(Host(LoadWithKeys("")).attachments.empty());
}

TEST_F(KeysTest, DocksAreCountedFromZeroUntilTheFirstMissingKey) {
    ProbeVessel &p = LoadWithKeys("Dock0 = (0, 0, 5) zplus yplus\nDock1 = 0 0 -5 zminus yplus\n"
                                  "Dock3 = xyz0 zplus yplus\n");
    ASSERT_EQ(Host(p).docks.size(), 2u);
    EXPECT_THAT(Host(p).docks[1]->dir, IsVector(0, 0, -1));

    EXPECT_TRUE(Host(LoadWithKeys("Dock1 = 0 0 -5 zminus yplus\n")).docks.empty());

    // A value short of nine numbers makes no dock but doesn't end the list.
    ProbeVessel &r = LoadWithKeys("Dock0 = 0 0 5\nDock1 = 0 0 -5 zminus yplus\n");
    ASSERT_EQ(Host(r).docks.size(), 1u);
    EXPECT_THAT(Host(r).docks[0]->pos, IsVector(0, 0, -5));
}

TEST_F(KeysTest, ReentryRegistersItsTextureWithTheGivenScales) {
    hullhost::Vessel &h = Host(LoadWithKeys("Reentry = reentry_red 5e6 2 3\n"));
    EXPECT_NE(h.reentry.tex, nullptr);
    EXPECT_EQ(h.reentry.pressureLimit, 5e6);
    EXPECT_THAT((std::vector{h.reentry.lscale, h.reentry.wscale}), ::testing::ElementsAre(2.0, 3.0));

    // Without the scales they stay at one.
    EXPECT_EQ(Host(LoadWithKeys("Reentry = reentry_red 5e6\n")).reentry.lscale, 1.0);
}
