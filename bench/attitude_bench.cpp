// The stage's attitude loop: one K_FLIGHT step of a Korvan in its 200 km
// orbit, turning toward the mode's target, without a frame of the host
// around it. A step that allocates fails the benchmark.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "bench_world.h"
#include "core/program_module.h"
#include "scenario/scenario_world.h"
#include "stage/korvan.h"

namespace {

std::atomic<long> allocations{0};

} // namespace

void *operator new(std::size_t size) {
    ++allocations;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
// The replaced operator new takes its memory from malloc.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

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
    const long before = allocations;
    for (auto _ : state) {
        k.K_FLIGHT();
        benchmark::DoNotOptimize(k.AttCommand);
    }
    if (allocations != before)
        state.SkipWithError("the attitude loop allocated");
}

} // namespace

// KILLROT, PROGRADE, NORMAL and TANGENT.
BENCHMARK(AttitudeStep)->Arg(1)->Arg(3)->Arg(5)->Arg(9);
