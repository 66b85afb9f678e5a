#pragma once

#include "model/model.h"

#include <vector>

namespace kvelder {

// A load that a driver sets straight into F_load: a concentrated moment on a node.
struct NodeLoad {
    int index;
    double value;
};

// The drivers walk a load group and add every load, at every calculation point
// of its span, to SF_fix and W_fix (point loads, moments, uniform loads,
// trapezoidal loads, in that order). A concentrated moment within 1 mm of a span
// end is a load on the node instead and is set straight into F_load.

// The whole of group G, with the self weight of the section where it is on.
void G_forces(Model& m);
void G_deflections(Model& m);

// The rows of a variable group that stand on one span.
void variable_forces(Model& m, const LoadGroup& group, int span);
// The same, with the node loads kept in the order they are set instead of set.
void variable_forces(Model& m, const LoadGroup& group, int span, std::vector<NodeLoad>& node_loads);
void variable_deflections(Model& m, const LoadGroup& group, int span);

inline void Q1_forces(Model& m, int span)
{
    variable_forces(m, m.Q1, span);
}
inline void Q1_deflections(Model& m, int span)
{
    variable_deflections(m, m.Q1, span);
}
inline void Q2_forces(Model& m, int span)
{
    variable_forces(m, m.Q2, span);
}
inline void Q2_deflections(Model& m, int span)
{
    variable_deflections(m, m.Q2, span);
}

// Equivalent nodal loads from the held-member end forces (rows 1 to 4 of SF_fix),
// added to what the drivers left in F_load.
void nodal_load_vector(Model& m);

} // namespace kvelder
