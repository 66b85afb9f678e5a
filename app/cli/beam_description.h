#pragma once

#include "model/model.h"

#include <nlohmann/json.hpp>

#include <array>
#include <optional>
#include <string>

namespace kvelder::cli {

// The keys of the four load tables of a group, in table order.
inline constexpr std::array<const char*, 4> kLoadTableKeys{"uni", "trap", "pt", "mom"};

// Applies a beam description to a model fresh from start-up, through the same
// control rules as the window, in the order an engineer would click them. Keys
// missing from the description keep the example beam's values. Values that the
// program's own checks judge (span lengths, section sizes, ksys, bearing and
// buckling data, load rows) are taken as they are, for those checks to refuse.
// A description that cannot be applied (malformed, an unknown key, a wrong type
// or a value outside what the program can hold) changes nothing and gives the
// reason, naming the key.
std::optional<std::string> apply_description(Model& m, const nlohmann::json& description);

} // namespace kvelder::cli
