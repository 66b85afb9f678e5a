#pragma once

#include "model/model.h"

namespace kvelder {

// Recovery of member i after the load case has been solved.

// Shear and sagging moment at every calculation point: the held-member values
// plus those of the end displacements (SF_end, SF_tot).
void member_forces(Model& m, int i);

// Adds member i's end forces to react_V and react_M of the supported nodes at its
// ends; a downward load gives a positive react_V.
void member_reactions(Model& m, int i);

// Deflection in mm, up positive, at every calculation point (W_nod, W_tot).
// Only a free end has a deflection of its own; other end values stay 0.
void member_deflections(Model& m, int i);

} // namespace kvelder
