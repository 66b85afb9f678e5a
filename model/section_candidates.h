#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kvelder {

// The sections tried for the lightest one that carries the beam, and what
// each gave.

enum class GoverningCheck { Bending, Shear, Buckling, Bearing };

// "bending", "shear", "buckling", "bearing".
inline const char* check_name(GoverningCheck check)
{
    switch (check) {
    case GoverningCheck::Bending:
        return "bending";
    case GoverningCheck::Shear:
        return "shear";
    case GoverningCheck::Buckling:
        return "buckling";
    case GoverningCheck::Bearing:
        return "bearing";
    }
    return "";
}

struct SectionCandidate {
    std::string profile; // the catalogue's name, or "bxh" for a free rectangle
    int prof_type_index = 0;
    int prof_index = -1; // the row of the family's list; -1 for a free rectangle
    float b = 0, h = 0;  // mm
    float uf_max = 0;    // the largest usage factor
    GoverningCheck governing = GoverningCheck::Bending;

    bool passes() const { return uf_max <= 1.0F; }
};

// Why a beam has no sections to try.
enum class SearchRefusal {
    Circle,     // the search tries rectangles
    BeamFails,  // the beam fails its checks as it stands (`detail` says how)
    StepTooSmall,
};

struct SectionSearch {
    std::optional<SearchRefusal> refused;
    std::string detail;
    // The lightest section that passes (smallest area, then smallest height)
    // and the next two; when none passes, the one with the smallest largest
    // usage factor and the next two.
    std::vector<SectionCandidate> candidates;
    bool passes() const { return !candidates.empty() && candidates.front().passes(); }
};

} // namespace kvelder
