#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"
#include "report/report_sections.h"

#include <cstddef>
#include <vector>

namespace kvelder {

// The detailed pages: the envelopes along the beam and at the supports.

// A row of the table along the beam: a point of the coarse grid of a span and
// the point of the fine grid, where the envelopes are kept, at that place.
struct DetailPoint {
    int span = 0;
    float x = 0; // m from the left end of the span
    int fine = 0;

    friend bool operator==(const DetailPoint&, const DetailPoint&) = default;
};

// The coarse points of every span left to right, one for each place (points
// within 0.1 mm are one).
std::vector<DetailPoint> detail_points(const Model& m);

// Shear, moment and deflection, largest and smallest, at each detail point.
std::vector<TableLine> force_lines(const Model& m);

// The reactions and support moments, largest and smallest, node by node; a
// free end has none.
std::vector<TableLine> reaction_lines(const Model& m);

// Each table opens with this many lines of head, which a new page repeats.
constexpr std::size_t kDetailHeads = 3;

} // namespace kvelder
