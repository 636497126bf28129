// The reading of a scenario block: keys by prefix and without case, in the
// order of the tables, and the lines of the second pass.
#include "scenario_fixture.h"

using ::testing::ElementsAre;

TEST_F(ScenarioTest, FirstPassKeysAreComparedByPrefixWithoutCaseInTheirOrder) {
    Class(std::string(kClassText) + "VC = true\n");
    ProbeVessel &p = Load({"prplevel 0:1", "reliability 80", "Met 5.5 1", "METRIC 9", "timers_1t_me H_DUST:2",
                           "TIMERS_1T H_UNPARK:3, NOT_AN_EVENT:4, ", "UPDATERS H_MET H_MET NOPE",
                           "imu 0 1 0  1 0 0", "FAILURES 1 2 0 1", "BALLISTIC 1 2", "Temperature55"});

    EXPECT_DOUBLE_EQ(p.Reliability, 80.0);
    // "METRIC" is taken for MET; its value doesn't scan, so 5.5 stands.
    EXPECT_DOUBLE_EQ(p.MissionTime, 5.5);
    EXPECT_TRUE(p.ShowMet);
    EXPECT_THAT(p.EngineEvents, ElementsAre(VesselCall(&HULLKIT::H_DUST)));
    EXPECT_THAT(p.OneShotEvents, ElementsAre(VesselCall(&HULLKIT::H_UNPARK)));
    // Restored updaters first, then those of the set-up in its order, up to
    // the watches of a vessel at the Earth's centre.
    EXPECT_EQ(p.UpdatersText(), "H_TIMER_1T_ME, H_TIMER_1T, H_MET, H_ANIM, H_VC, H_ME_WATCH, H_TIMER_P1S, "
                                "H_GROUND_WATCH, H_ATM_FLT, H_CONTRAIL, ");
    EXPECT_DOUBLE_EQ(p.ImuYawRef.y, 1.0);
    EXPECT_DOUBLE_EQ(p.ImuPitchRef.x, 1.0);
    // A short line fills what it reaches and leaves the rest.
    EXPECT_EQ(p.FailureIndex, 1);
    EXPECT_EQ(p.FailureKind, 2);
    EXPECT_TRUE(p.YawFailed);
    EXPECT_FALSE(p.RollFailed);
    EXPECT_DOUBLE_EQ(p.BallisticTarget[1], 2.0);
    EXPECT_DOUBLE_EQ(p.BallisticTarget[2], 0.0);
    EXPECT_DOUBLE_EQ(p.Temperature, 55.0);
    // The tank keeps its configured level: the host's tank line is swallowed.
    EXPECT_DOUBLE_EQ(Host().propellants[0]->mass, 5000.0);
}

TEST_F(ScenarioTest, SecondPassLinesActOnTheRecords) {
    ProbeVessel &p = Load({"hk_flags 1 1", "Focus 0", "CAMERA aft", "MESH_TEXTURE Hull 2 tDy",
                           "MESH_TEXTURE Hull 1 nowhere", "MESHGROUPVIS Hull:1:1 Door:0:0 Hull:1:1",
                           "PARENT 1 2 3 4 5", "TIMED_SEQUENCE", "CONDITIONAL_SEQUENCE"});

    EXPECT_TRUE(p.AutopilotActive);
    EXPECT_TRUE(p.AutoSwitchFocus);
    EXPECT_FALSE(p.FocusEnabled);
    EXPECT_FALSE(Host().focusEnabled);
    EXPECT_EQ(p.CurrentCamera, "aft");
    ASSERT_EQ(p.meshTextures.size(), 1u);
    EXPECT_EQ(p.meshTextures[0].texture, "tDy");
    EXPECT_EQ(p.meshTextures[0].index, 2);
    // The list keeps doubles as they came.
    ASSERT_EQ(p.meshGroupVis.size(), 3u);
    EXPECT_TRUE(p.meshGroupVis[0].hidden);
    EXPECT_EQ(p.meshGroupVis[1].mesh, "Door");
    EXPECT_FALSE(p.meshGroupVis[1].hidden);
    // Five numbers set only the position.
    EXPECT_DOUBLE_EQ(p.ToParentPos.z, 3.0);
    EXPECT_DOUBLE_EQ(p.ToParentDir.x, p.ConfigToParentDir.x);
    EXPECT_DOUBLE_EQ(p.ToParentDir.y, p.ConfigToParentDir.y);
}

TEST_F(ScenarioTest, ModificationTextsReachTheirRecordsAndUnknownItemsAreSkipped) {
    ProbeVessel &p =
        Load({"RES_MODS Tanks Main:0.25 Gone:0.5 Rcs:0", "RES_MODS ThrusterGroups Main:0.5 ",
              "RES_MODS AnimControls HatchCtl:1", "RES_MODS Meshes Door:Load!1,Flags!1,Odd!3, "});
    hullhost::Vessel &v = Host();

    EXPECT_DOUBLE_EQ(v.propellants[0]->mass, 1250.0);
    EXPECT_DOUBLE_EQ(v.propellants[1]->mass, 0.0);
    EXPECT_DOUBLE_EQ(p.GetThrusterGroupLevel(p.ThrusterGroupTable.Find("Main")->handle), 0.5);
    const ANIM_CTRL_REC &hatch = *p.AnimCtrlTable.Find("HatchCtl");
    EXPECT_DOUBLE_EQ(hatch.state, 1.0);
    EXPECT_DOUBLE_EQ(v.animations.at(hatch.animation)->state, 1.0);
    // The mesh that waited is loaded now, behind the others, with its mode.
    const MESH_REC &door = *p.MeshTable.Find("Door");
    ASSERT_TRUE(door.added);
    EXPECT_EQ(door.index, 1u);
    EXPECT_EQ(door.vis, 1);
    EXPECT_EQ(v.meshes.at(1).visibility, 1);
}

TEST_F(ScenarioTest, ResourceLinesOfTheScenarioGoBackOutAsTheyCameIn) {
    ProbeVessel &p = Load({"RESOURCE Tanks Main 10", "RESOURCE Tanks Extra 5", "RESOURCE AeroRecords A 1"});

    EXPECT_DOUBLE_EQ(p.TankTable.Find("Main")->fuel, 10.0);
    EXPECT_THAT(FrameworkLines(p),
                ElementsAre("UPDATERS H_ANIM, H_ME_WATCH, H_TIMER_P1S, H_GROUND_WATCH, H_ATM_FLT, "
                            "H_CONTRAIL, ",
                            "TIMERS_P1S H_PLN_ENTER_EXIT, H_ATM_ENTER_EXIT, ", "RESOURCE Tanks Main 10",
                            "RESOURCE Tanks Extra 5"));
}

TEST_F(ScenarioTest, MalformedLinesLeaveTheDefaults) {
    ProbeVessel &p = Load({"PARENT a b c d", "MESHGROUPVIS \"", "MESHGROUPVIS ::: Hull", "TIMED_SEQUENCE ,",
                           "CONDITIONAL_SEQUENCE   ",
                           "RES_MODS Meshes Door:Load!,Flags, :", "RES_MODS Tanks ::: Main:", "CAMERA",
                           "MESH_TEXTURE Hull x tDy", "HK_FLAGS x", "FAILURES x", "MET"});

    EXPECT_DOUBLE_EQ(p.ToParentPos.x, p.ConfigToParentPos.x);
    EXPECT_EQ(p.CurrentCamera, "fwd");
    EXPECT_TRUE(p.meshTextures.empty());
    EXPECT_FALSE(p.AutopilotActive);
    EXPECT_EQ(p.FailureIndex, 0);
    EXPECT_LT(p.MissionTime, 0.0);
    EXPECT_FALSE(p.MeshTable.Find("Door")->added);
    // "Main:" carries no number, which reads as an empty tank.
    EXPECT_DOUBLE_EQ(Host().propellants[0]->mass, 0.0);
}
