// Failures as they strike a burning stage, the fire's course, the decay of a
// failed engine, a stuck channel, and the saved forms through a reload. How a
// stuck channel is felt is the attitude loop's, tested with it.
#include <algorithm>

#include "environment_fixture.h"

namespace {

class FailureTest : public EnvironmentTest {
  protected:
    // A stage in orbit with its engine at full.
    Korvan &Burning(const std::vector<std::string> &extra = {}) {
        auto &k = static_cast<Korvan &>(Load("Korvan-1", "Fleet\\Korvan", kOrbit, extra));
        Run(0.1);
        k.SetThrusterGroupLevel(THGROUP_MAIN, 1.0);
        return k;
    }
    void Strike(HULLKIT &k, int kind) {
        k.FailureKind = kind;
        hullhost::CallbackScope scope(*world, k.HostVessel());
        k.H_FAIL_ACT();
    }
};

TEST_F(FailureTest, EachKindActsAsItShould) {
    {
        Korvan &k = Burning();
        Strike(k, 1);
        EXPECT_EQ(k.FireLevel, 0.1);
        EXPECT_TRUE(k.HasUpdater(&HULLKIT::H_FAIL_FIRE));
        EXPECT_EQ(Message(k), "Engine fire detected!");
        const auto onFire = std::count_if(k.HostVessel()->streams.begin(), k.HostVessel()->streams.end(),
                                          [&](const auto &s) { return s->level == &k.FireLevel; });
        EXPECT_EQ(onFire, 2);
        world->RequestDelete(*k.HostVessel());
    }
    {
        Korvan &k = Burning({"HK_FLAGS 0 0"});
        Strike(k, 2);
        EXPECT_TRUE(k.MainEngineFailed);
        EXPECT_EQ(Message(k), "Engine failure detected!");
        // From full level the engine dies in 3 to 7 s, whatever it is set to.
        Run(2.9);
        EXPECT_GT(k.GetThrusterGroupLevel(THGROUP_MAIN), 0.0);
        k.SetThrusterGroupLevel(THGROUP_MAIN, 1.0);
        Run(7.1);
        EXPECT_EQ(k.GetThrusterGroupLevel(THGROUP_MAIN), 0.0);
        world->RequestDelete(*k.HostVessel());
    }
    {
        Korvan &k = Burning();
        Strike(k, 4);
        EXPECT_EQ(k.PitchFailed + k.YawFailed + k.RollFailed, 1);
        EXPECT_NE(Message(k).find("control channel failure detected!"), std::string::npos);
        const double stuck = k.PitchStuckAngle + k.YawStuckAngle + k.RollStuckAngle;
        EXPECT_NE(stuck, 0.0);
        EXPECT_LE(std::abs(stuck), PI);
        world->RequestDelete(*k.HostVessel());
    }
    {
        // A channel the scenario named fails again; only its angle is drawn.
        Korvan &k = Burning({"FAILURES 0 4 0 1 0"});
        Strike(k, 4);
        EXPECT_TRUE(k.YawFailed && !k.PitchFailed && !k.RollFailed);
        EXPECT_EQ(Message(k), "Yaw control channel failure detected!");
    }
}

// The fire grows for 10 to 20 s and burns 5 to 10 s at full before the crash.
TEST_F(FailureTest, FireEndsInACrashWithin15To30Seconds) {
    Korvan &k = Burning();
    Strike(k, 1);
    const double start = world->simt;
    Run(40.0, 0.05, [&] { return !world->FindVessel("Korvan-1"); });
    const double took = world->simt - start;
    EXPECT_GE(took, 15.0);
    EXPECT_LE(took, 30.1);
    EXPECT_TRUE(world->FindVessel("Korvan-1-Wreck-00"));
}

// The failure, fire, temperature and touchdown points come back from the
// saved lines as they were saved.
TEST_F(FailureTest, SavedFormsComeBackThroughAReload) {
    const std::vector<std::string> lines = {
        "RELIABILITY 100.5", "FAILURES 2 4 0 1 0", "FIRE 12.000000 6.000000 14.000000 0.500000 0.800000",
        "TEMPERATURE 1500",
        "MTDP 0.000000 -1.000000 2.000000 -1.000000 -1.000000 -2.000000 1.000000 "
        "-1.000000 -2.000000"};
    std::vector<std::string> scenario = lines;
    scenario.push_back("UPDATERS H_FAIL_FIRE");
    auto &k = static_cast<Korvan &>(Load("Korvan-1", "Fleet\\Korvan", kOrbit, scenario));
    EXPECT_EQ(k.GetThrusterGroupLevel(THGROUP_MAIN), 0.8);
    EXPECT_TRUE(k.HasUpdater(&HULLKIT::H_FAIL_FIRE));
    const std::vector<std::string> saved = Save(k);
    for (const std::string &line : lines)
        EXPECT_NE(std::find(saved.begin(), saved.end(), line), saved.end()) << line;
}

} // namespace
