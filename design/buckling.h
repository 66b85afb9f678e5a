#pragma once

#include "model/model.h"

namespace kvelder {

// Effective length of each span: l_stag x lef_factor, lengthened by 2h for a
// load on the top of the beam or shortened by 0.5h for one at the bottom.
// Then the critical stress, slenderness and k_crit of each span.
void Calc_leff(Model& m);
void Calc_k_crit(Model& m);

// The usage factor against lateral torsional buckling of each span: the sagging
// interior stations (M_min), and the support end of a cantilever span (M_max).
// Runs only when the check is on.
void Check_lateral_buckling(Model& m);

} // namespace kvelder
