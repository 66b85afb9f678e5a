#pragma once

#include "model/model.h"
#include "ui/captions.h"

#include <array>
#include <string>
#include <vector>

namespace kvelder {

inline constexpr const char* kResultGridForm = "frm_B_grid_mom_Shear_disp_comb";

// The texts of the grid of results along the beam (frm_B_grid_mom_Shear_disp_comb):
// four rows of heads, then one row for each point of the coarse grid.

constexpr int kGridColumns = 13;
constexpr int kGridHeadRows = 4;

// A head over `columns` columns from `column` of head row `row`.
struct GridHead {
    int row = 0;
    int column = 0;
    int columns = 1;
    std::string text;

    friend bool operator==(const GridHead&, const GridHead&) = default;
};

struct GridRow {
    std::array<std::string, kGridColumns> cells;
    bool node = false; // at a node: shaded grey
};

struct ResultGrid {
    std::vector<GridHead> heads;
    std::vector<GridRow> rows;
};

// The envelopes as the last run left them: the span number on the first row of
// a span, then position, shear, moment and deflection, largest and smallest;
// the reactions and support moments on the row where their node first comes,
// and none at a free end.
ResultGrid result_grid(const Model& m);

// The form's title and the heading over the grid (grid_heading).
std::vector<Caption> result_grid_captions(const std::string& language);

} // namespace kvelder
