#pragma once

#include "model/model.h"

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

namespace kvelder::cli {

// A description that cannot be applied: malformed, an unknown key, a wrong type
// or a value outside what the program can hold. The text names the key.
class DescriptionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Applies a beam description to a model fresh from start-up. Keys missing from
// the description keep the example beam's values. Values that the program's own
// checks judge (span lengths, section sizes, ksys, bearing and buckling data,
// load rows) are taken as they are, for those checks to refuse.
void apply_description(Model& m, const nlohmann::json& description);

} // namespace kvelder::cli
