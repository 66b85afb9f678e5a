#pragma once

#include "model/model.h"

#include <cmath>

namespace kvelder {

// Envelopes keep, per point and per support, the largest positive value in the
// max field and the largest negative value in the min field. A value of exactly
// zero updates neither; a tie keeps the value that came first.

// Comparing update after every load case of a patterned run.
void deflection_envelope(Model& m, int i);
void force_envelope(Model& m, int i);
void reaction_envelope(Model& m);

// Plain copy of the one combination of a total run.
void copy_deflection_envelope(Model& m, int i);
void copy_force_envelope(Model& m, int i);
void copy_reaction_envelope(Model& m);

// The rule for one value, written without a jump on the value, which no
// branch predictor guesses: the envelopes are compared at every point after
// every load case.
inline void update_envelope(float c, float& max, float& min)
{
    const bool positive = c > 0;
    max = positive && max < c ? c : max;
    min = !positive && std::fabs(c) > std::fabs(min) ? c : min;
}

} // namespace kvelder
