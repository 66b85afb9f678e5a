#pragma once

#include "combination/load_case.h"
#include "model/model.h"

namespace kvelder {

// Folds the solved load case into the current combination of span i: factored
// shear and moment (C_V, C_M with hogging positive), the deflection with the
// deflection factors (C_W) and the plain sum of deflections (C_Winst). Egen
// assigns, the other two add.
void combine_span(Model& m, LoadCase c, int i);

// Adds the factored support forces and moments of the load case to C_R, C_MR.
void combine_reactions(Model& m, LoadCase c);

// The ULS factor of a load case under the expression in force: "610a" takes the
// a-factors, anything else the b-factors.
float force_factor(const Model& m, LoadCase c);
float deflection_factor(const Model& m, LoadCase c);

} // namespace kvelder
