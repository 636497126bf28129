// The road of a vessel from a scenario: its passes, its files, its first step.
#include "probe_fixture.h"

using ::testing::ElementsAre;

TEST_F(ProbeTest, ScenarioBlockGoesThroughBothPassesAroundTheConfiguration) {
    env.Write("Config/Vessels/Test/HullKit.cfg", "Shared = common\nLevel = common\n");
    env.Write("Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\nLevel = class\n");
    ProbeVessel &p = LoadProbe("P1", {"STATUS Orbiting Earth", "FOO 1"});

    EXPECT_THAT(p.firstPass, ElementsAre("STATUS Orbiting Earth", "FOO 1"));
    EXPECT_THAT(p.secondPass, ElementsAre("STATUS Orbiting Earth", "FOO 1"));
    EXPECT_EQ(p.applyCount, 1);
    EXPECT_FALSE(p.CreationDeferred);
    EXPECT_EQ(p.Cfg("Level"), "class");
    EXPECT_EQ(p.Cfg("Shared"), "common");
    EXPECT_EQ(p.ClassFolder, "Test");
    EXPECT_EQ(p.moduleName, "Probe");
}

TEST_F(ProbeTest, BlockWithoutStatusLandsOnEarthWithoutSettingTheFlag) {
    ProbeVessel &p = LoadProbe("P1", {"FOO 1"});
    EXPECT_THAT(p.firstPass, ElementsAre("FOO 1", "STATUS Landed Earth"));
    EXPECT_FALSE(p.Landed);

    ProbeVessel &q = LoadProbe("P2", {"STATUS Landed Earth"});
    EXPECT_TRUE(q.Landed);
}

TEST_F(ProbeTest, SubtypeSelectsTheVariantFileWhichBeatsTheClassFile) {
    env.Write("Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\nLevel = class\nOnlyClass = yes\n");
    env.Write("Config/Vessels/Test/Probe/Heavy.cfg", "Level = variant\n");
    ProbeVessel &p = LoadProbe("P1", {"STATUS Orbiting Earth", "SUBTYPE Heavy"});
    EXPECT_EQ(p.subtype, "Heavy");
    EXPECT_EQ(p.variantFile, "Config\\Vessels\\Test\\Probe\\Heavy.cfg");
    EXPECT_EQ(p.Cfg("Level"), "variant");
    EXPECT_EQ(p.Cfg("OnlyClass"), "yes");
}

TEST_F(ProbeTest, FirstStepAfterCreationDoesNothing) {
    ProbeVessel &p = LoadProbe("P1");
    p.AddUpdater(Call(&ProbeVessel::U_A));
    env.world->Frame(0.1);
    EXPECT_TRUE(p.runs.empty());
    EXPECT_EQ(p.SimTime, 0.0);
    env.world->Frame(0.1);
    EXPECT_THAT(p.runs, ElementsAre("A"));
    EXPECT_NEAR(p.SimTime, 0.2, 1e-12);
    EXPECT_NEAR(p.SimStep, 0.1, 1e-12);
}

TEST_F(ProbeTest, CrashedVesselNoLongerSteps) {
    ProbeVessel &p = LoadProbe("P1");
    p.AddUpdater(Call(&ProbeVessel::U_A));
    p.Crashed = true;
    env.Run(1.0);
    EXPECT_TRUE(p.runs.empty());
}

TEST_F(ProbeTest, VesselMadeWithoutScenarioStaysUnconfigured) {
    VESSELSTATUS2 st{};
    st.version = 2;
    st.rbody = oapiGetGbodyByName("Earth");
    st.rpos = _V(7e6, 0, 0);
    hullhost::Vessel &v = env.world->CreateVessel("Spawned", "Test\\Probe", st);
    auto &p = testing_support::Object<ProbeVessel>(v);
    EXPECT_TRUE(p.CreationDeferred);
    EXPECT_EQ(p.applyCount, 0);
    EXPECT_TRUE(p.cfgMerged.Empty());
}

TEST_F(ProbeTest, MarkerSitsDirectlyBehindTheHostPart) {
    ProbeVessel &p = LoadProbe("P1");
    EXPECT_EQ(reinterpret_cast<char *>(&p.HullkitMarker) -
                  reinterpret_cast<char *>(static_cast<VESSEL *>(&p)),
              static_cast<std::ptrdiff_t>(sizeof(VESSEL)));
    EXPECT_TRUE(IsHullkit(&p));
}

TEST_F(ProbeTest, DestructionEmptiesTheMessageLineAndDebugString) {
    ProbeVessel &p = LoadProbe("P1");
    std::strcpy(oapiDebugString(), "running");
    oapiAnnotationSetText(p.MessageNote, const_cast<char *>("hello"));
    oapiDeleteVessel(p.GetHandle());
    EXPECT_STREQ(oapiDebugString(), "");
    EXPECT_EQ(env.world->annotations.front()->text, "");
    EXPECT_EQ(oapiGetVesselCount(), 0u);
}
