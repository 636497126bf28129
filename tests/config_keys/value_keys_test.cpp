// AttitudeControls and the other keys that are stored for later use.
#include "keys_fixture.h"

TEST_F(KeysTest, AttitudeControlsTurnDegreesToRadiansButNotTheBlend) {
    ProbeVessel &p =
        LoadWithKeys("AttitudeControls = 10 20 30  1 2 3  4 5 6  7 8 9  11 12 13  0.5 0.6 0.7\n");
    const double k = 0.017453292519943295;
    EXPECT_THAT(p.AttControls.ErrorLimit, IsVector(10 * k, 20 * k, 30 * k));
    EXPECT_DOUBLE_EQ(p.AttControls.CoastRateNear.z, 13 * k);
    EXPECT_THAT(p.AttControls.BlendNear, IsVector(0.5, 0.6, 0.7));

    ProbeVessel &q = LoadWithKeys("AttitudeControls = 10 20\n");
    EXPECT_EQ(q.AttControls.ErrorLimit.z, 0.0);
    EXPECT_THAT(q.AttControls.BlendNear, IsVector(0, 0, 0));
}

TEST_F(KeysTest, OtherKeysAreStoredAndVisibilityReachesTheHost) {
    ProbeVessel &p =
        LoadWithKeys("WreckVesselName = Wreck\nReentryShinePos = 0 0 -3\nFire = (0, 0, -4) zminus\n"
                     "CG = 0 0 0.5\nSequenceTimerFormat = T+ %s\nVisLimitMesh = 0.01\n"
                     "VisLimitSpot = 0.002\nYawOrbital = 1 2\nSaveOrbit = true\n");
    EXPECT_EQ(p.WreckVesselName, "Wreck");
    EXPECT_THAT(p.ReentryShinePos, IsVector(0, 0, -3));
    EXPECT_THAT(p.FireDir, IsVector(0, 0, -1));
    EXPECT_THAT(p.CgOffset, IsVector(0, 0, 0.5));
    EXPECT_EQ(p.TimerFormat, "T+ %s");
    EXPECT_EQ(Host(p).visLimit, 0.01);
    EXPECT_EQ(Host(p).spotLimit, 0.002);
    EXPECT_THAT(p.YawOrbital, IsVector(1, 2, 0));
    EXPECT_TRUE(p.SaveOrbit);

    // A clock format already in force is not replaced by the configured one.
    p.TimerFormat = "kept";
    p.ReadOtherKeys();
    EXPECT_EQ(p.TimerFormat, "kept");

    ProbeVessel &q = LoadWithKeys("VisLimitMesh = far\n");
    EXPECT_EQ(Host(q).visLimit, 0.001);
}
