// Thrust: a full burn against the rocket equation, and the exhaust velocity
// that ambient pressure leaves.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <tuple>

#include "flight_test_support.h"
#include "physics/propulsion.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

constexpr double kDry = 1000.0, kPropellant = 3000.0, kThrust = 1e5, kIsp = 3000.0;

Thruster &AddEngine(Vessel &v, double propellant) {
    auto tank = std::make_unique<Propellant>();
    tank->maxMass = tank->mass = propellant;
    auto engine = std::make_unique<Thruster>();
    engine->dir = {0, 0, 1};
    engine->pos = {0, 0, -2};
    engine->maxThrust0 = kThrust;
    engine->isp0 = kIsp;
    engine->propellant = tank.get();
    v.propellants.push_back(std::move(tank));
    v.thrusters.push_back(std::move(engine));
    return *v.thrusters.back();
}

} // namespace

// A full burn at a time acceleration, with a load of propellant that runs out
// on a frame boundary (90 s of burn) or anywhere within a frame; the empty
// tank then gives nothing, nor does a thruster without a tank, set across.
class FullBurn : public ::testing::TestWithParam<std::tuple<double, double>> {};

TEST_P(FullBurn, DeltaVFollowsTheRocketEquation) {
    const auto [accel, propellant] = GetParam();
    World w(".");
    w.bodies.clear(); // deep space
    Vessel &v = AddVessel(w, "stage", kDry, {0, 0, 0}, {0, 0, 0});
    AddEngine(v, propellant).level = 1.0;
    auto loose = std::make_unique<Thruster>();
    loose->dir = {1, 0, 0};
    loose->maxThrust0 = kThrust;
    loose->level = 1.0;
    v.thrusters.push_back(std::move(loose));
    w.accel = accel;
    RunFor(w, 150.0, std::min(0.1, 15.0 / accel));
    const double expected = kIsp * std::log((kDry + propellant) / kDry);
    EXPECT_NEAR(v.vel.z / expected, 1.0, 1e-4);
    EXPECT_NEAR(std::hypot(v.vel.x, v.vel.y), 0.0, 1e-9);
    EXPECT_EQ(v.propellants[0]->mass, 0.0);
    EXPECT_NEAR(v.Mass(), kDry, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(TimeAccelerations, FullBurn,
                         ::testing::Combine(::testing::Values(1.0, 10.0, 100.0, 1000.0, 10000.0),
                                            ::testing::Values(kPropellant, 0.7311 * kPropellant)));

TEST(Thrust, AmbientPressureLowersExhaustVelocityNotFlow) {
    World w(".");
    Vessel &v = AddVessel(w, "stage", kDry, {0, 0, 0}, {0, 0, 0});
    Thruster &engine = AddEngine(v, kPropellant);
    engine.ispRef = 2400.0;
    engine.pRef = 100e3;
    engine.level = 0.5;
    const double flow = physics::ThrusterFlow(engine);
    EXPECT_NEAR(flow, 0.5 * kThrust / kIsp, 1e-12);
    // Thrust is flow times exhaust velocity; halfway to pRef that velocity is
    // halfway between its vacuum and its reference value.
    EXPECT_NEAR(physics::ThrusterForce(engine, 0.0) / flow, kIsp, 1e-9);
    EXPECT_NEAR(physics::ThrusterForce(engine, 50e3) / flow, 2700.0, 1e-9);
    EXPECT_NEAR(physics::ThrusterForce(engine, 100e3) / flow, 2400.0, 1e-9);
}
