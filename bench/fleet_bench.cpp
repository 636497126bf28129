// The host at scale, with vessels of the shipped fleet loaded through their
// modules from the build's root:
// - FleetLoad: loading a scenario of N vessels (Korvan stages and Generic
//   pieces in orbit), per scenario and per vessel;
// - FleetFrame: one frame of that world, per frame and per vessel;
// - FleetSave: that world, after a frame, written as a scenario's text, as
//   --save and each --save-at do;
// - GenericFrame: one frame of a single Generic piece standing on the
//   ground against the same piece in orbit, at time accelerations 1 and 10.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench_world.h"
#include "scenario/scenario_world.h"

namespace {

// Seconds per vessel, from the time of all iterations.
benchmark::Counter PerVessel(const benchmark::State &state, int vessels) {
    return benchmark::Counter(static_cast<double>(vessels),
                              benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void FleetLoad(benchmark::State &state) {
    const int count = static_cast<int>(state.range(0));
    const hullhost::ScenarioFile scenario = bench::OrbitingFleet(count);
    for (auto _ : state) {
        state.PauseTiming(); // the empty world and its teardown are not the load
        auto world = std::make_unique<bench::RootWorld>();
        state.ResumeTiming();
        hullhost::LoadScenario(**world, scenario);
        state.PauseTiming();
        if ((*world)->Vessels().size() != static_cast<size_t>(count))
            state.SkipWithError("the scenario did not load every vessel");
        world.reset();
        state.ResumeTiming();
    }
    state.counters["per_vessel"] = PerVessel(state, count);
}

void FleetFrame(benchmark::State &state) {
    const int count = static_cast<int>(state.range(0));
    bench::RootWorld world(bench::OrbitingFleet(count));
    for (auto _ : state)
        world->Frame(bench::kFrame);
    if (world->Vessels().size() != static_cast<size_t>(count))
        state.SkipWithError("vessels were created or deleted while the world ran");
    state.counters["per_vessel"] = PerVessel(state, count);
}

void FleetSave(benchmark::State &state) {
    const int count = static_cast<int>(state.range(0));
    const hullhost::ScenarioFile scenario = bench::OrbitingFleet(count);
    bench::RootWorld world(scenario);
    world->Frame(bench::kFrame);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = hullhost::CaptureScenario(*world, scenario).Text();
        bytes = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.counters["per_vessel"] = PerVessel(state, count);
    state.counters["bytes"] = static_cast<double>(bytes);
}

void GenericFrame(benchmark::State &state) {
    const bool landed = state.range(0) != 0;
    bench::RootWorld world(bench::Scenario(
        {{"G-1", "Fleet\\Generic", landed ? bench::LandedLines() : bench::OrbitLines(200e3, 0.0, 0.0)}}));
    world->accel = static_cast<double>(state.range(1));
    for (auto _ : state)
        world->Frame(bench::kFrame);
    // A landed piece that took off costs what its ground contact costs: the
    // figure says so rather than hide it.
    state.counters["landed_at_end"] = world->Vessels().front()->landed ? 1.0 : 0.0;
}

} // namespace

BENCHMARK(FleetLoad)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(FleetFrame)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(FleetSave)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(GenericFrame)
    ->ArgNames({"landed", "accel"})
    ->ArgsProduct({{0, 1}, {1, 10}})
    ->Unit(benchmark::kMicrosecond);
