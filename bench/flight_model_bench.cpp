// The flight model's cost per frame: a coasting vessel and a thrusting one in
// low Earth orbit, with the Sun, the Earth and the Moon, at several time
// accelerations (the argument). Reports frames per second and simulated
// orbits per wall-clock second.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "core/body.h"
#include "core/world.h"
#include "physics/rotation.h"

using namespace hullhost;

namespace {

constexpr double kFrame = 1.0 / 60.0;

Vessel &AddLeoVessel(World &w) {
    Body &earth = *w.Earth();
    const double r = earth.radius + 300e3, vc = std::sqrt(earth.gm / r);
    Vessel &v = w.AddBareVessel("bench");
    v.emptyMass = 2000.0;
    v.pmi = {4.0, 4.0, 1.0};
    const VECTOR3 up = physics::Column(earth.equatorial, 0), east = physics::Column(earth.equatorial, 2);
    v.ref = &earth;
    v.pos = earth.pos + up * r;
    v.vel = earth.vel + east * vc;
    v.rot = physics::RotationBetweenBases({0, 0, 1}, {0, 1, 0}, east, up);
    return v;
}

double OrbitPeriod(const World &w) {
    const Body &earth = *w.Earth();
    const double r = earth.radius + 300e3;
    return 2.0 * PI * std::sqrt(r * r * r / earth.gm);
}

void Report(benchmark::State &state, const World &w, double simulated) {
    state.SetItemsProcessed(state.iterations());
    state.counters["frames_per_s"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["orbits_per_s"] =
        benchmark::Counter(simulated / OrbitPeriod(w), benchmark::Counter::kIsRate);
}

void CoastingFrame(benchmark::State &state) {
    World w(".");
    AddLeoVessel(w);
    w.accel = static_cast<double>(state.range(0));
    const double start = w.simt;
    for (auto _ : state) {
        w.Frame(kFrame);
    }
    Report(state, w, w.simt - start);
}

void ThrustingFrame(benchmark::State &state) {
    World w(".");
    Vessel &v = AddLeoVessel(w);
    auto tank = std::make_unique<Propellant>();
    tank->maxMass = tank->mass = 1e12; // never runs dry during the run
    auto engine = std::make_unique<Thruster>();
    engine->pos = {0, 0, -3};
    engine->dir = {0, 0, 1};
    engine->maxThrust0 = 20.0; // a gentle burn keeps the orbit while the vessel turns
    engine->isp0 = 3000.0;
    engine->propellant = tank.get();
    engine->level = 1.0;
    auto rcs = std::make_unique<Thruster>();
    rcs->pos = {0, 0, 3};
    rcs->dir = {0, 1, 0};
    rcs->maxThrust0 = 0.01;
    rcs->isp0 = 700.0;
    rcs->propellant = tank.get();
    rcs->level = 1.0;
    v.propellants.push_back(std::move(tank));
    v.thrusters.push_back(std::move(engine));
    v.thrusters.push_back(std::move(rcs));
    w.accel = static_cast<double>(state.range(0));
    const double start = w.simt;
    for (auto _ : state) {
        w.Frame(kFrame);
    }
    Report(state, w, w.simt - start);
}

} // namespace

BENCHMARK(CoastingFrame)->Arg(1)->Arg(100)->Arg(10000);
BENCHMARK(ThrustingFrame)->Arg(1)->Arg(100)->Arg(10000);
