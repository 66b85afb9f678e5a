#pragma once

#include "model/governing.h"
#include "model/model.h"
#include "ui/messages.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace kvelder::cli {

// A stored single as JSON: the shortest decimal that reads back to the same
// float; null for a value that is no finite number.
nlohmann::ordered_json single(float value);

nlohmann::ordered_json messages_json(const std::vector<Message>& messages);

// The results of the last recalculation.
nlohmann::ordered_json result_json(const Model& m, const std::vector<Message>& messages);

// The state of the loading behind each governing value: per span the moment,
// shear, lateral buckling and deflection, per support the reactions.
nlohmann::ordered_json governing_json(const Model& m, const GoverningStates& g);

} // namespace kvelder::cli
