#pragma once

#include "files/data_files.h"
#include "model/model.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace kvelder {

// The example beam that every start and every new project begins with: two
// spans of 5 m on simple supports, G 2.0 and Q1 4.0 kN/m on both, a GL30c
// glulam section of the laminated list. StartLoads needs the spans, and
// StartSection the spans and the profile lists.
void StartBeam(Model& m);
void StartLoads(Model& m);
void StartSection(Model& m);

// The project text and beam identification of a new project, in the language
// of the setup.
void NewProjectHeading(Model& m);

// The example beam of a new project on the catalogues and setup in the model,
// its heading and grids, ready for its first recalculation with loading_flag set.
void StartProject(Model& m);

// The start of the program without its window: the decimal separator of this
// machine (DecimalProbe), the setup and the catalogues of `data_folder`, the
// example beam and its grids. The model is left ready for its first
// recalculation, with loading_flag set. The notes tell which data files gave
// way to the shipped copies.
std::vector<DataFileNote> start_up(Model& m, const std::filesystem::path& data_folder);

// The same start on a machine of the given decimal separator (0 for the
// point, as in `decimal_comma`), whatever this machine's is.
std::vector<DataFileNote> start_up(Model& m, const std::filesystem::path& data_folder,
                                   std::int16_t decimal_comma);

} // namespace kvelder
