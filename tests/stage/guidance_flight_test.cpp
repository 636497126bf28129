// The guidance in flight: every burn target ends in the frame after the one
// that reached it, coasts end at apogee, perigee and equator, and the lunar
// preparation agrees with a two-body computation of its own.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

#include "physics/flight_model.h"
#include "stage_fixture.h"

namespace {

constexpr double kMu = 3.986004418e14; // the host's Earth
constexpr double kR = 6571010.0;       // 200 km above the program's Earth radius
constexpr double kDeg = 0.017453292519943295;
const double kVc = std::sqrt(kMu / kR);

// Speed at an apsis of radius r of the orbit whose other apsis is `other`.
double ApsisSpeed(double r, double other) { return std::sqrt(kMu * 2.0 * other / (r * (r + other))); }

std::string Line(const char *key, const VECTOR3 &v) {
    char text[160];
    std::snprintf(text, sizeof text, "%s %.6f %.6f %.6f", key, v.x, v.y, v.z);
    return text;
}

ELEMENTS Elements(Korvan &k, ORBITPARAM *prm = nullptr) {
    ELEMENTS el{};
    k.GetElements(k.EarthHandle, el, prm, 0.0, FRAME_EQU);
    return el;
}
double Apo(Korvan &k) {
    double r = 0.0;
    k.GetApDist(r);
    return r - 6371000.0;
}
double Peri(Korvan &k) {
    double r = 0.0;
    k.GetPeDist(r);
    return r - 6371000.0;
}
double Latitude(Korvan &k) {
    double lng = 0.0, lat = 0.0, rad = 0.0;
    k.GetEquPos(lng, lat, rad);
    return lat;
}
double PerigeeArgument(Korvan &k) {
    const ELEMENTS el = Elements(k);
    return std::fmod(el.omegab - el.theta + 4 * PI, 2 * PI);
}

// Frames of 0.1 s until the stage's first step is done: the frame in which
// each condition first held, or -1.
std::vector<int> FirstFrames(hullhost::World &world, Korvan &k,
                             const std::vector<std::function<bool()>> &conditions) {
    std::vector<int> at(conditions.size(), -1);
    for (int frame = 1; frame <= 8000 && !k.program->steps[0].done; ++frame) {
        world.Frame(0.1);
        for (size_t i = 0; i < conditions.size(); ++i)
            if (at[i] < 0 && conditions[i]())
                at[i] = frame;
    }
    return at;
}

using Reached = std::function<bool(Korvan &)>;

struct BurnCase {
    const char *name;
    VECTOR3 pos, vel;
    const char *arot;
    const char *step;
    const char *extra; // one more scenario line, or ""
    Reached reached;
};

class BurnTest : public StageTest, public ::testing::WithParamInterface<BurnCase> {};

// The stage holds the attitude it was loaded with (its attitude loop isn't
// started), so each case points the engine by its orientation.
// clang-format off
const BurnCase kBurns[] = {
    {"Apo", {kR, 0, 0}, {0, 0, kVc}, "0 0 0", "BURN PROGRADE APO 400", "",
     [](Korvan &k) { return Apo(k) >= 400e3; }},
    {"ApoL", {kR, 0, 0}, {0, 0, -ApsisSpeed(kR, 6771000.0)}, "0 0 0", "BURN RETROGRADE APOL 300", "",
     [](Korvan &k) { return Apo(k) <= 300e3; }},
    {"ApoE", {0, -kR, 0}, {0, 0, kVc}, "0 0 0", "BURN PROGRADE APOE 400", "",
     [](Korvan &k) { return Apo(k) >= 400e3 && PerigeeArgument(k) >= PI; }},
    {"Peri", {kR, 0, 0}, {0, 0, ApsisSpeed(kR, 6491000.0)}, "0 0 0", "BURN PROGRADE PERI 180", "",
     [](Korvan &k) { return Peri(k) >= 180e3; }},
    {"PeriL", {kR, 0, 0}, {0, 0, -kVc}, "0 0 0", "BURN RETROGRADE PERIL 150", "",
     [](Korvan &k) { return Peri(k) <= 150e3; }},
    {"Inc", {kR, 0, 0}, {0, 0, kVc}, "-90 0 0", "BURN NORMAL INC 22", "",
     [](Korvan &k) { return Elements(k).i <= 22.0 * kDeg; }},
    // Above the target latitude the burn ends 1 percent above the latitude.
    {"IncAtLatitude", {kR * std::cos(70 * kDeg), 0, kR * std::sin(70 * kDeg)},
     {-kVc * std::sin(70 * kDeg), 0, kVc * std::cos(70 * kDeg)}, "-90 0 0", "BURN NORMAL INC 10", "",
     [](Korvan &k) { return std::fabs(Latitude(k)) * 1.01 >= Elements(k).i; }},
    {"EmptyTank", {kR, 0, 0}, {0, 0, kVc}, "0 0 0", "BURN", "RES_MODS Tanks Main:0.001",
     [](Korvan &k) { return k.GetPropellantMass(k.MainTank) == 0.0; }},
    {"EquatorEndsOnlyEmpty", {kR, 0, 0}, {0, 0, kVc}, "0 0 0", "BURN PROGRADE EQU", "RES_MODS Tanks Main:0.001",
     [](Korvan &k) { return k.GetPropellantMass(k.MainTank) == 0.0; }},
};
// clang-format on

TEST_P(BurnTest, EndsInTheFrameAfterItsTargetIsReached) {
    const BurnCase &c = GetParam();
    std::vector<std::string> lines = {
        Line("RPOS", c.pos),          Line("RVEL", c.vel), std::string("AROT ") + c.arot,
        std::string("PGM ") + c.step, "PGM IDLE 100000",   "PGM BURN"};
    if (*c.extra)
        lines.push_back(c.extra);
    Korvan &k = Load(lines);
    Engage(k);
    ASSERT_FALSE(c.reached(k));
    const auto done = [&] { return k.program->steps[0].done; };
    const std::vector<int> at = FirstFrames(
        *world, k, {[&] { return GroupLevel(k, "Main") == 1.0; }, [&] { return c.reached(k); }, done});
    ASSERT_GE(at[1], 0);
    EXPECT_GE(at[0], 0); // it burned
    // Each tick sees the state the frame before it left.
    EXPECT_EQ(at[2], at[1] + 1);
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
    EXPECT_EQ(k.program->current, &k.program->steps[1]);
}

INSTANTIATE_TEST_SUITE_P(Targets, BurnTest, ::testing::ValuesIn(kBurns),
                         [](const ::testing::TestParamInfo<BurnCase> &param) {
                             return std::string(param.param.name);
                         });

using FlightTest = StageTest;

TEST_F(FlightTest, ApogeeWithThePerigeeArgumentBelow180GoesOnBurning) {
    Korvan &k = Load({Line("RPOS", {0, kR, 0}), Line("RVEL", {0, 0, kVc}), "PGM BURN PROGRADE APOE 400",
                      "PGM IDLE 100000", "PGM BURN"});
    Engage(k);
    while (Apo(k) < 450e3 && world->simt < 300.0)
        world->Frame(0.1);
    EXPECT_GE(Apo(k), 450e3);
    EXPECT_LT(PerigeeArgument(k), PI);
    EXPECT_FALSE(k.program->steps[0].done);
    EXPECT_EQ(GroupLevel(k, "Main"), 1.0);
}

// A target met at the start ends the burn in its first tick and cuts its
// ullage short: no firing is spent. A BURN MOON with nothing prepared is met
// at once.
TEST_F(FlightTest, ABurnWhoseTargetIsMetEndsInItsFirstTickWithNoFiringSpent) {
    Korvan &k = Load({"PGM BURN PROGRADE APO 100", "PGM BURN PROGRADE MOON", "PGM IDLE 100000"});
    Engage(k);
    EXPECT_TRUE(k.ullageInProgress);
    world->Frame(0.1);
    EXPECT_TRUE(k.program->steps[0].done);
    EXPECT_EQ(Message(k), "Main engine shutdown. 30 engine firings left.");
    world->Frame(0.1);
    EXPECT_TRUE(k.program->steps[1].done);
    EXPECT_EQ(k.ignitionsUsed, 0);
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
}

// Toward the prepared apogee the engine runs at a tenth from 95 percent of
// it; the step ends past it.
TEST_F(FlightTest, MoonBurnThrottlesDownAndEndsAtThePreparedApogee) {
    Korvan &k =
        Load({"AP_PARAMS 0 0 7000000 6650000", "PGM BURN PROGRADE MOON", "PGM IDLE 100000", "PGM BURN"});
    Engage(k);
    const auto ap = [&] { return Apo(k) + 6371000.0; };
    const std::vector<int> at =
        FirstFrames(*world, k,
                    {[&] { return ap() > 6650000.0; }, [&] { return GroupLevel(k, "Main") == 0.1; },
                     [&] { return ap() > 7000000.0; }, [&] { return k.program->steps[0].done; }});
    ASSERT_GT(at[0], 0);
    EXPECT_EQ(at[1], at[0] + 1); // throttled down
    EXPECT_EQ(at[3], at[2] + 1); // ended
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
}

// Three stages on one 200 x 600 km orbit, just past perigee in the north,
// coast to 120 s before apogee, 60 s before perigee and 30 s before the
// equator; the flight itself shows when those come.
TEST_F(FlightTest, CoastsEndBeforeApogeePerigeeAndEquatorByTheirOffsets) {
    const std::vector<std::string> orbit = {Line("RPOS", {0, kR, 0}),
                                            Line("RVEL", {0, 0, ApsisSpeed(kR, 6971000.0)})};
    const char *steps[] = {"PGM IDLE APO -120", "PGM IDLE PERI -60", "PGM IDLE EQU -30"};
    std::vector<Korvan *> stages;
    for (const char *step : steps) {
        std::vector<std::string> lines = orbit;
        lines.insert(lines.end(), {step, "PGM IDLE 100000"});
        stages.push_back(&Load(lines, false, step));
    }
    Run(1.0);
    for (Korvan *k : stages)
        k->ToggleControlMode();
    const double dt = 1.0;
    std::vector<double> seen(3, -1.0); // the time of the state that the ending tick saw
    std::vector<double> t, radius, lat;
    while (world->simt < 6000.0) {
        const double before = world->simt;
        t.push_back(before);
        VECTOR3 p;
        stages[0]->GetRelativePos(stages[0]->EarthHandle, p);
        radius.push_back(length(p));
        lat.push_back(Latitude(*stages[0]));
        world->Frame(dt);
        for (size_t i = 0; i < 3; ++i)
            if (seen[i] < 0 && stages[i]->program->steps[0].done)
                seen[i] = before;
    }
    // Apogee and perigee from a parabola through the extreme sample and its
    // neighbours; the equator where the latitude changes sign.
    const auto extreme = [&](bool highest, double after) {
        size_t best = 0;
        for (size_t i = 1; i + 1 < t.size(); ++i)
            if (t[i] > after &&
                (best == 0 || (highest ? radius[i] > radius[best] : radius[i] < radius[best])))
                best = i;
        const double a = radius[best - 1], b = radius[best], c = radius[best + 1];
        return t[best] + dt * 0.5 * (a - c) / (a - 2 * b + c);
    };
    const double apogee = extreme(true, 0.0), perigee = extreme(false, 600.0);
    double equator = -1.0;
    for (size_t i = 1; i < t.size() && equator < 0; ++i)
        if ((lat[i - 1] > 0) != (lat[i] > 0))
            equator = t[i - 1] + dt * lat[i - 1] / (lat[i - 1] - lat[i]);
    const double events[] = {apogee - 120.0, perigee - 60.0, equator - 30.0};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_GE(seen[i], events[i] - 0.01) << steps[i];
        EXPECT_LE(seen[i], events[i] + dt + 0.01) << steps[i];
    }
}

// Two-body motion by fourth-order Runge-Kutta, in steps of a small share of
// the orbit, until `f` of the position has changed sign `count` times
// (from below to above, if `rising`); the time of the last change.
double Crossing(VECTOR3 r, VECTOR3 v, double mu, const std::function<double(const VECTOR3 &)> &f, int count,
                bool rising) {
    const auto accel = [mu](const VECTOR3 &p) { return p * (-mu / std::pow(length(p), 3)); };
    double t = 0.0, before = f(r);
    for (int seen = 0; t < 40 * 86400.0;) {
        const double h = 0.001 * length(r) / length(v);
        const VECTOR3 k1v = accel(r), k1r = v;
        const VECTOR3 k2v = accel(r + k1r * (h / 2)), k2r = v + k1v * (h / 2);
        const VECTOR3 k3v = accel(r + k2r * (h / 2)), k3r = v + k2v * (h / 2);
        const VECTOR3 k4v = accel(r + k3r * h), k4r = v + k3v * h;
        r += (k1r + k2r * 2 + k3r * 2 + k4r) * (h / 6);
        v += (k1v + k2v * 2 + k3v * 2 + k4v) * (h / 6);
        t += h;
        const double now = f(r);
        if ((before < 0) != (now < 0) && (!rising || before < 0) && ++seen == count)
            return t - h * now / (now - before);
        before = now;
    }
    return -1.0;
}

// The lunar preparation of a stage whose orbit crosses the Moon's plane 46
// degrees ahead of the Moon, against the Moon's and the stage's own motion.
class LunarTest : public StageTest {
  protected:
    LunarTest() {
        // A date when the Moon has just passed its periapsis: its node time,
        // counted from periapsis, then needs no turn of the orbit taken off.
        world->mjd0 = 51562.3;
        hullhost::physics::UpdateBodies(*world);
        earth = oapiGetGbodyByName("Earth");
        moon = oapiGetGbodyByName("Moon");
        oapiGetRelativePos(moon, earth, &moonPos);
        oapiGetRelativeVel(moon, earth, &moonVel);
        const VECTOR3 z = unit(crossp(moonPos, moonVel)), r = unit(moonPos);
        node = r * std::cos(46 * kDeg) + crossp(z, r) * std::sin(46 * kDeg);
        moonPlane = z;
        const VECTOR3 h = z * std::cos(30 * kDeg) - crossp(z, node) * std::sin(30 * kDeg);
        const VECTOR3 p = node * std::cos(100 * kDeg) + crossp(h, node) * std::sin(100 * kDeg);
        pos = p * kR;
        vel = unit(crossp(h, p)) * kVc;
    }
    OBJHANDLE earth, moon;
    VECTOR3 moonPos, moonVel, node, moonPlane, pos, vel;
};

// The preparation's results come back from a save in the coast; the
// preparation run again after the reload finds the same apogee.
TEST_F(LunarTest, PreparationMeetsTheMoonAtTheNodeInTwoBodyFlightAndSurvivesASave) {
    const double muMoon = 6.67259e-11 * (oapiGetMass(earth) + oapiGetMass(moon));
    const VECTOR3 toPeriapsis = moonPos * (dotp(moonVel, moonVel) / muMoon - 1 / length(moonPos)) -
                                moonVel * (dotp(moonPos, moonVel) / muMoon);
    ASSERT_GT(dotp(toPeriapsis, moonPos), 0.0);
    ASSERT_GT(dotp(moonPos, moonVel), 0.0);
    Korvan &k = Load({Line("RPOS", pos), Line("RVEL", vel), "PGM IDLE MOON -600", "PGM BURN PROGRADE MOON"});
    // The state it starts from, at the moment of the M key.
    oapiGetRelativePos(moon, earth, &moonPos);
    oapiGetRelativeVel(moon, earth, &moonVel);
    k.GetRelativePos(earth, pos);
    k.GetRelativeVel(earth, vel);
    k.ToggleControlMode();
    const double G = 6.67259e-11, massEarth = oapiGetMass(earth);

    // The Moon reaches the node, where the stage's orbit crosses its plane.
    const VECTOR3 ahead = crossp(moonPlane, node);
    const double moonThere = Crossing(
        moonPos, moonVel, G * (massEarth + oapiGetMass(moon)),
        [&](const VECTOR3 &r) { return dotp(r, ahead); }, 1, true);
    ASSERT_GT(moonThere, 0.0);
    // The stage stands on that line the second time it crosses the Moon's plane.
    const double stageThere = Crossing(
        pos, vel, G * massEarth, [&](const VECTOR3 &r) { return dotp(r, moonPlane); }, 2, false);
    ASSERT_GT(stageThere, 0.0);
    EXPECT_NEAR(k.MoonNodeTime, moonThere - (stageThere - 600.0), 1.0);

    // The transfer from there reaches the Moon's radius in that time; one
    // search step lower it wouldn't.
    const double radius = k.MoonNodeRadius, R = length(pos);
    const auto flight = [&](double apogee) {
        const double a = (apogee + R) / 2;
        return Crossing(
            _V(R, 0, 0), _V(0, std::sqrt(G * massEarth * (2 / R - 1 / a)), 0), G * massEarth,
            [&](const VECTOR3 &r) { return length(r) - radius; }, 1, true);
    };
    const double apogee = k.program->moonApogee, step = radius / 1000.0;
    EXPECT_GT(apogee, radius + 2 * step);
    EXPECT_LT(apogee, 5 * radius);
    EXPECT_LE(flight(apogee), k.MoonNodeTime + 1.0);
    EXPECT_GT(flight(apogee - step), k.MoonNodeTime - 1.0);
    EXPECT_DOUBLE_EQ(k.program->moonThrottleApogee, 0.95 * apogee);

    Run(10.0);
    std::vector<std::string> saved = Saved(k);
    saved.push_back("HK_FLAGS 0 0"); // reloaded in manual control, the program waits

    Korvan &again = Load(saved, false, "K2");
    EXPECT_FALSE(again.AutopilotActive);
    EXPECT_NEAR(again.MoonNodeTime, k.MoonNodeTime, 1e-6);
    EXPECT_NEAR(again.MoonNodeRadius, k.MoonNodeRadius, 1e-6);
    EXPECT_NEAR(again.program->moonApogee, k.program->moonApogee, 1e-6);
    EXPECT_NEAR(again.program->moonThrottleApogee, k.program->moonThrottleApogee, 1e-6);
    again.ToggleControlMode();
    EXPECT_NEAR(again.program->moonApogee, k.program->moonApogee, k.MoonNodeRadius / 1000.0 + 1e-6);
}

} // namespace
