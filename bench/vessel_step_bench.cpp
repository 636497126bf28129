// The cost of a vessel's step: one indirect call per active updater; and the
// flight watch, the costliest updater of a vessel in air.
#include <benchmark/benchmark.h>

#include "probe_vessel.h"
#include "test_world.h"

namespace {

void VesselStep(benchmark::State &state) {
    testing_support::TestWorld env;
    env.AddClass("Probe", ProbeInit, ProbeExit);
    auto &p = testing_support::Object<ProbeVessel>(env.Load("P", "Test\\Probe", {"STATUS Orbiting Earth"}));
    // The four timer lists with nothing due: each costs its serving updater's call.
    const int lists = static_cast<int>(state.range(0));
    if (lists > 0)
        p.AddOneShot(1e9, &HULLKIT::H_NO_ACT);
    if (lists > 1)
        p.AddEngineOneShot(1e9, &HULLKIT::H_NO_ACT);
    if (lists > 2)
        p.AddSecondEvent(&HULLKIT::H_NO_ACT);
    if (lists > 3)
        p.AddMinuteEvent(&HULLKIT::H_NO_ACT);
    p.SkipNextStep = false;
    double t = 0.0;
    for (auto _ : state) {
        p.clbkPreStep(t += 1e-3, 1e-3, 0.0);
        benchmark::DoNotOptimize(p.SimTime);
    }
    state.counters["updaters"] = static_cast<double>(p.Updaters.size());
}

// A step with the gusty wind and the main engine watch (silent: no library).
void WindAndEngineStep(benchmark::State &state) {
    testing_support::TestWorld env;
    env.AddClass("Probe", ProbeInit, ProbeExit);
    hullhost::Vessel &host = env.Load("P", "Test\\Probe", {"STATUS Orbiting Earth"});
    auto &p = testing_support::Object<ProbeVessel>(host);
    p.WindGusty = true;
    p.WindForce = 1000.0;
    p.AddUpdater(&HULLKIT::P_WINDS);
    p.AddUpdater(&HULLKIT::WatchMainEngine);
    p.SkipNextStep = false;
    double t = 0.0;
    for (auto _ : state) {
        host.forces.clear(); // as the host does each frame
        p.clbkPreStep(t += 1e-3, 1e-3, 0.0);
        benchmark::DoNotOptimize(host.forces.data());
    }
    state.counters["updaters"] = static_cast<double>(p.Updaters.size());
}

// The flight watch of a vessel in air at 60 km: heating, hot wake, glow and
// the pressure limit, with the host's air data it asks for.
void AtmosphereFlightStep(benchmark::State &state) {
    testing_support::TestWorld env;
    env.AddClass("Probe", ProbeInit, ProbeExit);
    auto &p = testing_support::Object<ProbeVessel>(env.Load(
        "P", "Test\\Probe", {"STATUS Orbiting Earth", "RPOS 6431010 0 0", "RVEL 0 0 7000", "AROT 0 0 0"}));
    p.SimStep = 1e-3;
    for (auto _ : state) {
        p.H_ATM_FLT();
        benchmark::DoNotOptimize(p.Temperature);
    }
    state.counters["dynPressure"] = p.DynPressure;
}

} // namespace

BENCHMARK(VesselStep)->Arg(0)->Arg(1)->Arg(2)->Arg(3)->Arg(4);
BENCHMARK(WindAndEngineStep);
BENCHMARK(AtmosphereFlightStep);
