#pragma once

#include "drawing/plot_surface.h"
#include "model/load_rows.h"
#include "model/model.h"

namespace kvelder {

// What the three load pictures share from one to the next: the height of the
// largest load in a band. G sets 10, a drawn Q1 11, and Q2 takes what was left.
struct LoadPlotState {
    float band_height = 10.0F;
};

constexpr float kBandGap = 7.0F;

// The base heights of the four bands of a group, from the bottom up, given
// the base y and the band height: a band never leaves an empty strip below it.
struct BandBases {
    float uniform, trapezoid, point, moment;
};
BandBases band_bases(const LoadGroup& g, float y, float height, float gap = kBandGap);

// The caption of a load picture with the group's deflection and ULS factors.
void PlotLoadFactors(PlotSurface& surface, const Model& m, LoadGroupId group, float x, float y);

// One group's picture: caption and the bands of its uniform, trapezoidal,
// point and moment loads. G is drawn over the beam (PlotBeamToScale) with its
// bands from y = 20, Q1 and Q2 from y = 10.
void PlotLoadGroup(PlotSurface& surface, const Model& m, LoadGroupId group, LoadPlotState& state,
                   float margin = 2.0F);

} // namespace kvelder
