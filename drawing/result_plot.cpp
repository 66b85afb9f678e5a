#include "drawing/result_plot.h"

#include "drawing/glyphs.h"
#include "files/number_format.h"

#include <cmath>

namespace kvelder {
namespace {

constexpr float kMargin = 2.0F;

using Values = Table2<float, kMaxSpans, kMaxPoints>;

// Maps the points of a span to the picture.
struct Mapper {
    const SpanColumns& columns;
    const DiagramPlace& place;
    int span;
    float px(float metres) const { return columns.at(span, metres); }
    float py(float v) const { return 100 / place.maximum * v * place.amplitude + place.base; }
};

std::string value_text(const Model& m, float v)
{
    return format_number(v, "##0.0", m.decimal_comma != 0);
}

std::string ratio_text(float length, float v)
{
    return format_number(std::abs(length * 1000 / v), "0");
}

class Marker {
public:
    Marker(const Model& m, const DiagramPlace& place, PlotColor color, CurveMarks& marks)
        : m_m(m), m_place(place), m_color(color), m_marks(marks)
    {
    }
    // A value with its drop line from the axis to the curve at x.
    void value(float x, float text_x, float text_y, float v, float curve_y)
    {
        m_marks.texts.push_back({text_x, text_y, value_text(m_m, v), m_color, 7});
        m_marks.strokes.push_back({x, m_place.base, x, curve_y});
    }
    void text(float x, float y, std::string s, PlotColor color, float size = 7)
    {
        m_marks.texts.push_back({x, y, std::move(s), color, size});
    }
    void stroke(float x1, float y1, float x2, float y2) { m_marks.strokes.push_back({x1, y1, x2, y2}); }

private:
    const Model& m_m;
    const DiagramPlace& m_place;
    PlotColor m_color;
    CurveMarks& m_marks;
};

bool own_sign(float v, bool upper)
{
    return upper ? v > 0 : v < 0;
}

bool peak_at(const SpanCurve& c, std::size_t k)
{
    return std::abs(c.v[k + 1]) <= std::abs(c.v[k]) && std::abs(c.v[k - 1]) < std::abs(c.v[k]);
}

void moment_marks(const Model& m, const SpanCurve& c, const Mapper& map, bool upper, const LabelStyle& st,
                  Marker& mark)
{
    const std::size_t n = c.v.size();
    const auto y = [&](std::size_t k) { return map.py(c.v[k]); };
    if (std::abs(c.v[1]) < std::abs(c.v[0]) && own_sign(c.v[0], upper)) {
        const float x = map.px(c.x[0]);
        mark.value(x, x + st.moment_left.dx,
                   c.v[0] > 0 ? y(0) + st.moment_left.above : y(1) + st.moment_left.below, c.v[0], y(0));
    }
    if (span_loaded(m, map.span) || is_true(m.profile_weight_on)) {
        for (std::size_t k = 1; k + 2 < n; ++k) {
            if (peak_at(c, k) && own_sign(c.v[k], upper)) {
                const float x = map.px(c.x[k]);
                mark.value(x, x + st.moment_peak.dx,
                           y(k) + (c.v[k] > 0 ? st.moment_peak.above : st.moment_peak.below), c.v[k], y(k));
            }
        }
    }
    if (map.span == m.nf && std::abs(c.v[n - 1]) > 0.001F && own_sign(c.v[n - 1], upper)) {
        const float x = map.px(c.x[n - 1]);
        mark.value(x, x + st.moment_right.dx,
                   y(n - 1) + (c.v[n - 1] > 0 ? st.moment_right.above : st.moment_right.below), c.v[n - 1],
                   y(n - 1));
    }
    if (!span_loaded(m, map.span)) {
        return;
    }
    // Zero crossings between the second and the last but one point: where the
    // curve leaves or reaches 0, or changes sign. The tag comes from the value
    // beside the 0 (from the first when the sign changes), and each curve marks
    // the crossings of its own sign. With patterns over several spans the mark
    // stands midway between the two points, otherwise at the point of 0.
    const bool midway = m.loadcomb_option != 1 && m.nf != 1;
    for (std::size_t k = 1; k + 2 < n; ++k) {
        const float a = c.v[k], b = c.v[k + 1];
        const bool leaves_zero = (a == 0) != (b == 0);
        const bool changes_sign = a != 0 && b != 0 && (a > 0) != (b > 0);
        const float from = a != 0 ? a : b;
        if (!(leaves_zero || changes_sign) || !own_sign(from, upper)) {
            continue;
        }
        const float at = midway || changes_sign ? (c.x[k] + c.x[k + 1]) / 2 : (a == 0 ? c.x[k] : c.x[k + 1]);
        const float x = map.px(at);
        const float yk = y(k);
        const std::string where = format_number(at, "##0.000", m.decimal_comma != 0);
        mark.stroke(x, yk - 1, x, yk + 1);
        const CrossingPlace& place =
            from > 0 ? st.crossing_over : st.crossing_under; // "over" comes from above
        mark.text(x + place.dx, yk + place.dy, "x =", st.crossing_color, 7);
        mark.text(x + place.position_dx, yk + place.dy, where, st.crossing_color, place.position_size);
    }
}

void shear_marks(const SpanCurve& c, const Mapper& map, bool upper, const LabelStyle& st, Marker& mark)
{
    const std::size_t n = c.v.size();
    const auto y = [&](std::size_t k) { return map.py(c.v[k]); };
    if (std::abs(c.v[0]) > st.shear_threshold && own_sign(c.v[0], upper)) {
        const float x = map.px(c.x[0]);
        mark.value(x, x + st.shear_left.dx,
                   c.v[0] > 0 ? y(0) + st.shear_left.above : y(1) + st.shear_left.below, c.v[0], y(0));
    }
    if (std::abs(c.v[n - 1]) > st.shear_threshold && own_sign(c.v[n - 1], upper)) {
        const float x = map.px(c.x[n - 1]);
        mark.value(x, x + st.shear_right.dx,
                   y(n - 1) + (c.v[n - 1] > 0 ? st.shear_right.above : st.shear_right.below), c.v[n - 1],
                   y(n - 1));
    }
}

void deflection_marks(const Model& m, const SpanCurve& c, const Mapper& map, bool upper, const LabelStyle& st,
                      Marker& mark)
{
    const std::size_t n = c.v.size();
    const auto y = [&](std::size_t k) { return map.py(c.v[k]); };
    const float length = m.ffl_s(map.span);
    const auto ratio = [&](float x, const RatioPlace& r, float height, float v) {
        mark.text(x + r.text_dx, height + r.dy, "= L / ", st.ratio_color);
        mark.text(x + r.ratio_dx, height + r.dy, ratio_text(length, v), st.ratio_color);
    };
    if (map.span == 1 && m.nsupLeft_s == kFree) {
        const float x = map.px(c.x[0]);
        mark.stroke(x, map.place.base, x, y(0));
        if (std::abs(c.v[0]) > st.deflection_end_threshold && own_sign(c.v[0], upper)) {
            mark.value(x, x + st.deflection_left.dx,
                       c.v[0] > 0 ? y(0) + st.deflection_left.above : y(1) + st.deflection_left.below, c.v[0],
                       y(0));
            ratio(x, st.left_ratio, y(0), c.v[0]);
        }
    }
    for (std::size_t k = 1; k + 1 < n; ++k) {
        if (std::abs(c.v[k]) > st.deflection_peak_threshold && peak_at(c, k) && own_sign(c.v[k], upper)) {
            const float x = map.px(c.x[k]);
            mark.value(x, x + st.deflection_peak.dx,
                       y(k) + (c.v[k] > 0 ? st.deflection_peak.above : st.deflection_peak.below), c.v[k],
                       y(k));
            ratio(x, st.peak_ratio, y(k), c.v[k]);
        }
    }
    if (map.span == m.nf && m.nsupRight_s == kFree) {
        const float x = map.px(c.x[n - 1]);
        mark.stroke(x, map.place.base, x, y(n - 1));
        if (std::abs(c.v[n - 1]) > st.deflection_right_threshold && own_sign(c.v[n - 1], upper)) {
            const LabelPlace& at = c.v[n - 1] > 0 ? st.deflection_right_above : st.deflection_right_below;
            mark.value(x, x + at.dx, y(n - 1) + (c.v[n - 1] > 0 ? at.above : at.below), c.v[n - 1], y(n - 1));
            ratio(x, st.right_ratio, y(n - 1), c.v[n - 1]);
        }
    }
}

void draw_curve(PlotSurface& s, const Model& m, Diagram d, const Values& values, bool upper,
                const SpanColumns& c, const DiagramPlace& place)
{
    const PlotColor color = upper ? (d == Diagram::Deflection ? kDeflectionGreen : kCurveGreen) : kBlue;
    for (int i = 1; i <= m.nf; ++i) {
        const SpanCurve curve = span_curve(m, values, i);
        const Mapper map{c, place, i};
        for (std::size_t k = 0; k + 1 < curve.v.size(); ++k) {
            s.Line(map.px(curve.x[k]), map.py(curve.v[k]), map.px(curve.x[k + 1]), map.py(curve.v[k + 1]),
                   color);
        }
    }
    const CurveMarks marks = curve_marks(m, d, values, upper, c, place, screen_labels());
    s.SetFontName("Arial");
    for (const DiagramText& t : marks.texts) {
        s.SetFontSize(t.size);
        PrintAt(s, t.x, t.y, t.text, t.color);
    }
    for (const DiagramStroke& st : marks.strokes) {
        s.Line(st.x1, st.y1, st.x2, st.y2, kBlack);
    }
}

void draw_axis(PlotSurface& s, const Model& m, const SpanColumns& c, float base)
{
    s.SetDrawWidth(1);
    s.Line(c.start(1), base - 20, c.start(1), base + 20, kBlack);
    for (int i = 1; i <= m.nf; ++i) {
        s.Line(c.start(i + 1), base - 20, c.start(i + 1), base + 20, kBlack);
        s.Line(c.start(i), base, c.start(i + 1), base, kBlack);
    }
    for (int i = 1; i <= m.nf; ++i) {
        for (int k = 3; k <= m.nxtot10_s(i); ++k) {
            const float x = c.at(i, m.xl10_s(i, k));
            if (k == 7) {
                s.SetDrawWidth(2);
                s.Line(x, base - 2, x, base + 2, kBlack);
                s.SetDrawWidth(1);
            } else {
                s.Line(x, base - 1, x, base + 1, kBlack);
            }
        }
    }
}

void draw_diagram(PlotSurface& s, const Model& m, Diagram d, const Values& upper, const Values& lower,
                  const SpanColumns& c)
{
    const float maximum = std::max(MaxAbsOverSpans(m, upper), MaxAbsOverSpans(m, lower));
    const DiagramPlace place = screen_place(d, maximum);
    if (maximum > 0 && std::isfinite(maximum)) { // results beyond any number show no curve
        draw_curve(s, m, d, upper, true, c, place);
        draw_curve(s, m, d, lower, false, c, place);
    }
    draw_axis(s, m, c, place.base);
}

} // namespace

SpanCurve span_curve(const Model& m, const Values& values, int span)
{
    SpanCurve c;
    const int n = m.nxtot_s(span);
    if (n < 2) {
        return c;
    }
    const auto add = [&](int k) {
        c.x.push_back(m.xl_s(span, k));
        c.v.push_back(values(span, k));
    };
    add(1);
    for (int k = 3; k <= n; ++k) {
        add(k);
    }
    add(2);
    return c;
}

const LabelStyle& screen_labels()
{
    static const LabelStyle style = [] {
        LabelStyle st;
        st.moment_left = {0, 5, -2};
        st.moment_peak = {0, 5, -2};
        st.moment_right = {-4, 5, -2};
        st.shear_left = {1, 5, -2};
        st.shear_right = {-5, 5, -2};
        st.shear_threshold = 0.099F;
        st.deflection_left = {0, 5, -6};
        st.left_ratio = {8, 12, -6};
        st.deflection_peak = {-3, 6, -2};
        st.peak_ratio = {3, 7, -6};
        st.deflection_right_above = {-6, 5, 0};
        st.deflection_right_below = {-12, 0, -6};
        st.right_ratio = {-6, -1, -6};
        st.deflection_end_threshold = 0.001F;
        st.deflection_peak_threshold = 0.1F;
        st.deflection_right_threshold = 0.01F;
        st.crossing_over = {-4, 8, -1, 6};
        st.crossing_under = {-2, -5, 1, 7};
        st.value_color = kBlue;
        st.ratio_color = kRed;
        st.crossing_color = kRed;
        return st;
    }();
    return style;
}

// On paper everything is black. The offsets the paper does not give are those
// of the screen; where the right end's ratio goes is our own choice.
const LabelStyle& paper_labels()
{
    static const LabelStyle style = [] {
        LabelStyle st = screen_labels();
        st.moment_left = {3, 5, -2};
        st.moment_right = {-5, 5, -2};
        st.shear_left = {3, -1, -1};
        st.shear_right = {-7, 2, -1};
        st.shear_threshold = 0.09F;
        st.deflection_left = {0, 2, -2};
        st.left_ratio = {10, 17, -2};
        st.deflection_peak = {3, -1, -1};
        st.peak_ratio = {8, 15, -1};
        st.deflection_right_above = {-4, 2, 0};
        st.deflection_right_below = {-17, 0, -2};
        st.right_ratio = {-14, -6, -5};
        st.deflection_end_threshold = st.deflection_peak_threshold = st.deflection_right_threshold = 0.099F;
        st.crossing_over = {-4, 4, 1, 6};
        st.crossing_under = {-2, -2, 3, 7};
        st.value_color = st.ratio_color = st.crossing_color = kBlack;
        return st;
    }();
    return style;
}

DiagramPlace screen_place(Diagram d, float maximum)
{
    switch (d) {
    case Diagram::Moment:
        return {75.0F, 0.2F, maximum};
    case Diagram::Shear:
        return {29.0F, 0.15F, maximum};
    case Diagram::Deflection:
        break;
    }
    return {60.0F, 0.3F, maximum};
}

bool span_loaded(const Model& m, int span)
{
    for (const LoadGroup* g : {&m.G, &m.Q1, &m.Q2}) {
        for (int k = 1; k <= g->uni_n; ++k) {
            if (g->uni_span(k) == span) {
                return true;
            }
        }
        for (int k = 1; k <= g->trap_n; ++k) {
            if (g->trap_span(k) == span) {
                return true;
            }
        }
        for (int k = 1; k <= g->pt_n; ++k) {
            if (g->pt_span(k) == span) {
                return true;
            }
        }
        for (int k = 1; k <= g->mom_n; ++k) {
            if (g->mom_span(k) == span) {
                return true;
            }
        }
    }
    return false;
}

CurveMarks curve_marks(const Model& m, Diagram d, const Values& values, bool upper,
                       const SpanColumns& columns, const DiagramPlace& place, const LabelStyle& style)
{
    CurveMarks marks;
    if (!(place.maximum > 0) || !std::isfinite(place.maximum)) {
        return marks;
    }
    Marker mark(m, place, style.value_color, marks);
    for (int i = 1; i <= m.nf; ++i) {
        const SpanCurve c = span_curve(m, values, i);
        if (c.v.size() < 3 || !(m.ffl_s(i) > 0)) {
            continue;
        }
        const Mapper map{columns, place, i};
        switch (d) {
        case Diagram::Moment:
            moment_marks(m, c, map, upper, style, mark);
            break;
        case Diagram::Shear:
            shear_marks(c, map, upper, style, mark);
            break;
        case Diagram::Deflection:
            deflection_marks(m, c, map, upper, style, mark);
            break;
        }
    }
    return marks;
}

void PlotResults(PlotSurface& result, PlotSurface& deflection, const Model& m)
{
    const SpanColumns c = PlotSpanWidths(m, kMargin, 100 - 2 * kMargin);
    SetPlotScale(result, 0, 100, 100, 0);
    SetPlotScale(deflection, 0, 100, 100, 0);
    draw_diagram(result, m, Diagram::Moment, m.M_max, m.M_min, c);
    draw_diagram(result, m, Diagram::Shear, m.V_max, m.V_min, c);
    draw_diagram(deflection, m, Diagram::Deflection, m.W_max, m.W_min, c);
}

} // namespace kvelder
