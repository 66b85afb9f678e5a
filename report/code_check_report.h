#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

#include <string>
#include <vector>

namespace kvelder {

// One printed line of a span's check block. A plain line has only `text`; the
// line of a rule adds the stress over the strength (`ratio`, right-aligned in
// its column) and the usage factor with the limit and the position (`outcome`).
struct CheckLine {
    std::string text;
    std::string ratio;
    std::string outcome;
    bool bold = false;
    bool rule = false; // indented under the line it belongs to
};

// The lines of span `span` from the stored results of the last run: the span,
// bending of either sign, shear, and the lateral buckling lines of
// BuildBucklingText.
std::vector<CheckLine> BuildCheckTexts(const Model& m, int span);

// The lateral buckling lines of span `span`: a sentence where there is no
// check (a circular section, or the compression side held), otherwise the
// rule with sigma, fm,y,d, k_crit and the usage factor.
std::vector<CheckLine> BuildBucklingText(const Model& m, int span);

// The check blocks of spans first_span..last_span, the first line at y, in
// 8 point "Times New Roman"; about 27 mm a span. Returns the y below the last
// line.
float PrintCodeCheck(PlotSurface& surface, const Model& m, float x, float y, int first_span, int last_span);

} // namespace kvelder
