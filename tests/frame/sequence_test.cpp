// Timed and conditional sequences: when their steps run, how they end, and
// how the control modes take part.
#include "probe_fixture.h"

using ::testing::ElementsAre;
using ::testing::StartsWith;

class SequenceTest : public ProbeTest {
  protected:
    ProbeVessel &Load() {
        env.Write("Config/Vessels/Test/Probe.cfg",
                  "Module = Test\\Probe\nLaunch = 5 DO_A 0.5 DO_B 0.2 NOPE 1 DO_A 7\n"
                  "Release = WHEN_A NOPE WHEN_B\n");
        ProbeVessel &probe = LoadProbe("P1");
        env.world->Frame(0.5); // the step after creation does nothing
        return probe;
    }
    void Step(int n = 1) { env.Run(0.5 * n, 0.5); }
    ProbeVessel &p = Load();
};

TEST_F(SequenceTest, TimedStepsFireOnceTheClockIsPastThemUntilTheLastEntryHasFired) {
    p.HaveAutopilot = true; // flown by hand: the sequence stands, clock included
    p.AutopilotActive = false;
    p.StartTimedSequence("Launch", 0.0);
    Step(3);
    p.AutopilotActive = true;
    Step(2); // DO_B at 0.5 didn't fire with the clock at exactly 0.5
    EXPECT_THAT(p.steps, ElementsAre("S_B@1.000000"));
    Step(3);
    EXPECT_THAT(p.steps, ElementsAre("S_B@1.000000", "S_A@1.500000")); // DO_A at 5 is left
    EXPECT_FALSE(p.HasUpdater(&HULLKIT::H_TIMED_SEQ));
    EXPECT_EQ(p.TimedSequenceText(), "");
}

TEST_F(SequenceTest, ConditionalStepsRunInTurnWhileTheAutopilotFlies) {
    p.flagA = p.flagB = true;
    p.StartConditionalSequence("Release", nullptr); // no flag is up
    p.flagA = true;
    Step();
    EXPECT_FALSE(p.HasUpdater(Call(&ProbeVessel::U_A)));
    EXPECT_TRUE(p.HasUpdater(Call(&ProbeVessel::U_B)));
    p.EngageManual();
    EXPECT_FALSE(p.HasUpdater(Call(&ProbeVessel::U_B)));
    p.EngageAutopilot();
    p.flagB = true;
    Step();
    EXPECT_THAT(p.steps, ElementsAre(StartsWith("S_A"), StartsWith("S_B")));
    EXPECT_FALSE(p.HasUpdater(&HULLKIT::H_COND_SEQ));
}

TEST_F(SequenceTest, StepsBeyondFiftyAreLeftOut) {
    std::string many;
    for (int i = 0; i < 60; ++i)
        many += "WHEN_A ";
    p.ParseConditionalSequence("Many", many);
    EXPECT_EQ(p.ConditionalSteps.size(), HULLKIT::kMaxConditionalSteps);
}
