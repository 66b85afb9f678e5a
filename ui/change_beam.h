#pragma once

#include "model/model.h"
#include "ui/messages.h"

#include <optional>

namespace kvelder {

// Adapts the beam to the number of spans `nf` that the caller has set: the node
// count, both end supports back to simple supports (with the support check),
// and, when there are fewer spans than before, the load rows of the spans that
// are gone removed from all three groups, the others keeping their order.
std::optional<Message> ChangeBeam(Model& m);

} // namespace kvelder
