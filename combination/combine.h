#pragma once

#include "combination/load_case.h"
#include "model/model.h"

namespace kvelder {

// What a combination takes of one solved load case: the shear and moment rows,
// the deflections and the support reactions.
struct CaseView {
    const Table2<float, kMaxSpans, kForceRows>& SF_tot;
    const Table2<double, kMaxSpans, kMaxPoints>& W_tot;
    const Table<float, kMaxNodes>& react_V;
    const Table<float, kMaxNodes>& react_M;
};

inline CaseView current_case(const Model& m)
{
    return {m.SF_tot, m.W_tot, m.react_V, m.react_M};
}

// Folds a solved load case into the current combination of span i: factored
// shear and moment (C_V, C_M with hogging positive), the deflection with the
// deflection factors (C_W) and the plain sum of deflections (C_Winst). Egen
// assigns, the other two add.
void combine_span(Model& m, const CaseView& k, LoadCase c, int i);

// Adds the factored support forces and moments of the load case to C_R, C_MR.
void combine_reactions(Model& m, const CaseView& k, LoadCase c);

// The ULS factor of a load case under the expression in force: "610a" takes the
// a-factors, anything else the b-factors.
float force_factor(const Model& m, LoadCase c);
float deflection_factor(const Model& m, LoadCase c);

} // namespace kvelder
