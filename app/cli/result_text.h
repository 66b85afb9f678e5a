#pragma once

#include "model/model.h"

#include <string>

namespace kvelder::cli {

// The results of the last recalculation as a readable table.
std::string result_text(const Model& m);

} // namespace kvelder::cli
