#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kvelder {

// The one scale operation of every picture: (left, top) and (right, bottom)
// in the units that follow. Screen pictures use 0, 100, 100, 0 (percent, y up),
// the report 0, 290, 200, 0 (millimetres, y up).
void SetPlotScale(PlotSurface& surface, float left, float top, float right, float bottom);

// Pixels per percent of a surface in pixel mode, vertically and horizontally.
struct PercentUnits {
    float height_unit = 0;
    float width_unit = 0;
};
PercentUnits GetPercentUnits(const PlotSurface& surface);

// The largest absolute value over every calculation point of every span of a
// result table (0 when all are 0).
float MaxAbsOverSpans(const Model& m, const Table2<float, kMaxSpans, kMaxPoints>& values);

// The largest absolute value among the first `count` entries of a load table.
template <int N> float MaxAbsOfLoads(const Table<float, N>& values, int count)
{
    float largest = 0;
    for (int k = 1; k <= count; ++k) {
        largest = std::max(largest, std::abs(values(k)));
    }
    return largest;
}

// The drawing columns of the spans: each span's width and where a metre along
// the beam lands, in the units of the picture.
struct SpanColumns {
    float margin = 0;
    std::array<float, kMaxSpans> width{};
    float per_metre = 0; // 0 for the span sketch, whose columns ignore the lengths

    // The left end of span `span` (1-based).
    float start(int span) const;
    // Where a point `a` metres from the left end of span `span` lands.
    float at(int span, float a) const;
    // The right end of the last of `nf` spans.
    float end(int nf) const { return start(nf + 1); }
};

// Columns in proportion to the span lengths, sharing `total` (100 - 2 x margin
// on the screen, 170 mm on paper); a beam of no length at all gets none.
SpanColumns PlotSpanWidths(const Model& m, float margin, float total);
// The span sketch: every span a fifth of 100 - 2 x margin, whatever its length.
SpanColumns SketchSpanWidths(float margin);

// An arrow head of width `size` pixels, pointing down (tip at the bottom
// centre) or up, as three points relative to its top left corner. Its height
// is sin(pi / 180) x 60 x size, a little more than its width.
std::array<PixelPoint, 3> ArrowHead(int size, bool down);
int ArrowHeight(int size);

} // namespace kvelder
