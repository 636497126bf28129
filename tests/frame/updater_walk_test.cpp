// The updater list: uniqueness, and changes while it is walked.
#include "probe_fixture.h"

using ::testing::ElementsAre;

class UpdaterWalkTest : public ProbeTest {
  protected:
    UpdaterWalkTest() : p(LoadProbe("P1")) {}
    void Walk() {
        p.runs.clear();
        p.WalkUpdaters();
    }
    ProbeVessel &p;
};

TEST_F(UpdaterWalkTest, AddingTwiceKeepsOneEntry) {
    p.AddUpdater(Call(&ProbeVessel::U_A));
    p.AddUpdater(Call(&ProbeVessel::U_A));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("A"));
}

TEST_F(UpdaterWalkTest, UpdaterAddedDuringTheWalkRunsInTheSameStep) {
    p.AddUpdater(Call(&ProbeVessel::U_ADDS_C));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("ADDS_C", "C"));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("ADDS_C", "C"));
}

TEST_F(UpdaterWalkTest, SelfRemovalPassesOverTheNextOneForThisStep) {
    p.AddUpdater(Call(&ProbeVessel::U_REMOVES_SELF));
    p.AddUpdater(Call(&ProbeVessel::U_B));
    p.AddUpdater(Call(&ProbeVessel::U_C));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("REMOVES_SELF", "C"));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("B", "C"));
}

TEST_F(UpdaterWalkTest, RemovingAnEarlierUpdaterShiftsTheWalk) {
    p.AddUpdater(Call(&ProbeVessel::U_A));
    p.AddUpdater(Call(&ProbeVessel::U_REMOVES_A));
    p.AddUpdater(Call(&ProbeVessel::U_B));
    p.AddUpdater(Call(&ProbeVessel::U_C));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("A", "REMOVES_A", "C"));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("REMOVES_A", "B", "C"));
}

TEST_F(UpdaterWalkTest, RemovingWhatIsNotThereDoesNothing) {
    p.AddUpdater(Call(&ProbeVessel::U_A));
    p.RemoveUpdater(Call(&ProbeVessel::U_B));
    Walk();
    EXPECT_THAT(p.runs, ElementsAre("A"));
}

TEST_F(UpdaterWalkTest, UnknownCallIsAProgrammingErrorThatIsLogged) {
    VesselCall unnamed = &HULLKIT::ReportName;
    EXPECT_THROW(p.AddUpdater(unnamed), std::logic_error);
    EXPECT_EQ(env.world->log.back(), "Unknown Updator!");
    EXPECT_THROW(p.AddOneShot(1.0, unnamed), std::logic_error);
    EXPECT_EQ(env.world->log.back(), "Unknown Timer Event!");
}

TEST_F(UpdaterWalkTest, VirtualUpdaterIsNamedByItsTableRow) {
    EXPECT_EQ(p.UpdaterName(&HULLKIT::WatchMainEngine), "H_ME_WATCH");
    EXPECT_EQ(p.UpdaterName(Call(&ProbeVessel::U_B)), "U_B");
    EXPECT_EQ(p.TimerName(&HULLKIT::H_UNPARK), "H_UNPARK");
    EXPECT_EQ(p.UpdaterName(&HULLKIT::H_UNPARK), "");
}
