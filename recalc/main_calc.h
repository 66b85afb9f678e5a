#pragma once

#include "model/model.h"
#include "recalc/calc_screen.h"

#include <filesystem>

namespace kvelder {

// The one recalculation after any change of input, from the input gate through
// the factors, the load checks and calculation grids, the design values and
// section properties, the analysis of every load case, combination and
// envelope, to the code checks. A beam whose input flags are set stops at the
// gate with one message and leaves every result of the last run standing.
// The trace of the run is written to `scratch_folder` (the current directory
// when empty) where that is possible.
// Whether the beam stops at the gate of the next recalculation: a span without
// a length, supports that cannot carry it, no load at all, or a value of a
// box of the window that failed its check.
bool data_missing(const Model& m);

void MainCalc(Model& m, CalcScreen& screen, const std::filesystem::path& scratch_folder = {});

// Checks the load tables of G, Q1 and Q2 in turn and builds the calculation
// grids from them. The first failing row ends the checks: its group's dialog
// is shown, with the message where the language has one, and err_load_item is
// set. After three sound groups the empty groups decide the load-combination
// option and err_section.
void check_loads(Model& m, CalcScreen& screen);

} // namespace kvelder
