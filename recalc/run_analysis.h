#pragma once

#include "combination/runner.h"
#include "combination/scratch_files.h"
#include "model/model.h"

#include <filesystem>

namespace kvelder {

// The analysis of one recalculation on the grids and factors as they stand:
// E and I for the stiffness work, the band matrix built and factorised once,
// and every load case, combination and envelope of the load-combination
// option, from cleared tables. The trace of the run is written through
// `trace`, or to `scratch_folder` (the current directory when empty), where
// that is possible. A witness, where one is given, watches the envelopes.
void run_analysis(Model& m, ScratchFiles& trace, EnvelopeWitness* witness = nullptr);
void run_analysis(Model& m, const std::filesystem::path& scratch_folder = {});

} // namespace kvelder
