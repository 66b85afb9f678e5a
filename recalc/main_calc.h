#pragma once

#include "combination/scratch_files.h"
#include "model/model.h"
#include "recalc/calc_screen.h"

#include <filesystem>

namespace kvelder {

// Whether the beam stops at the gate of the next recalculation: a span without
// a length, supports that cannot carry it, no load at all, or a value of a
// box of the window that failed its check.
bool data_missing(const Model& m);

// Whether the results on show are those of the beam as it stands, whole: it
// passes the gate and no load row failed, so its detailed forms and its report
// can be shown.
bool results_stand(const Model& m);

// The one recalculation after any change of input, from the input gate through
// the factors, the load checks and calculation grids, the design values and
// section properties, the analysis of every load case, combination and
// envelope, to the code checks. A beam whose input flags are set stops at the
// gate with one message and leaves every result of the last run standing.
// The trace of the run is written through `trace`, which a program keeps
// from one run to the next, or to `scratch_folder` (the current directory when
// empty), where that is possible.
//
// With load dialogs, their boxes are the master of the loads: each group reads
// its rows from them. Without, the group's tables are checked as they stand.
void MainCalc(Model& m, LoadDialogs* dialogs, CalcScreen& screen, ScratchFiles& trace);
void MainCalc(Model& m, LoadDialogs& dialogs, CalcScreen& screen, ScratchFiles& trace);
void MainCalc(Model& m, CalcScreen& screen, ScratchFiles& trace);
void MainCalc(Model& m, LoadDialogs& dialogs, CalcScreen& screen,
              const std::filesystem::path& scratch_folder = {});
void MainCalc(Model& m, CalcScreen& screen, const std::filesystem::path& scratch_folder = {});

} // namespace kvelder
