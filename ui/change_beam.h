#pragma once

#include "model/load_dialogs.h"
#include "model/model.h"
#include "ui/messages.h"

#include <optional>

namespace kvelder {

// Adapts the beam to the number of spans `nf` that the caller has set: the node
// count, both end supports back to simple supports (with the support check),
// and, when there are fewer spans than before, the rows of the spans that are
// gone emptied in all three dialogs, whose rows the groups then read again.
std::optional<Message> ChangeBeam(Model& m, LoadDialogs& dialogs);

} // namespace kvelder
