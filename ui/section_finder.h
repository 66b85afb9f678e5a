#pragma once

#include "model/model.h"
#include "model/section_candidates.h"
#include "ui/captions.h"

#include <string>
#include <vector>

namespace kvelder {

// The dialog that offers the lightest sections of the beam's family
// (frm_Kvelder_finn_tverrsnitt), opened by Cmd_finn_tverrsnitt beside the
// profile list.

inline constexpr const char* kSectionFinderForm = "frm_Kvelder_finn_tverrsnitt";

// The dialog's texts and the button's, in "Eng" or Norwegian for any other.
std::vector<Caption> section_finder_captions(const std::string& language);

// What the search found, in words: the lightest that passes, or that none of
// the family does and the best with its largest usage factor, or why there
// was nothing to try.
std::string search_summary(const Model& m, const SectionSearch& found);

// One line a candidate: its section, its largest usage factor and the check
// that governs it.
std::string candidate_line(const Model& m, const SectionCandidate& c);

// The engineer's choice: the profile of the family's list, or the width and
// height of a free rectangle, becomes the beam's section.
void choose_candidate(Model& m, const SectionCandidate& c);

} // namespace kvelder
