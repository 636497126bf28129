// Touchdowns judged as impacts, hard or soft landings; parking; and the
// crash routine with its wrecks and the blast that reaches the neighbours.
#include <algorithm>
#include <cstdio>

#include "environment_fixture.h"

namespace {

class TouchdownTest : public EnvironmentTest {
  protected:
    // Where a vessel stands on the Earth [rad].
    static VECTOR3 Place(HULLKIT &k) {
        double lng, lat, r;
        k.GetEquPos(lng, lat, r);
        return {lng, lat, r};
    }
    const hullhost::Vessel *Find(const std::string &name) const { return world->FindVessel(name); }
};

// The stage breaks up at 1.5 to 3 m/s down or 0.5 to 1.5 m/s across the
// ground, explodes if it still holds propellant, and is blown to pieces
// beyond 40 to 60 m/s; made indestructible it parks at any speed. On the
// ground it leaves one wreck of 0.95 of its empty mass.
TEST_F(TouchdownTest, EachTouchdownEndsParkedWreckedOrBlown) {
    struct Row {
        bool destructible, fuelled;
        double down, across;
        const char *outcome; // parked, wreck, blast
        const char *look;
    } rows[] = {
        {true, true, 1.0, 0.0, "parked", ""},
        {true, false, 8.0, 0.0, "wreck", "Fleet\\KorvanWreck"},
        {true, false, 0.3, 3.0, "wreck", "Fleet\\KorvanWreck"},
        {true, true, 8.0, 0.0, "blast", "Fleet\\KorvanWreck"},
        {true, false, 150.0, 0.0, "blast", "Fleet\\Debris"}, // no look told
        {false, true, 150.0, 0.0, "parked", ""},
    };
    int n = 0;
    for (const Row &r : rows) {
        const std::string name = "K" + std::to_string(n++);
        HULLKIT &k = Load(name.c_str(), "Fleet\\Korvan", kGround);
        k.Destructible = r.destructible;
        if (!r.fuelled)
            for (DWORD i = 0; i < k.GetPropellantCount(); ++i)
                k.SetPropellantMass(k.GetPropellantHandleByIndex(i), 0.0);
        const double emptyMass = k.GetEmptyMass();
        Run(0.1);
        Drop(k, 0.01, r.down, r.across);
        Run(0.5);
        const std::string outcome = r.outcome;
        SCOPED_TRACE(name + " " + outcome);
        if (outcome == "parked") {
            ASSERT_TRUE(Find(name));
            EXPECT_TRUE(k.Landed);
            EXPECT_TRUE(Host(k).landed);
            EXPECT_FALSE(k.HasUpdater(&HULLKIT::H_GROUND_WATCH)); // parked: no watches
            continue;
        }
        EXPECT_FALSE(Find(name));
        const hullhost::Vessel *wreck = Find(name + "-Wreck");
        ASSERT_TRUE(wreck);
        EXPECT_TRUE(wreck->landed);
        EXPECT_NEAR(wreck->emptyMass, 0.95 * emptyMass, 1e-9);
        EXPECT_EQ(wreck->meshes.at(0).file, r.look);
        const bool bursting = std::any_of(wreck->streams.begin(), wreck->streams.end(),
                                          [](const auto &s) { return s->level && *s->level > 0.0; });
        EXPECT_EQ(bursting, outcome == "blast");
    }
}

// A vessel off the ground again within 0.2 s of touching isn't parked, and
// its next contact is a touchdown of its own. Parked, the vessel stays put
// for a day at any acceleration; its saved form is the landed one.
TEST_F(TouchdownTest, BounceWithinTheDustTimeIsNoParkingAndParkedVesselStaysPutForADay) {
    HULLKIT &k = Load("K", "Fleet\\Korvan", kGround);
    k.Destructible = false; // the bounce is what counts here, not a hard landing
    Run(0.1);
    Drop(k, 0.01, 1.0, 0.0);
    Run(0.04);
    EXPECT_EQ(k.DustLevel, 1.0);
    Drop(k, 20.0, 0.0, 0.0);
    Run(0.3);
    EXPECT_EQ(k.DustLevel, 0.0);
    EXPECT_FALSE(k.Landed);
    Run(3.0, 0.02, [&] { return k.DustLevel > 0.0; });
    EXPECT_EQ(k.DustLevel, 1.0);

    Run(1.5);
    ASSERT_TRUE(k.Landed);
    const VECTOR3 start = Place(k);
    // Ten minutes at 1x, six hours at 100x, the rest of the day at 1000x.
    for (auto [accel, seconds] : {std::pair{1.0, 600.0}, {100.0, 21600.0}, {1000.0, 64200.0}}) {
        world->accel = accel;
        Run(seconds, 0.1);
    }
    const VECTOR3 end = Place(k);
    EXPECT_LT(std::hypot(end.x - start.x, end.y - start.y) * start.z, 1.0);
    const std::vector<std::string> saved = Save(k);
    EXPECT_NE(std::find(saved.begin(), saved.end(), "STATUS Landed Earth"), saved.end());
}

// In flight the stage breaks into its three pieces, each with a third of
// 0.95 of its empty mass and of its cross sections, spread within 200/3 m/s
// of its velocity, with the look of its record; all show the explosion.
TEST_F(TouchdownTest, CrashInFlightLeavesOneWreckPerRecord) {
    HULLKIT &k = Load("Korvan-1", "Fleet\\Korvan", kOrbit);
    Run(0.1);
    const double emptyMass = k.GetEmptyMass();
    VECTOR3 cs;
    k.GetCrossSections(cs);
    const VECTOR3 v0 = Host(k).vel;
    {
        hullhost::CallbackScope scope(*world, &Host(k));
        k.OnCrash(false);
    }
    world->Frame(0.0);
    EXPECT_FALSE(Find("Korvan-1"));
    const char *looks[] = {"Fleet\\KorvanWreckTank", "Fleet\\KorvanWreckEngine", "Fleet\\KorvanWreckSkirt"};
    for (int i = 0; i < 3; ++i) {
        char name[32];
        std::snprintf(name, sizeof name, "Korvan-1-Wreck-%.2d", i);
        const hullhost::Vessel *w = Find(name);
        ASSERT_TRUE(w) << name;
        EXPECT_NEAR(w->emptyMass, emptyMass * 0.95 / 3, 1e-9);
        EXPECT_NEAR(w->crossSections.y, cs.y / 3, 1e-12);
        EXPECT_EQ(w->meshes.at(0).file, looks[i]);
        EXPECT_FALSE(w->landed);
        for (double d : {w->vel.x - v0.x, w->vel.y - v0.y, w->vel.z - v0.z})
            EXPECT_LE(std::abs(d), 200.0 / 3 + 1e-9);
        EXPECT_TRUE(std::any_of(w->streams.begin(), w->streams.end(),
                                [](const auto &s) { return s->level && *s->level > 0.0; }));
    }
}

// The blast reaches a stage 200.0 m away, which goes up 1.5 to 4.5 s later
// and takes the one 0.1 m beyond it along.
TEST_F(TouchdownTest, BlastReachesNeighboursWithin200Metres) {
    HULLKIT &a = Load("A", "Fleet\\Korvan", kOrbit);
    HULLKIT &b = Orbiting("B", 6571210.00);
    HULLKIT &c = Orbiting("C", 6571210.10);
    {
        hullhost::CallbackScope scope(*world, &Host(a));
        a.OnCrash(false);
    }
    const auto armed = [](HULLKIT &k) {
        return std::count(k.OneShotEvents.begin(), k.OneShotEvents.end(), &HULLKIT::H_DELAYED_EXPL) == 1;
    };
    EXPECT_TRUE(armed(b));
    EXPECT_FALSE(armed(c));
    Run(1.4);
    EXPECT_TRUE(Find("B"));
    Run(3.2);
    EXPECT_FALSE(Find("B"));
    Run(5.0);
    EXPECT_FALSE(Find("C"));
    EXPECT_TRUE(Find("C-Wreck-00"));
}

} // namespace
