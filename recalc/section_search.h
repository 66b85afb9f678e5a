#pragma once

#include "model/load_dialogs.h"
#include "model/model.h"

#include <optional>
#include <string>
#include <vector>

namespace kvelder {

// The lightest rectangle of the beam's family that carries it: the beam is
// recalculated with each trial section, and a section passes when every
// usage factor of bending, shear, lateral buckling (while that check is on)
// and bearing is at most 1. Nothing of the beam changes.

enum class GoverningCheck { Bending, Shear, Buckling, Bearing };

struct SectionCandidate {
    std::string profile; // the catalogue's name, or "b x h" for a free rectangle
    int prof_type_index = 0;
    int prof_index = -1; // the row of the family's list; -1 for a free rectangle
    float b = 0, h = 0;  // mm
    float uf_max = 0;    // the largest usage factor
    GoverningCheck governing = GoverningCheck::Bending;

    bool passes() const { return uf_max <= 1.0F; }
};

struct SectionSearch {
    // Why the beam has no sections to try: a circle, or a beam that fails its
    // checks as it stands. Then there are no candidates.
    std::optional<std::string> refused;
    // The lightest section that passes (smallest area, then smallest height)
    // and the next two; when none passes, the one with the smallest largest
    // usage factor and the next two.
    std::vector<SectionCandidate> candidates;
    bool passes() const { return !candidates.empty() && candidates.front().passes(); }
};

// A catalogue profile of timber or laminated timber tries every profile of its
// family; a free rectangle (and every kerto and k_bjelke beam) tries each width
// of its family's catalogue with heights from the family's least to its
// greatest in steps of `height_step` mm. The loads are read from `dialogs`
// where given, as the window reads them.
SectionSearch find_lightest_section(const Model& m, const LoadDialogs* dialogs, float height_step = 5);

// "bending", "shear", "buckling", "bearing".
const char* check_name(GoverningCheck check);

} // namespace kvelder
