#pragma once

#include "model/governing.h"
#include "model/model.h"

#include <optional>

namespace kvelder {

// Runs the beam of the last recalculation once more, on a copy, watching the
// envelopes, and names the state of the loading behind each value that the
// checks and supports rest on: per span the moment, shear, lateral buckling
// and largest deflection, per support the reactions and moments. None when
// the beam no longer gives the results that stand (it has changed and stopped
// at the gate since), or when it was never calculated.
std::optional<GoverningStates> explain_governing(const Model& m);

} // namespace kvelder
