// A vessel saved in the middle of its flight, and loaded from that save,
// comes back to the same state and saves the same text again.
#include "scenario_fixture.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

namespace {

// The keys of the lines, in their order.
std::vector<std::string> Keys(const std::vector<std::string> &lines) {
    std::vector<std::string> keys;
    for (const std::string &line : lines)
        keys.push_back(line.substr(0, line.find(' ')));
    return keys;
}

} // namespace

TEST_F(ScenarioTest, SaveInMidFlightComesBackToTheSameStateAndText) {
    ProbeVessel &p = Load({"SUBTYPE None"});
    p.AddOneShot(3.25, &HULLKIT::H_DUST);
    p.AddOneShot(1.0, &HULLKIT::H_UNPARK);
    p.AddEngineOneShot(12.5, &HULLKIT::H_NO_ACT);
    p.AddSecondEvent(&HULLKIT::H_AWARENESS);
    p.SetPropellantMass(p.TankTable.Find("Main")->handle, 0.0);
    p.SetPropellantMass(p.TankTable.Find("Rcs")->handle, 50.0);
    p.SetThrusterGroupLevel(p.ThrusterGroupTable.Find("Main")->handle, 0.25);
    ANIM_CTRL_REC &hatch = *p.AnimCtrlTable.Find("HatchCtl");
    hatch.state = 1.0;
    p.SetAnimation(hatch.animation, 1.0);
    p.HideMesh("Hull");
    p.LoadMeshByName("Door", true, false);
    p.SetMeshTexture("Hull", 2, "tDy", true);
    p.SetGroupVisSaved("Hull", 1, true, false);
    p.CurrentCamera = "aft";
    p.MissionTime = 12.0;
    p.ShowMet = true;
    p.Reliability = 80.0;
    p.FailureIndex = 2;
    p.FailureKind = 1;
    p.YawFailed = true;
    p.FireLevel = 0.5;
    p.FireGrowTime = 15.0;
    p.ToParentRot = _V(0, 1, 0);
    p.SetEnableFocus(false);
    p.AutoSwitchFocus = true;
    p.ImuPitchRef = _V(0, 1, 0);
    p.BallisticTarget[4] = 7.0;

    const std::vector<std::string> saved = FrameworkLines(p);
    EXPECT_THAT(Keys(saved), ElementsAre("FOCUS", "SUBTYPE", "CAMERA", "HK_FLAGS", "BALLISTIC", "IMU", "MET",
                                         "FIRE", "RELIABILITY", "FAILURES", "UPDATERS", "TIMERS_1T_ME",
                                         "TIMERS_1T", "TIMERS_P1S", "RES_MODS", "RES_MODS", "RES_MODS",
                                         "RES_MODS", "MESH_TEXTURE", "PARENT", "MESHGROUPVIS"));
    EXPECT_THAT(saved, Contains("FOCUS 0"));
    EXPECT_THAT(saved, Contains("HK_FLAGS 0 1"));
    EXPECT_THAT(saved, Contains("IMU 1.000000 0.000000 0.000000  0.000000 1.000000 0.000000"));
    EXPECT_THAT(saved, Contains("MET 12.000000 1"));
    EXPECT_THAT(saved, Contains("FIRE 15.000000 0.000000 0.000000 0.500000 0.250000"));
    EXPECT_THAT(saved, Contains("FAILURES 2 1 0 1 0"));
    EXPECT_THAT(saved, Contains("TIMERS_1T H_DUST:3.250000, H_UNPARK:1.000000, "));
    EXPECT_THAT(saved, Contains("TIMERS_1T_ME H_NO_ACT:12.500000, "));
    EXPECT_THAT(saved, Contains("TIMERS_P1S H_PLN_ENTER_EXIT, H_ATM_ENTER_EXIT, H_AWARENESS, "));
    // Controllers first, then meshes, tanks and groups; each item ends with a blank.
    EXPECT_THAT(saved, Contains("RES_MODS AnimControls HatchCtl:1 "));
    EXPECT_THAT(saved, Contains("RES_MODS Meshes Hull:Flags!0, Door:Load!1, "));
    EXPECT_THAT(saved, Contains("RES_MODS Tanks Main:0 Rcs:0.500000 "));
    EXPECT_THAT(saved, Contains("RES_MODS ThrusterGroups Main:0.250000 "));
    EXPECT_THAT(saved, Contains("MESH_TEXTURE Hull 2 tDy"));
    EXPECT_THAT(saved, Contains("PARENT 0.000000 0.000000 0.000000   0.000000 0.000000 0.000000   "
                                "0.000000 1.000000 0.000000"));
    EXPECT_THAT(saved, Contains("MESHGROUPVIS Hull:1:1"));

    // The tanks, the group level, the focus and the lists are saved from
    // where they were restored, so the same text again shows them back; the
    // host's animation and mesh slots are seen apart.
    ProbeVessel &q = LoadProbe("P2", Save(p));
    hullhost::Vessel &v = *env.world->FindVessel("P2");
    EXPECT_DOUBLE_EQ(v.animations.at(q.AnimCtrlTable.Find("HatchCtl")->animation)->state, 1.0);
    EXPECT_EQ(v.meshes.at(0).visibility, MESHVIS_NEVER);
    EXPECT_TRUE(q.MeshTable.Find("Door")->added);
    EXPECT_EQ(FrameworkLines(q), saved);
}

TEST_F(ScenarioTest, ValuesAtTheirDefaultsAreNotWritten) {
    ProbeVessel &p = Load();
    p.Temperature = 20.0;
    p.MissionTime = -1.0e8;
    p.SetPropellantMass(p.TankTable.Find("Rcs")->handle, 100.0);
    EXPECT_THAT(Keys(FrameworkLines(p)), ElementsAre("UPDATERS", "TIMERS_P1S"));

    // The thresholds themselves: glow off keeps the temperature out.
    p.MissionTime = 0.0;
    p.Temperature = 20.1;
    EXPECT_THAT(Keys(FrameworkLines(p)), ElementsAre("MET", "UPDATERS", "TIMERS_P1S"));
    p.ReentryGlowEnabled = true;
    EXPECT_THAT(FrameworkLines(p), Contains("TEMPERATURE 20.1"));
}

TEST_F(ScenarioTest, ModificationTextsFollowTheNumberRule) {
    ProbeVessel &p = Load();
    p.TankTable.Find("Rcs")->handle = nullptr;
    PROPELLANT_HANDLE main = p.TankTable.Find("Main")->handle;
    p.SetPropellantMaxMass(main, 0.0);
    EXPECT_EQ(p.ModificationText("Main", p.TankTable.Find("Main")), "0");
    EXPECT_EQ(p.ModificationText("Virtual", p.TankTable.Find("Main")), "");

    MESH_REC &hull = *p.MeshTable.Find("Hull");
    hull.load = !hull.load0;
    hull.vis = 1;
    EXPECT_EQ(p.ModificationText("Hull", &hull), "Load!0,Flags!1,");
    ANIM_CTRL_REC &hatch = *p.AnimCtrlTable.Find("HatchCtl");
    hatch.state = 0.75;
    EXPECT_EQ(p.ModificationText("HatchCtl", &hatch), "0.750000");
}

TEST_F(ScenarioTest, WrittenLinesFollowTheSinkRule) {
    ProbeVessel &p = Load({"RESOURCE Tanks Extra 5"});
    p.SetPropellantMass(p.TankTable.Find("Main")->handle, 2500.0);
    std::vector<std::string> lines;
    p.WriteResourceAll(nullptr, &lines);
    p.TankTable.WriteResMods(nullptr, &lines);
    EXPECT_THAT(lines, ElementsAre("RESOURCE Tanks Extra 5", "RES_MODS Tanks Main:0.500000 "));

    const std::size_t before = p.PendingLines.size();
    p.SetMeshTexture("Hull", 1, "tDy", false);
    p.WriteMeshTextures(nullptr, nullptr);
    ASSERT_EQ(p.PendingLines.size(), before + 1);
    EXPECT_EQ(p.PendingLines.back(), "MESH_TEXTURE Hull 1 tDy");
}

TEST_F(ScenarioTest, LandedVesselWritesItsSurfacePlaceAndAnAttachedOneNoPlace) {
    ProbeVessel &p = LoadProbe("P1", {"STATUS Landed Moon", "POS 10.5 -20.25", "HEADING 30"});
    ASSERT_TRUE(p.Landed);
    const std::vector<std::string> saved = Save(p);
    ASSERT_GE(saved.size(), 3u);
    EXPECT_EQ(saved[0], "STATUS Landed Moon");
    EXPECT_EQ(saved[1], "POS 10.500000 -20.250000");
    EXPECT_EQ(saved[2], "HEADING 30");

    p.Attached = true;
    EXPECT_EQ(Save(p), FrameworkLines(p));
    p.Attached = false;
    p.AwareWhileAttached = true;
    EXPECT_EQ(Save(p), FrameworkLines(p));
}

// The two sequence lines are written back as they were read, and the
// sequences go on from there.
TEST_F(ScenarioTest, SequencesGoOnFromTheirLines) {
    Class(std::string(kClassText) + "Launch = 1 DO_A 3 DO_B\nRelease = WHEN_A WHEN_B\n");
    ProbeVessel &p = Load({"TIMED_SEQUENCE Launch, 1.5", "CONDITIONAL_SEQUENCE Release 1,0,"});
    const std::vector<std::string> saved = FrameworkLines(p);
    EXPECT_THAT(saved, Contains("TIMED_SEQUENCE Launch, 1.500000"));
    EXPECT_THAT(saved, Contains("CONDITIONAL_SEQUENCE Release 1,0,"));
    // WHEN_A, its flag up, is passed by; DO_A, below the clock, fires at once.
    p.flagB = true;
    env.world->Frame(0.5); // the step after creation does nothing
    env.world->Frame(1.0);
    EXPECT_THAT(p.steps, ElementsAre("S_A@2.500000", "S_B@2.500000"));
}
