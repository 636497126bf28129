// The flight program's cost on a Korvan stage built into the benchmark, in
// the demo's 200 km orbit:
// - ProgramTick: one tick of the running step, for each kind of step (a
//   JETT tick ends its step and starts the next, so it holds one change of
//   step: the updater off the list and on again, the engine's shutdown
//   request, the search for the next step);
// - LunarPreparation: the preparation of an IDLE MOON step, with the number
//   of passes its apogee search took;
// - ApogeeSearch: that search alone, at its pass limit.
#include <benchmark/benchmark.h>

#include "bench_world.h"
#include "core/program_module.h"
#include "stage/guidance_math.h"
#include "stage/korvan.h"

namespace {

// A stage under its autopilot, flying `program` from its first step.
class StageBench {
  public:
    explicit StageBench(const std::vector<std::string> &program) {
        hullhost::SetProgramModulePath("Modules\\Fleet\\Korvan.dll");
        world->modules.RegisterBuiltin(
            "Fleet\\Korvan", [](OBJHANDLE h, int fm) -> VESSEL * { return new Korvan(h, fm); },
            [](VESSEL *v) { delete static_cast<Korvan *>(v); });
        std::vector<std::string> lines = bench::OrbitLines(200e3, 0.0, 0.0);
        lines.push_back("HK_FLAGS 0 0");
        lines.insert(lines.end(), program.begin(), program.end());
        hullhost::Vessel &v = world->ConstructVessel("Korvan-1", "Fleet\\Korvan");
        world->LoadVesselState(v, lines);
        world->PostCreate(v);
        stage = static_cast<Korvan *>(v.iface);
        world->Frame(bench::kFrame);
        world->Frame(bench::kFrame);
        stage->HasFocus = true; // the display line is written too
        stage->ToggleControlMode();
    }
    bench::RootWorld world;
    Korvan *stage = nullptr;
};

void ProgramTick(benchmark::State &state, std::vector<std::string> program) {
    StageBench bench(program);
    FlightProgram &p = *bench.stage->program;
    const bool changes = p.current->type == ProgramStep::kJett;
    for (auto _ : state) {
        if (changes) { // back to the first of the two steps
            p.steps[0].done = p.steps[1].done = false;
            p.current = &p.steps[0];
        }
        p.Tick();
        benchmark::DoNotOptimize(p.text);
    }
    if (!bench.stage->AutopilotActive || (!changes && p.current->done))
        state.SkipWithError("the step ended while it was measured");
}

void LunarPreparation(benchmark::State &state) {
    StageBench bench({"PGM IDLE MOON -600", "PGM BURN PROGRADE MOON"});
    Korvan &k = *bench.stage;
    for (auto _ : state) {
        k.program->PrepareLunarTransfer();
        benchmark::DoNotOptimize(k.program->moonApogee);
    }
    state.counters["passes"] =
        guidance::SearchTransferApogee(k.MuEarth, k.RadiusNow, k.MoonNodeRadius, k.MoonNodeTime).passes;
}

void ApogeeSearch(benchmark::State &state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(guidance::SearchTransferApogee(3.986004418e14, 6571010.0, 3.844e8, -1.0));
}

} // namespace

BENCHMARK_CAPTURE(ProgramTick, Idle, {"PGM IDLE 1000000000"});
BENCHMARK_CAPTURE(ProgramTick, IdleEquator, {"PGM IDLE EQU 100000"});
BENCHMARK_CAPTURE(ProgramTick, Att, {"PGM ATT PROGRADE 1000000000"});
BENCHMARK_CAPTURE(ProgramTick, BurnApogee, {"PGM BURN PROGRADE APO 100000", "PGM BURN"});
BENCHMARK_CAPTURE(ProgramTick, BurnInclination, {"PGM BURN NORMAL INC 0", "PGM BURN"});
BENCHMARK_CAPTURE(ProgramTick, Jett, {"PGM JETT NOBODY", "PGM JETT NOBODY", "PGM IDLE 1000000000"});
BENCHMARK(LunarPreparation)->Unit(benchmark::kMicrosecond);
BENCHMARK(ApogeeSearch)->Unit(benchmark::kMicrosecond);
