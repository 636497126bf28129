// The stage's attitude loop: one K_FLIGHT step of a Korvan in its 200 km
// orbit, turning toward the mode's target, without a frame of the host
// around it.
#include <benchmark/benchmark.h>

#include "bench_world.h"
#include "core/program_module.h"
#include "scenario/scenario_world.h"
#include "stage/korvan.h"

namespace {

void AttitudeStep(benchmark::State &state) {
    bench::RootWorld world;
    hullhost::SetProgramModulePath("Modules\\Fleet\\Korvan.dll");
    world->modules.RegisterBuiltin(
        "Fleet\\Korvan", [](OBJHANDLE h, int fm) -> VESSEL * { return new Korvan(h, fm); },
        [](VESSEL *v) { delete static_cast<Korvan *>(v); });
    std::vector<std::string> lines = bench::OrbitLines(200e3, 0.0, 0.0);
    lines.push_back("HK_FLAGS 1 0");
    hullhost::LoadScenario(*world, bench::Scenario({{"K", "Fleet\\Korvan", lines}}));
    auto &k = *static_cast<Korvan *>(world->Vessels().at(0)->iface);
    k.NavOverrideMode = static_cast<int32_t>(state.range(0));
    k.SetAngularVel(_V(0.01, -0.02, 0.005));
    for (auto _ : state) {
        k.K_FLIGHT();
        benchmark::DoNotOptimize(k.AttCommand);
    }
}

} // namespace

// KILLROT, PROGRADE, NORMAL and TANGENT.
BENCHMARK(AttitudeStep)->Arg(1)->Arg(3)->Arg(5)->Arg(9);
