#include "recalc/annex_comparison.h"

#include "combination/scratch_files.h"
#include "files/setup_file.h"
#include "recalc/calc_screen.h"
#include "recalc/main_calc.h"
#include "ui/edits.h"

#include <algorithm>

namespace kvelder {

std::vector<AnnexRun> calculate_annexes(const Model& m, const LoadDialogs* dialogs)
{
    std::vector<AnnexRun> runs;
    ScratchFiles no_trace;
    const int last = std::min<int>(m.setup.setup_last_row, FileDatabase::kRows - 1);
    for (int row = 0; row <= last; ++row) {
        AnnexRun run{row, std::make_unique<Model>(m), {}};
        // The factors in force may have been edited since their row was read.
        StoreSetupRow(*run.beam);
        choose_annex_row(*run.beam, row);
        RecordingScreen screen;
        if (dialogs != nullptr) {
            LoadDialogs texts = *dialogs;
            MainCalc(*run.beam, texts, screen, no_trace);
        } else {
            MainCalc(*run.beam, screen, no_trace);
        }
        run.messages = std::move(screen.messages);
        runs.push_back(std::move(run));
    }
    return runs;
}

} // namespace kvelder
