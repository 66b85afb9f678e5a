#pragma once

#include "drawing/plot_surface.h"

namespace kvelder {

// The small pictures on the load dialogs that say what the numbers of a row
// mean: the positions x1 and x2 and the values q1 and q2 of a trapezoidal load
// (Pictrapes), the position x and value P of a point load (Picpunkt), and the
// position x and sense +M of a moment (Picmom). Span in dark blue, dimension
// lines in dark red.
void PlotTrapezoidSketch(PlotSurface& surface);
void PlotPointSketch(PlotSurface& surface);
void PlotMomentSketch(PlotSurface& surface);

} // namespace kvelder
