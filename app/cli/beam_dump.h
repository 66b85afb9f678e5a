#pragma once

#include "model/model.h"

#include <nlohmann/json.hpp>

namespace kvelder::cli {

// The beam in the model as a beam description that apply_description takes
// back: every key the model holds, load rows with their span numbers, the
// buckling data only while that check is on. Rows are chosen by their index in
// the model's catalogues and setup.
nlohmann::ordered_json describe_beam(const Model& m);

} // namespace kvelder::cli
