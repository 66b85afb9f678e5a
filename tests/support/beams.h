#pragma once

#include "model/model.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>

namespace kvelder::test {

// Stiffness used by the beam-theory tests: E = 13000 N/mm2, I = 1e9 mm4, EI = 13000 kNm2.
constexpr float kE0 = 13000.0F;
constexpr float kImm4 = 1.0e9F;
constexpr double kEI = 13000.0;

// A beam with the given span lengths and end supports, no loads, unit load and
// deflection factors, and the total load run. Interior nodes are simple supports.
std::unique_ptr<Model> make_beam(std::initializer_list<float> spans, char left = kSimple,
                                 char right = kSimple);

// Sets nf and nnodes, with simple supports inside and the ends kept.
void set_span_count(Model& m, int nf);

// Sets every ULS factor and every deflection factor to `value`.
void set_all_factors(Model& m, float value);

// Load rows, appended to a group.
void add_uniform(LoadGroup& g, int span, float q);
void add_trapezoid(LoadGroup& g, int span, float q1, float q2, float a, float b);
void add_point(LoadGroup& g, int span, float P, float a);
void add_moment(LoadGroup& g, int span, float M, float a);

// A folder of its own for the scratch files of this test process.
const std::filesystem::path& scratch_folder();

// The bytes of a file, empty where there is none.
std::string contents(const std::filesystem::path& path);

// Builds the calculation grids and runs the analysis on the factors as set.
void recalculate(Model& m);

// The decimal separators of `decimal_comma`. The test beams start on the one
// their test names, never on that of the machine the tests run on.
constexpr std::int16_t kPointMachine = 0;
constexpr std::int16_t kCommaMachine = 1;

// The example beam of start-up, read from the data files of the source tree.
std::unique_ptr<Model> example_beam(std::int16_t decimal_comma = kPointMachine);

// The example beam grown to three spans (4, 5 and 6 m) from a built-in left
// end to a free right end, with rows in every load table of every group, self
// weight, 6.10b, the patterned run and the lateral-buckling check on.
std::unique_ptr<Model> loaded_beam();

// The example beam cut to one span of `length` built in at the left and free
// at the right, with G 2.0 kN/m and no variable load.
std::unique_ptr<Model> cantilever(float length);

// The beam after the window's recalculation, which must pass without a message.
std::unique_ptr<Model> calculated(std::unique_ptr<Model> m);

// The data folder of the source tree.
std::filesystem::path source_data_dir();

} // namespace kvelder::test
