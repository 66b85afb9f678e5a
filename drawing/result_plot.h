#pragma once

#include "drawing/plot_scale.h"
#include "drawing/plot_surface.h"
#include "model/model.h"

#include <string>
#include <vector>

namespace kvelder {

enum class Diagram { Moment, Shear, Deflection };

// One span's curve in true left-to-right order: point 1, points 3..n, then
// point 2, the right end.
struct SpanCurve {
    std::vector<float> x; // metres from the span's left end
    std::vector<float> v;
};
SpanCurve span_curve(const Model& m, const Table2<float, kMaxSpans, kMaxPoints>& values, int span);

// What a curve writes beside itself: texts and the black strokes that go with
// them (drop lines from the axis, crossing ticks), in percent of the picture.
struct DiagramText {
    float x = 0, y = 0;
    std::string text;
    PlotColor color = 0;
    float size = 7;
};
struct DiagramStroke {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};
struct CurveMarks {
    std::vector<DiagramText> texts;
    std::vector<DiagramStroke> strokes;
};

// Where a diagram stands and how tall its largest value is drawn.
struct DiagramPlace {
    float base = 0;
    float amplitude = 0;
    float maximum = 0; // the larger of both curves' largest values
};
DiagramPlace screen_place(Diagram d, float maximum);

// Where the labels of a diagram go, relative to their point: `dx` along x,
// `above` for a value above 0 and `below` for one under it.
struct LabelPlace {
    float dx = 0, above = 0, below = 0;
};
struct RatioPlace {
    float text_dx = 0, ratio_dx = 0, dy = 0; // "= L / " and the ratio beside a deflection
};
struct CrossingPlace {
    float dx = 0, dy = 0, position_dx = 0, position_size = 7;
};
struct LabelStyle {
    LabelPlace moment_left, moment_peak, moment_right;
    LabelPlace shear_left, shear_right;
    float shear_threshold = 0;
    LabelPlace deflection_left, deflection_peak, deflection_right_above, deflection_right_below;
    RatioPlace left_ratio, peak_ratio, right_ratio;
    float deflection_end_threshold = 0, deflection_peak_threshold = 0, deflection_right_threshold = 0;
    CrossingPlace crossing_over, crossing_under;
    PlotColor value_color = 0, ratio_color = 0, crossing_color = 0;
};
// The screen's offsets in percent and the paper's in millimetres.
const LabelStyle& screen_labels();
const LabelStyle& paper_labels();

// Whether a span carries a load of its own (any row of G, Q1 or Q2 on it).
bool span_loaded(const Model& m, int span);

// The labels of one curve: `upper` is the curve of the maxima, which labels
// only values above 0; the curve of the minima labels only values below 0.
CurveMarks curve_marks(const Model& m, Diagram d, const Table2<float, kMaxSpans, kMaxPoints>& values,
                       bool upper, const SpanColumns& columns, const DiagramPlace& place,
                       const LabelStyle& style = screen_labels());

// The moment and shear envelopes in `result` (Picresult) and the deflection
// envelope in `deflection` (Picdisp). A diagram whose values are all 0 shows
// its axis alone.
void PlotResults(PlotSurface& result, PlotSurface& deflection, const Model& m);

} // namespace kvelder
