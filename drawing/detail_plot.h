#pragma once

#include "drawing/plot_surface.h"
#include "ui/detailed_result.h"

#include <vector>

namespace kvelder {

// The lines of the detailed results from the top of a cleared picture, each
// piece in its colour and after the one before it.
void PlotTextLines(PlotSurface& s, const std::vector<TextLine>& lines);

// The small picture of the section beside the trial boxes: a rectangle with b
// and h, or a circle with d.
void PlotSectionSketch(PlotSurface& s, TrialSection kind);

} // namespace kvelder
