#pragma once

#include "model/model.h"
#include "ui/captions.h"

#include <string>
#include <vector>

namespace kvelder {

// The beam under each national annex side by side (frm_Kvelder_tillegg),
// opened from the setup dialog by Cmd_tillegg.

inline constexpr const char* kAnnexForm = "frm_Kvelder_tillegg";

// A column per annex and a row per figure: the factors, the design strengths,
// the usage factors of each span and the largest reaction.
struct AnnexTable {
    std::vector<std::string> heads;
    struct Row {
        std::string label;
        std::vector<std::string> cells;
    };
    std::vector<Row> rows;
};

// `beams` calculated under their annexes; a beam whose recalculation failed
// (`calculated` false) shows a dash in every row.
AnnexTable annex_table(const std::vector<const Model*>& beams, const std::vector<bool>& calculated,
                       const std::string& language);

std::vector<Caption> annex_captions(const std::string& language);

} // namespace kvelder
