#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

namespace kvelder {

// The pictures of the printed report, in millimetres on a page scaled with
// SetPlotScale(surface, 0, 290, 200, 0): the beam gets 170 mm from x = 15.
// Each takes the height to start at and returns the height below what it drew.

// The bands of G, Q1 and Q2 with their captions and factors, then the beam.
float PrintLoadPlots(PlotSurface& surface, const Model& m, float x, float y);

// The beam at height y: its body, span lengths and supports.
void PrintBeam(PlotSurface& surface, const Model& m, float y);

// The moment and shear envelopes and the deflection envelope with their headings.
float PrintResults(PlotSurface& surface, const Model& m, float x, float y);

// A filled arrow head on paper: 20 horizontal lines narrowing towards the tip
// at (x, tip), `height` mm tall.
void PaperArrowHead(PlotSurface& surface, float x, float tip, float height, bool down);

} // namespace kvelder
