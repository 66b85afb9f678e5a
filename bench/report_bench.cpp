// The detailed report of the worst-case beam written as a PDF, as the
// engineer waits for it after "Save report as PDF". Target, release build: a
// median of 0.5 s or less.

#include "bench/beams.h"
#include "drawing/headless_platform.h"
#include "recalc/main_calc.h"
#include "report/report_pdf.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

using namespace kvelder;

void DetailedReportPdf(benchmark::State& state)
{
    auto m = bench::worst_case();
    if (!m) {
        state.SkipWithError("no worst case");
        return;
    }
    RecordingScreen screen;
    MainCalc(*m, screen);
    if (!screen.messages.empty() || !screen.load_failures.empty()) {
        state.SkipWithError("the beam fails its checks");
        return;
    }
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "kvelder-bench-report.pdf";
    const ReportStamp stamp = report_stamp("worst.kvel");
    for (auto _ : state) {
        if (write_report_pdf(*m, file, stamp, PrintSession{true})) {
            state.SkipWithError("the report cannot be written");
            return;
        }
    }
}

BENCHMARK(DetailedReportPdf)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    kvelder::choose_headless_platform();
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
