// Orbital elements of known states, read through the vessel interface, and the
// host's scenario keys that carry a state.
#include <gtest/gtest.h>

#include <cmath>

#include "VesselAPI.h"
#include "core/line_file.h"
#include "flight_test_support.h"
#include "physics/kepler.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

void Parse(VESSEL &iface, VESSELSTATUS2 &st, const char *text) {
    std::string line = text;
    iface.ParseScenarioLineEx(line.data(), &st);
}

} // namespace

// A state at perigee, set by hand, and an elements line a quarter of an
// orbit past perigee.
TEST(Elements, OfAStateAtPerigeeAndOfAnElementsLine) {
    World w(".");
    Body &earth = *w.Earth();
    const double rp = kEarthRadius + 200e3, ra = kEarthRadius + 35786e3;
    const double a = (rp + ra) / 2.0, e = (ra - rp) / (ra + rp);
    const double vp = std::sqrt(kEarthMu * (2.0 / rp - 1.0 / a));
    const double inc = 28.5 * RAD;
    // Perigee on the ascending node, in the Earth's equatorial frame (y north).
    const VECTOR3 r{rp, 0, 0}, v{0, vp * std::sin(inc), vp * std::cos(inc)};
    Vessel &vessel = AddVessel(w, "gto", 1000.0, mul(earth.equatorial, r), mul(earth.equatorial, v));
    VESSEL iface(vessel.Handle());
    ELEMENTS el;
    ORBITPARAM prm;
    ASSERT_TRUE(iface.GetElements(earth.Handle(), el, &prm, 0.0, FRAME_EQU));
    EXPECT_NEAR(el.a, a, 1e-3);
    EXPECT_NEAR(el.e, e, 1e-10);
    EXPECT_NEAR(el.i, inc, 1e-12);
    EXPECT_NEAR(el.theta, 0.0, 1e-12);
    EXPECT_NEAR(prm.AgP, 0.0, 1e-9);
    EXPECT_NEAR(prm.PeD, rp, 1e-3);
    EXPECT_NEAR(prm.ApD, ra, 1e-3);
    double period = PI2 * std::sqrt(a * a * a / kEarthMu);
    EXPECT_NEAR(prm.T, period, 1e-6);
    // At perigee now: the next one is a period away (or, by rounding, no time at all).
    EXPECT_NEAR(std::min(prm.PeT, period - prm.PeT), 0.0, 1e-3);
    EXPECT_NEAR(prm.ApT, period / 2.0, 1e-3);
    double apDist, peDist;
    EXPECT_EQ(iface.GetApDist(apDist), earth.Handle());
    iface.GetPeDist(peDist);
    EXPECT_NEAR(apDist, ra, 1e-3);
    EXPECT_NEAR(peDist, rp, 1e-3);
    // The ecliptic inclination differs by up to the obliquity.
    ASSERT_TRUE(iface.GetElements(earth.Handle(), el, &prm, 0.0, FRAME_ECL));
    EXPECT_GT(std::fabs(el.i - inc), 1e-3);

    VESSEL sat(w.AddBareVessel("sat").Handle());
    VESSELSTATUS2 st{};
    st.version = 2;
    Parse(sat, st, "STATUS Orbiting Earth");
    Parse(sat, st, "ELEMENTS 8000000 0.1 51.6 40 100 190"); // mean anomaly 90 deg
    sat.DefSetStateEx(&st);
    ASSERT_TRUE(sat.GetElements(earth.Handle(), el, &prm, 0.0, FRAME_EQU));
    EXPECT_NEAR(el.a, 8e6, 1e-3);
    EXPECT_NEAR(el.e, 0.1, 1e-10);
    EXPECT_NEAR(el.i * DEG, 51.6, 1e-9);
    EXPECT_NEAR(el.theta * DEG, 40.0, 1e-9);
    EXPECT_NEAR(el.omegab * DEG, 100.0, 1e-9);
    EXPECT_NEAR(el.L * DEG, 190.0, 1e-9);
    period = PI2 * std::sqrt(8e6 * 8e6 * 8e6 / kEarthMu);
    EXPECT_NEAR(prm.PeT, 0.75 * period, 1e-3);
    EXPECT_NEAR(prm.ApT, 0.25 * period, 1e-3);
}

TEST(ScenarioState, SavedStateLoadsBackTheSame) {
    World w(".");
    Vessel &v = AddVessel(w, "sat", 1000.0, {7e6, 1e5, -2e5}, {100.0, 50.0, 7500.0});
    v.rot = physics::OrientationFromAngles({0.2, -0.4, 1.3});
    v.omega = {0.01, -0.02, 0.03};
    VESSEL iface(v.Handle());
    LineFile out;
    iface.SaveDefaultState(out.Handle());
    ASSERT_EQ(out.Written().front(), "STATUS Orbiting Earth");

    Vessel &copy = w.AddBareVessel("copy");
    VESSEL copyIface(copy.Handle());
    VESSELSTATUS2 st{};
    st.version = 2;
    for (const std::string &line : out.Written()) {
        Parse(copyIface, st, line.c_str());
    }
    copyIface.DefSetStateEx(&st);
    EXPECT_LT(dist(copy.pos, v.pos), 1e-6);
    EXPECT_LT(dist(copy.vel, v.vel), 1e-9);
    EXPECT_LT(dist(copy.omega, v.omega), 1e-12);
    EXPECT_LT(dist(physics::Column(copy.rot, 2), physics::Column(v.rot, 2)), 1e-12);
}
