#pragma once

#include "model/model.h"

namespace kvelder {

// Calculation points. In every grid point 1 of a span is x = 0 and point 2 is
// x = L; the interior points follow from 3. Positions are metres from the left
// end of the span.

using GridCounts = Table<std::int16_t, kMaxSpans>;
using GridPositions = Table2<float, kMaxSpans, kMaxPoints>;

// Regular division of each of the nf spans into n parts: n + 1 points.
void divide_spans(const Model& m, GridCounts& counts, int n, GridPositions& x);

// Adds the two points of one load row (a - 0.001 and a) to a collecting list.
template <int Cols>
void add_load_point(Table2<float, kMaxSpans, Cols>& list_x, GridCounts& list_count, int span, float a)
{
    list_x(span, ++list_count(span)) = f32(static_cast<double>(a) - 0.001);
    list_x(span, ++list_count(span)) = a;
}

// Appends the point and moment positions of G and Q1 to a grid. The lists of Q2
// are kept but never merged, so Q2 adds no calculation point.
void merge_load_points(const Model& m, GridCounts& counts, GridPositions& x);

// Drops interior points that lie within 0.0001 m of an earlier one and sorts the
// interior points of each span ascending.
void normalise_grid(const Model& m, GridCounts& counts, int n, GridPositions& x);

enum class PointTable { Point, Moment };

// What reading one point or moment table does to the grids: both grids are
// divided afresh, the group's list is rebuilt from its rows, and all lists are merged.
void collect_load_points(Model& m, const LoadGroup& group, LoadPointLists& lists, PointTable table);

// Both grids for the load tables as they stand: the point and moment tables of
// G, Q1 and Q2 in turn, then the fine grid normalised.
void build_calculation_grids(Model& m);

} // namespace kvelder
