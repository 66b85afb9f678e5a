// From a span edit to the repainted window: the engineer leaves a span box,
// the beam is recalculated, every panel and picture follows, and the window
// paints. Target, release build, offscreen: a median of 16 ms (one frame) or
// less for the worst-case beam.

#include "bench/beams.h"
#include "drawing/headless_platform.h"
#include "files/recent_files.h"
#include "gui/input_box.h"
#include "gui/main_window.h"
#include "gui/prompter.h"
#include "ui/load_checks.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

using namespace kvelder;

// Answers nothing: a benchmark has no one to ask.
void SpanEditToRepaint(benchmark::State& state)
{
    auto m = bench::worst_case();
    if (!m) {
        state.SkipWithError("no worst case");
        return;
    }
    LoadDialogs dialogs = load_dialogs(*m);
    RecentFilesInMemory recent;
    UnattendedPrompter prompter;
    const std::filesystem::path scratch = std::filesystem::temp_directory_path() / "kvelder-bench";
    std::filesystem::create_directories(scratch);
    MainWindow window(*m, dialogs, prompter, recent, {{}, scratch, scratch});
    window.show();
    window.begin({}, std::nullopt);
    auto* box = window.findChild<InputBox*>("Txtfelt_0");
    const int runs_before = window.runs();
    bool longer = false;
    for (auto _ : state) {
        longer = !longer;
        box->setText(longer ? QStringLiteral("4.600") : QStringLiteral("4.500"));
        box->setModified(true); // as typed
        box->commit();
        window.repaint();
    }
    if (prompter.messages() != 0 || window.runs() - runs_before != static_cast<int>(state.iterations())) {
        state.SkipWithError("the beam fails its checks");
    }
}

BENCHMARK(SpanEditToRepaint)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    choose_headless_platform();
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
