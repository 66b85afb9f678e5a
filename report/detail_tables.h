#pragma once

#include "drawing/plot_surface.h"
#include "model/governing.h"
#include "model/model.h"
#include "report/report_sections.h"

#include <cstddef>
#include <vector>

namespace kvelder {

// The detailed pages: the envelopes along the beam and at the supports.

// Shear, moment and deflection, largest and smallest, at each detail point
// (ui/result_points.h).
std::vector<TableLine> force_lines(const Model& m);

// The reactions and support moments, largest and smallest, node by node; a
// free end has none.
std::vector<TableLine> reaction_lines(const Model& m);

// Each table opens with this many lines of head, which a new page repeats.
constexpr std::size_t kDetailHeads = 3;

// The loading behind each check of each span, a line a span, then behind the
// largest reaction of each support; it opens with kGoverningHeads lines of head.
std::vector<TableLine> governing_lines(const Model& m, const GoverningStates& g);
constexpr std::size_t kGoverningHeads = 2;

} // namespace kvelder
