#pragma once

#include "model/model.h"

#include <vector>

namespace kvelder {

// A place along the beam where the results are listed: a point of the coarse
// grid of a span and the point of the fine grid, where the envelopes are
// kept, at that place.
struct DetailPoint {
    int span = 0;
    float x = 0; // m from the left end of the span
    int fine = 0;

    friend bool operator==(const DetailPoint&, const DetailPoint&) = default;
};

// Every point of the coarse grid of every span, left to right: the rows of
// the result grid.
std::vector<DetailPoint> coarse_points(const Model& m);

// The same, one for each place (points within 0.1 mm are one): the rows of
// the report's tables.
std::vector<DetailPoint> detail_points(const Model& m);

} // namespace kvelder
