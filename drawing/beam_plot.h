#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

namespace kvelder {

// The span sketch of Picfelt: every span a column of the same width, the span
// numbers, the total length between interrupted dimension lines, the supports
// and node numbers. The callers pass margin 10 and y 90; the sketch stands 5 lower.
void PlotSpanSketch(PlotSurface& surface, const Model& m, float margin = 10.0F, float y = 90.0F);

// The beam to scale in Picegenlast: its body, the span lengths, the ticks of the
// coarse calculation grid and the supports.
void PlotBeamToScale(PlotSurface& surface, const Model& m, float margin = 2.0F, float y = 10.0F);

} // namespace kvelder
