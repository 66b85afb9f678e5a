#pragma once

#include "model/model.h"

#include <filesystem>

namespace kvelder {

// The one recalculation after any change of input: from the analysis constants
// through the stiffness matrix, built and factorised once, to every load case,
// combination and envelope of the chosen load-combination option. Nothing of an
// earlier run survives into the results. The trace of the run is written to
// `scratch_folder` (the current directory when empty) where that is possible.
void MainCalc(Model& m, const std::filesystem::path& scratch_folder = {});

} // namespace kvelder
