// The whole recalculation, as the engineer waits for it after every box, with
// the loads read from the dialogs' texts and the trace kept open, as in the
// window. Targets on the development machine, release build: the example beam
// in 10 us or less, the worst case in 0.2 ms or less.

#include "bench/beams.h"
#include "recalc/main_calc.h"
#include "recalc/section_search.h"
#include "ui/load_checks.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

using namespace kvelder;
using namespace kvelder::bench;

void run(benchmark::State& state, Model& m)
{
    const std::filesystem::path scratch = std::filesystem::temp_directory_path() / "kvelder-bench";
    std::filesystem::create_directories(scratch);
    // The loads are read from the dialogs' texts, as in the window.
    LoadDialogs dialogs = load_dialogs(m);
    RecordingScreen screen;
    ScratchFiles trace(scratch); // as the window keeps it
    MainCalc(m, dialogs, screen, trace);
    if (!screen.messages.empty() || !screen.load_failures.empty()) {
        state.SkipWithError("the beam fails its checks");
        return;
    }
    for (auto _ : state) {
        MainCalc(m, dialogs, screen, trace);
        benchmark::DoNotOptimize(m.Uf_mom);
    }
}

void ExampleBeam(benchmark::State& state)
{
    auto m = example();
    run(state, *m);
}

void WorstCase(benchmark::State& state)
{
    auto m = worst_case();
    if (!m) {
        state.SkipWithError("no worst case");
        return;
    }
    run(state, *m);
}

// The lightest section of the worst case's family, every catalogue profile of
// laminated timber tried: at most 50 ms.
void SizeWorstCase(benchmark::State& state)
{
    auto m = worst_case();
    if (!m) {
        state.SkipWithError("no worst case");
        return;
    }
    const LoadDialogs dialogs = load_dialogs(*m);
    for (auto _ : state) {
        const SectionSearch found = find_lightest_section(*m, &dialogs);
        benchmark::DoNotOptimize(found.candidates.data());
    }
}

BENCHMARK(ExampleBeam)->Unit(benchmark::kMicrosecond);
BENCHMARK(WorstCase)->Unit(benchmark::kMicrosecond);
BENCHMARK(SizeWorstCase)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
