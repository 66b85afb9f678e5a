#pragma once

#include "model/load_dialogs.h"
#include "model/model.h"
#include "model/section_candidates.h"

namespace kvelder {

// The lightest rectangle of the beam's family that carries it: the beam is
// recalculated with each trial section, and a section passes when every
// usage factor of bending, shear, lateral buckling (while that check is on)
// and bearing is at most 1. Nothing of the beam changes.

// A catalogue profile of timber or laminated timber tries every profile of its
// family; a free rectangle (and every kerto and k_bjelke beam) tries each width
// of its family's catalogue with heights from the family's least to its
// greatest in steps of `height_step` mm. The loads are read from `dialogs`
// where given, as the window reads them.
SectionSearch find_lightest_section(const Model& m, const LoadDialogs* dialogs, float height_step = 5);

} // namespace kvelder
