#pragma once

#include "drawing/load_plot.h"
#include "drawing/plot_surface.h"
#include "model/model.h"

namespace kvelder {

// The six pictures of the main window, by the names of their boxes.
enum class ScreenPicture { Picfelt, Picegenlast, Picnyttelast, Picnyttelast_2, Picresult, Picdisp };
inline constexpr ScreenPicture kScreenPictures[] = {
    ScreenPicture::Picfelt,        ScreenPicture::Picegenlast, ScreenPicture::Picnyttelast,
    ScreenPicture::Picnyttelast_2, ScreenPicture::Picresult,   ScreenPicture::Picdisp};
const char* picture_name(ScreenPicture p);

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

} // namespace kvelder
