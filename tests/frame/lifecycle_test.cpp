// The road of a vessel from a scenario: its passes, its files, its first step.
#include "probe_fixture.h"

using ::testing::ElementsAre;

// The class file beats the common one and a subtype's variant file beats the
// class file. A block without a status lands on the Earth, but only a status
// line sets the flag.
TEST_F(ProbeTest, ScenarioBlockGoesThroughBothPassesAroundTheLayeredConfiguration) {
    env.Write("Config/Vessels/Test/HullKit.cfg", "Shared = common\nLevel = common\n");
    env.Write("Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\nLevel = class\nOnlyClass = yes\n");
    env.Write("Config/Vessels/Test/Probe/Heavy.cfg", "Level = variant\n");
    ProbeVessel &p = LoadProbe("P1", {"STATUS Orbiting Earth", "FOO 1"});
    EXPECT_THAT(p.firstPass, ElementsAre("STATUS Orbiting Earth", "FOO 1"));
    EXPECT_THAT(p.secondPass, ElementsAre("STATUS Orbiting Earth", "FOO 1"));
    EXPECT_EQ(p.applyCount, 1);
    EXPECT_FALSE(p.CreationDeferred);
    EXPECT_EQ(p.Cfg("Level"), "class");
    EXPECT_EQ(p.Cfg("Shared"), "common");
    EXPECT_EQ(p.ClassFolder, "Test");
    EXPECT_EQ(p.moduleName, "Probe");

    ProbeVessel &heavy = LoadProbe("P2", {"STATUS Landed Earth", "SUBTYPE Heavy"});
    EXPECT_TRUE(heavy.Landed);
    EXPECT_EQ(heavy.subtype, "Heavy");
    EXPECT_EQ(heavy.variantFile, "Config\\Vessels\\Test\\Probe\\Heavy.cfg");
    EXPECT_EQ(heavy.Cfg("Level"), "variant");
    EXPECT_EQ(heavy.Cfg("OnlyClass"), "yes");
    EXPECT_EQ(heavy.Cfg("Shared"), "common");

    ProbeVessel &bare = LoadProbe("P3", {"FOO 1"});
    EXPECT_THAT(bare.firstPass, ElementsAre("FOO 1", "STATUS Landed Earth"));
    EXPECT_FALSE(bare.Landed);
}

TEST_F(ProbeTest, FirstStepAfterCreationDoesNothingAndACrashedVesselNoLongerSteps) {
    ProbeVessel &p = LoadProbe("P1");
    ProbeVessel &crashed = LoadProbe("P2");
    p.AddUpdater(Call(&ProbeVessel::U_A));
    crashed.AddUpdater(Call(&ProbeVessel::U_A));
    crashed.Crashed = true;
    env.world->Frame(0.1);
    EXPECT_TRUE(p.runs.empty());
    EXPECT_EQ(p.SimTime, 0.0);
    env.world->Frame(0.1);
    EXPECT_THAT(p.runs, ElementsAre("A"));
    EXPECT_NEAR(p.SimTime, 0.2, 1e-12);
    EXPECT_NEAR(p.SimStep, 0.1, 1e-12);
    env.Run(1.0);
    EXPECT_TRUE(crashed.runs.empty());
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
