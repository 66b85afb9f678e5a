#pragma once

#include "model/model.h"

namespace kvelder {

// Bending and shear stresses at every station from the envelopes, the largest
// usage factor per span and sign, and the worse sign; then the lateral buckling
// stage. On equal usage factors the station examined first stands.
void Control_sections(Model& m);

// Whether lateral torsional buckling is checked: the check is on, and the
// section a rectangle (a circle does not buckle sideways).
inline bool buckling_checked(const Model& m)
{
    return m.vipping_off == 0 && m.section_form != "Tube";
}

// Compression across the grain at each node that bears on a simple support:
// the largest design reaction over the width and the bearing length.
void Control_support(Model& m);

// The index into the reactions (one per supported node) of node `node`.
int reaction_index(const Model& m, int node);

// What the bearing row of a node shows: 'F' a free end, 'I' a fixed end, and
// 'R' a node whose bearing is checked.
char bearing_kind(const Model& m, int node);

} // namespace kvelder
