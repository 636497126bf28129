// The flags and Navmodes: only exact words count.
#include "keys_fixture.h"

TEST_F(KeysTest, FlagsTakeOnlyTheExactWordTrue) {
    ProbeVessel &p = LoadWithKeys("Indestructable = true\nSelfDestructor = true\nNoReentryGlow = true\n"
                                  "NoFocus = true\nHidden = true\nHideShadows = true\nHaveAutopilot = true\n"
                                  "CanAutoSwitchFocus = true\nDebugInternalCameraMove = true\n");
    EXPECT_FALSE(p.Destructible);
    EXPECT_TRUE(p.SelfDestructor && p.Hidden && p.hideShadows);
    EXPECT_FALSE(p.ReentryGlowEnabled);
    EXPECT_FALSE(Host(p).focusEnabled); // applied when the vessel is finished
    EXPECT_TRUE(p.HaveAutopilot && p.AutopilotActive && p.AutopilotConfigured);
    EXPECT_TRUE(p.CanAutoSwitchFocus && p.AutoSwitchFocus && p.AutoSwitchFocusConfigured);
    EXPECT_TRUE(p.HasUpdater(&HULLKIT::H_DEBUG_CAM));

    ProbeVessel &q = LoadWithKeys("Indestructable = True\nNoFocus = yes\nHaveAutopilot = TRUE\n");
    EXPECT_TRUE(q.Destructible);
    EXPECT_TRUE(Host(q).focusEnabled);
    EXPECT_FALSE(q.AutopilotActive);
    EXPECT_FALSE(q.HasUpdater(&HULLKIT::H_DEBUG_CAM));
}

TEST_F(KeysTest, NavmodesAllowExactlyTheNamesListed) {
    EXPECT_THAT(LoadWithKeys("Navmodes = KILLROT HOLDALT\n").NavImplemented,
                ::testing::ElementsAre(false, true, false, false, false, false, false, true));
    EXPECT_THAT(LoadWithKeys("Navmodes = killrot\n").NavImplemented, ::testing::Each(false));
    EXPECT_THAT(LoadWithKeys("").NavImplemented, ::testing::Each(true));
}
