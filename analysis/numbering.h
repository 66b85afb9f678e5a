#pragma once

#include "model/model.h"

namespace kvelder {

// Member i runs from node i to node i + 1.
void member_ends(Model& m);

// Fills nsup, sup_node, nrestr and restr from support_kind: the end nodes by
// their kind, every inner node as a simple support.
void restraint_table(Model& m);

// The beam stands when at least two freedoms are held; a built-in end alone
// counts as two. Reads the table that restraint_table built.
bool restraints_sufficient(const Model& m);

} // namespace kvelder
