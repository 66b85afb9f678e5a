#include "recalc/annex_comparison.h"

#include "combination/scratch_files.h"
#include "recalc/calc_screen.h"
#include "recalc/main_calc.h"
#include "ui/setup_dialog.h"

#include <optional>

namespace kvelder {

std::vector<AnnexRun> calculate_annexes(const Model& m, const LoadDialogs* dialogs)
{
    std::vector<AnnexRun> runs;
    ScratchFiles no_trace;
    const int last = m.setup.last_row();
    for (int row = 0; row <= last; ++row) {
        AnnexRun run{row, std::make_unique<Model>(m), {}};
        // The factors in force may have been edited since their row was read.
        change_country(*run.beam, row);
        RecordingScreen screen;
        std::optional<LoadDialogs> texts = dialogs ? std::optional(*dialogs) : std::nullopt;
        MainCalc(*run.beam, texts ? &*texts : nullptr, screen, no_trace);
        run.messages = std::move(screen.messages);
        runs.push_back(std::move(run));
    }
    return runs;
}

} // namespace kvelder
