#pragma once

#include "model/model.h"

namespace kvelder {

// Section properties of the one cross-section: I, W, gross and shear area, and
// the self weight of each span from the density (gravity taken as 10).
void Calc_prop_firk(Model& m);
void Calc_prop_tube(Model& m); // pi is 3.14 here, and the shear area is half the area

// fm,d, fv,d and fc,90,d, then the section properties of the section's form.
void Calc_design_strength(Model& m);

// Width and height of row `row` of a family's profile list (0 timber ..
// 3 k_bjelke). A row the list does not hold changes nothing; false then.
bool Read_profile_dimensions(Model& m, int family, int row);

// The row a profile list falls back to when it does not hold the row asked for:
// its middle, half the count rounded to the nearest (ties to even).
int middle_profile_row(int count);

// Flags dimensions, bearing lengths and buckling data outside their limits in
// calc_invalid. Nothing reads the flag; the recalculation goes on regardless.
void Check_section_input(Model& m);

} // namespace kvelder
