// The four timer lists: when they fire, how they stop, and their scenario lines.
#include "probe_fixture.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TimerTest : public ProbeTest {
  protected:
    // The probe parked, so that no watch of its own fills the lists.
    TimerTest() : p(LoadProbe("P1")) {
        Park(p);
        env.world->Frame(0.1); // the step that does nothing
    }

    ProbeVessel &p;
};

// A second addition of the event doesn't move its first time.
TEST_F(TimerTest, OneShotFiresOnceAtItsTimeAndItsUpdaterGoes) {
    p.AddOneShot(0.5, Call(&ProbeVessel::E_ONE));
    p.AddOneShot(0.1, Call(&ProbeVessel::E_ONE));
    EXPECT_TRUE(p.HasUpdater(&HULLKIT::H_TIMER_1T));
    env.Run(0.4);
    EXPECT_THAT(p.runs, IsEmpty());
    env.Run(0.2);
    EXPECT_THAT(p.runs, ElementsAre("ONE@0.600000"));
    EXPECT_FALSE(p.HasUpdater(&HULLKIT::H_TIMER_1T));
    EXPECT_EQ(p.UpdatersText(), "");
}

TEST_F(TimerTest, EventAddedFromItsOwnCallIsLost) {
    p.AddOneShot(0.0, Call(&ProbeVessel::E_READDS_SELF));
    env.Run(3.0);
    EXPECT_THAT(p.runs, ElementsAre("READDS"));
    EXPECT_THAT(p.OneShotEvents, IsEmpty());
}

TEST_F(TimerTest, EngineTimerCountsOnlyBurningSeconds) {
    PROPELLANT_HANDLE tank = p.CreatePropellantResource(1e6);
    THRUSTER_HANDLE th = p.CreateThruster(_V(0, 0, -2), _V(0, 0, 1), 1.0, tank, 3000.0);
    p.CreateThrusterGroup(&th, 1, THGROUP_MAIN);
    p.AddEngineOneShot(10.0, Call(&ProbeVessel::E_TWO));
    p.SetThrusterGroupLevel(THGROUP_MAIN, 0.3);
    env.Run(4.0);
    p.SetThrusterGroupLevel(THGROUP_MAIN, 0.0);
    env.Run(20.0);
    EXPECT_THAT(p.runs, IsEmpty());
    EXPECT_EQ(p.EngineTimersText(), "E_TWO:6.000000, ");
    p.SetThrusterGroupLevel(THGROUP_MAIN, 1.0);
    env.Run(5.9);
    EXPECT_THAT(p.runs, IsEmpty());
    env.Run(0.2);
    EXPECT_EQ(p.runs.size(), 1u);
    EXPECT_FALSE(p.HasUpdater(&HULLKIT::H_TIMER_1T_ME));
}

TEST_F(TimerTest, SecondListRunsOncePerStepAtLongSteps) {
    p.AddSecondEvent(Call(&ProbeVessel::E_ONE));
    for (int i = 0; i < 3; ++i)
        env.world->Frame(5.0);
    EXPECT_EQ(p.runs.size(), 3u);
    EXPECT_DOUBLE_EQ(p.NextSecond, p.SimTime + 1.0);
}

TEST_F(TimerTest, RemovingTheLastPeriodicEventStopsItsUpdater) {
    p.AddSecondEvent(Call(&ProbeVessel::E_ONE));
    p.AddMinuteEvent(Call(&ProbeVessel::E_TWO));
    p.RemoveSecondEvent(Call(&ProbeVessel::E_ONE));
    p.RemoveMinuteEvent(Call(&ProbeVessel::E_ONE)); // not in the list: the minute list stays
    EXPECT_FALSE(p.HasUpdater(&HULLKIT::H_TIMER_P1S));
    EXPECT_TRUE(p.HasUpdater(&HULLKIT::H_TIMER_P10M));
    env.Run(2.0);
    p.AddSecondEvent(Call(&ProbeVessel::E_ONE));
    EXPECT_NEAR(p.NextSecond, oapiGetSimTime() + 1.0, 1e-9);
}

TEST_F(ProbeTest, ScenarioLinesRestoreTheListsAndTheirServingUpdaters) {
    ProbeVessel &p =
        LoadProbe("P1", {"STATUS Orbiting Earth", "updaters U_A U_B, NOT_A_NAME, ",
                         "TIMERS_1T H_DUST:12.5, E_ONE:3.000000, BOGUS:1, ", "TIMERS_1T_ME E_TWO:4.000000, ",
                         "TIMERS_P1S H_AWARENESS, ", "TIMERS_P10M H_CHK_SPOTLIGHTS, "});
    Park(p);
    EXPECT_EQ(p.UpdatersText(), "U_A, U_B, H_TIMER_1T, H_TIMER_1T_ME, H_TIMER_P1S, H_TIMER_P10M, ");
    EXPECT_EQ(p.OneShotTimersText(), "H_DUST:12.500000, E_ONE:3.000000, ");
    EXPECT_EQ(p.EngineTimersText(), "E_TWO:4.000000, ");
    EXPECT_EQ(p.SecondEventsText(), "H_AWARENESS, ");
    EXPECT_EQ(p.MinuteEventsText(), "H_CHK_SPOTLIGHTS, ");
    // None of these lines reached the host.
    EXPECT_EQ(env.world->log.size(), 0u);
    // The one-shot times are written as seconds from now.
    env.Run(0.5);
    EXPECT_EQ(p.OneShotTimersText(), "H_DUST:12.000000, E_ONE:2.500000, ");
}
