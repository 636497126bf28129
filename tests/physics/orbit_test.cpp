// Orbits flown by the integrator: Kepler's period, and the conservation of
// energy and angular momentum whatever the time acceleration, with and
// without the Earth's oblateness.
#include <gtest/gtest.h>

#include <cmath>

#include "flight_test_support.h"
#include "physics/gravity.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

double SpecificEnergy(const World &w, const Vessel &v) {
    const Body &earth = *w.bodies.front();
    const VECTOR3 r = v.pos - earth.pos, vel = v.vel - earth.vel;
    return 0.5 * dotp(vel, vel) + physics::BodyPotential(earth, VECTOR3{0, 1, 0}, r);
}

VECTOR3 AngularMomentum(const World &w, const Vessel &v) {
    const Body &earth = *w.bodies.front();
    return crossp(v.pos - earth.pos, v.vel - earth.vel);
}

} // namespace

class Conservation : public ::testing::TestWithParam<double> {};

// A slightly eccentric low orbit, flown for ten revolutions of Kepler's
// period, closes on itself.
TEST_P(Conservation, EnergyAndAngularMomentumHoldAndTheOrbitCloses) {
    World w(".");
    KeepOnlyPlainEarth(w);
    const double rp = kEarthRadius + 300e3, e = 0.02;
    const double a = rp / (1 - e);
    const double vp = std::sqrt(kEarthMu * (1 + e) / rp);
    const double period = PI2 * std::sqrt(a * a * a / kEarthMu);
    const double c = std::cos(0.9), s = std::sin(0.9); // inclined 0.9 rad
    Vessel &v = AddVessel(w, "sat", 1000.0, {rp, 0, 0}, {0, vp * s, vp * c});
    const double e0 = SpecificEnergy(w, v);
    const VECTOR3 h0 = AngularMomentum(w, v);
    w.accel = GetParam();
    const int orbits = 10;
    RunFor(w, orbits * period);
    const double energyDrift = std::fabs(SpecificEnergy(w, v) / e0 - 1.0);
    const double momentumDrift = length(AngularMomentum(w, v) - h0) / length(h0);
    EXPECT_LT(energyDrift / orbits, 1e-9);
    EXPECT_LT(momentumDrift / orbits, 1e-9);
    EXPECT_LT(dist(v.pos, VECTOR3{rp, 0, 0}), 10.0);
}

INSTANTIATE_TEST_SUITE_P(TimeAccelerations, Conservation, ::testing::Values(1.0, 100.0, 10000.0));

TEST(Orbit, OblateEarthKeepsEnergyAndPolarMomentum) {
    World w(".");
    KeepOnlyPlainEarth(w, 1.085e-3);
    const double r = kEarthRadius + 500e3, vc = std::sqrt(kEarthMu / r);
    const double c = std::cos(1.0), s = std::sin(1.0);
    Vessel &v = AddVessel(w, "sat", 1000.0, {r, 0, 0}, {0, vc * s, vc * c});
    const double e0 = SpecificEnergy(w, v);
    const double hPole0 = AngularMomentum(w, v).y;
    const VECTOR3 h0 = AngularMomentum(w, v);
    w.accel = 1000.0;
    RunFor(w, 5 * PI2 * std::sqrt(r * r * r / kEarthMu));
    EXPECT_LT(std::fabs(SpecificEnergy(w, v) / e0 - 1.0), 5e-9);
    EXPECT_NEAR(AngularMomentum(w, v).y / hPole0, 1.0, 5e-9);
    // ...while the orbit plane precesses about the pole, as J2 makes it do.
    EXPECT_GT(length(AngularMomentum(w, v) - h0) / length(h0), 1e-4);
}
