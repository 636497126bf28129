// The updater list: uniqueness, and changes while it is walked.
#include "probe_fixture.h"

using ::testing::ElementsAre;

class UpdaterWalkTest : public ProbeTest {
  protected:
    UpdaterWalkTest() : p(LoadProbe("P1")) {}
    ProbeVessel &p;
};

// An updater added twice runs once; one added during the walk runs in the same
// step; one that removes itself passes over the next one for this step; a
// removal of an earlier one shifts the walk; a removal of one that is not
// there does nothing.
TEST_F(UpdaterWalkTest, ChangesDuringTheWalkTakeEffectInTheListsOrder) {
    using U = void (ProbeVessel::*)();
    const struct {
        std::vector<U> added;
        std::vector<std::string> first, second;
    } cases[] = {
        {{&ProbeVessel::U_A, &ProbeVessel::U_A}, {"A"}, {"A"}},
        {{&ProbeVessel::U_ADDS_C}, {"ADDS_C", "C"}, {"ADDS_C", "C"}},
        {{&ProbeVessel::U_REMOVES_SELF, &ProbeVessel::U_B, &ProbeVessel::U_C},
         {"REMOVES_SELF", "C"},
         {"B", "C"}},
        {{&ProbeVessel::U_A, &ProbeVessel::U_REMOVES_A, &ProbeVessel::U_B, &ProbeVessel::U_C},
         {"A", "REMOVES_A", "C"},
         {"REMOVES_A", "B", "C"}},
    };
    for (const auto &c : cases) {
        ProbeVessel &q = LoadProbe("Q" + std::to_string(&c - cases));
        for (U u : c.added)
            q.AddUpdater(Call(u));
        q.WalkUpdaters();
        EXPECT_EQ(q.runs, c.first) << c.first[0];
        q.runs.clear();
        q.WalkUpdaters();
        EXPECT_EQ(q.runs, c.second) << c.first[0];
    }
    p.AddUpdater(Call(&ProbeVessel::U_A));
    p.RemoveUpdater(Call(&ProbeVessel::U_B));
    p.WalkUpdaters();
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
