#pragma once

#include "drawing/load_plot.h"
#include "drawing/plot_surface.h"
#include "model/model.h"
#include "model/picture.h"

#include <QImage>
#include <QSize>

#include <array>
#include <cstddef>

namespace kvelder {

// The three load pictures from a clean start: the beam to scale with G, then
// Q1 and Q2, each group's bands only when it holds a load. Nothing but the
// cleared pictures while the spans or the loads fail their checks.
void PlotAllLoads(PlotSurface& egenlast, PlotSurface& nyttelast, PlotSurface& nyttelast_2, const Model& m);

// All six pictures of a calculated beam.
struct ScreenSurfaces {
    PlotSurface& felt;
    PlotSurface& egenlast;
    PlotSurface& nyttelast;
    PlotSurface& nyttelast_2;
    PlotSurface& result;
    PlotSurface& disp;
};
void PlotAll(const ScreenSurfaces& s, const Model& m);

using PictureImages = std::array<QImage, std::size(kPictures)>;

// The six pictures drawn into white images, in the order of kPictures, each of
// its logical size at `pixel_ratio` device pixels a unit.
PictureImages draw_pictures(const Model& m, const std::array<QSize, std::size(kPictures)>& sizes,
                            qreal pixel_ratio = 1);

} // namespace kvelder
