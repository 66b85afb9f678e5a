#pragma once

#include "model/model.h"

#include <memory>

namespace kvelder::bench {

// The example beam of a new project, from the shipped data files.
std::unique_ptr<Model> example();

// Five spans, the patterned run, the buckling check, and every load table of
// G, Q1 and Q2 full: per span one uniform load, two trapezoids, two point
// loads, and six moments spread over the beam. The description
// bench/worst_case.json, which kvelder-cli bench times as well; none when it
// cannot be used, and the reason on the error stream.
std::unique_ptr<Model> worst_case();

} // namespace kvelder::bench
