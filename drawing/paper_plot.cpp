#include "drawing/paper_plot.h"

#include "drawing/glyphs.h"
#include "drawing/load_plot.h"
#include "drawing/result_plot.h"
#include "files/number_format.h"

namespace kvelder {
namespace {

constexpr float kLeft = 15.0F;   // mm
constexpr float kWidth = 170.0F; // mm
constexpr float kBandMm = 3.0F;  // the largest uniform or trapezoidal load
constexpr float kArrowMm = 4.0F; // a point load
constexpr float kHeadMm = 1.0F;

void ink(PlotSurface& s, std::string_view font, float size, bool bold)
{
    s.SetFontName(font);
    s.SetFontSize(size);
    s.SetFontBold(bold);
    s.SetFontItalic(false);
    s.SetFontUnderline(false);
}

void arrow(PlotSurface& s, float x, float base, float top, bool down)
{
    s.Line(x, base, x, top, kBlack);
    if (down) {
        PaperArrowHead(s, x, base, std::min(kHeadMm, top - base), true);
    } else {
        PaperArrowHead(s, x, top, std::min(kHeadMm, top - base), false);
    }
}

const char* paper_caption(const Model& m, LoadGroupId group)
{
    const bool eng = m.language == "Eng";
    switch (group) {
    case LoadGroupId::G:
        return eng ? "Permanent load  :" : "Permanent last  :";
    case LoadGroupId::Q1:
        return eng ? "Variable load Q1:" : "Variabel last Q1:";
    case LoadGroupId::Q2:
        break;
    }
    return eng ? "Variable load Q2:" : "Variabel last Q2:";
}

void print_factors(PlotSurface& s, const Model& m, LoadGroupId group, float x, float y)
{
    const bool a = m.comb_rule == "610a";
    const GroupFactors f = factors_of(m, group);
    const float sls = f.creep, uls = a ? f.gamma_a : f.gamma_b;
    ink(s, "Times New Roman", 8, false);
    PrintAt(s, x + 65, y, "SLS:");
    PrintAt(s, x + 72, y, format_number(m, sls, "##0.00"));
    PrintAt(s, x + 80, y, "ULS:");
    PrintAt(s, x + 88, y, a ? "Eq. 6.10a:" : "Eq. 6.10b:");
    PrintAt(s, x + 102, y, format_number(m, uls, "##0.00"));
}

void paper_bands(PlotSurface& s, const Model& m, const LoadGroup& g, const SpanColumns& c, float& y)
{
    ink(s, "Arial", 7, false);
    const auto on_beam = [&m](int span) { return span >= 1 && span <= m.nf; };
    if (g.mom_n > 0) {
        y -= 6;
        for (int k = 1; k <= g.mom_n; ++k) {
            if (!on_beam(g.mom_span(k))) {
                continue;
            }
            const float x = c.at(g.mom_span(k), g.mom_a(k));
            s.Circle(x, y + 1, 2, kBlack, 0.0F, 3.14F);
            PaperArrowHead(s, g.mom_M(k) >= 0 ? x + 2 : x - 2, y + 1 - kHeadMm, kHeadMm, true);
            PrintAt(s, x + 2.5F, y + 4.5F, format_number(m, std::abs(g.mom_M(k)), "0.00"));
        }
    }
    if (g.pt_n > 0) {
        y -= 4;
        for (int k = 1; k <= g.pt_n; ++k) {
            if (!on_beam(g.pt_span(k))) {
                continue;
            }
            const float x = c.at(g.pt_span(k), g.pt_a(k));
            arrow(s, x, y, y + kArrowMm, g.pt_P(k) >= 0);
            PrintAt(s, x + 0.8F, y + kArrowMm, format_number(m, std::abs(g.pt_P(k)), "0.00"));
        }
    }
    if (g.trap_n > 0) {
        y -= 10 - 2;
        const float largest =
            std::max(MaxAbsOfLoads(g.trap_q1, g.trap_n), MaxAbsOfLoads(g.trap_q2, g.trap_n));
        for (int k = 1; largest > 0 && k <= g.trap_n; ++k) {
            if (!on_beam(g.trap_span(k))) {
                continue;
            }
            const float left = c.at(g.trap_span(k), g.trap_a(k));
            const float right = c.at(g.trap_span(k), g.trap_b(k));
            const float h1 = std::abs(g.trap_q1(k)) / largest * kBandMm;
            const float h2 = std::abs(g.trap_q2(k)) / largest * kBandMm;
            s.Line(left, y, right, y, kBlack);
            s.Line(left, y + h1, right, y + h2, kBlack);
            for (int quarter = 0; quarter <= 4; ++quarter) {
                const float t = static_cast<float>(quarter) / 4;
                const float q = g.trap_q1(k) + t * (g.trap_q2(k) - g.trap_q1(k));
                arrow(s, left + t * (right - left), y, y + h1 + t * (h2 - h1), q >= 0);
            }
            PrintAt(s, left, y + kBandMm + 3, format_number(m, g.trap_q1(k), "##0.00"));
            PrintAt(s, right - 4, y + kBandMm + 3, format_number(m, g.trap_q2(k), "##0.00"));
        }
    }
    if (g.uni_n > 0) {
        y -= 7 + 1;
        const float largest = MaxAbsOfLoads(g.uni_q, g.uni_n);
        for (int k = 1; largest > 0 && k <= g.uni_n; ++k) {
            if (!on_beam(g.uni_span(k))) {
                continue;
            }
            const int span = g.uni_span(k);
            const float x0 = c.start(span), w = c.width[static_cast<std::size_t>(span - 1)];
            const float h = std::abs(g.uni_q(k)) / largest * kBandMm;
            s.SetFillStyle(FillStyle::Transparent);
            s.Line(x0, y, x0 + w, y + h, kBlack, true);
            for (int quarter = 0; quarter <= 4; ++quarter) {
                arrow(s, x0 + static_cast<float>(quarter) * w / 4, y, y + h, g.uni_q(k) >= 0);
            }
            PrintAt(s, x0 + 0.4F * w, y + kBandMm + 3, format_number(m, std::abs(g.uni_q(k)), "##0.00"));
        }
    }
}

// The paper's axis: span ends, the line from span to span, the coarse grid.
void paper_axis(PlotSurface& s, const Model& m, const SpanColumns& c, float base, int width)
{
    s.SetDrawWidth(1);
    for (int i = 1; i <= m.nf + 1; ++i) {
        s.Line(c.start(i), base - 4, c.start(i), base + 4, kBlack);
    }
    s.SetDrawWidth(width);
    s.Line(c.start(1), base, c.end(m.nf), base, kBlack);
    s.SetDrawWidth(1);
    for (int i = 1; i <= m.nf; ++i) {
        for (int k = 3; k <= m.nxtot10_s(i); ++k) {
            const float x = c.at(i, m.xl10_s(i, k));
            const float tick = k == 7 ? 1.0F : 0.5F;
            s.Line(x, base - tick, x, base + tick, kBlack);
        }
    }
}

void paper_diagram(PlotSurface& s, const Model& m, Diagram d,
                   const Table2<float, kMaxSpans, kMaxPoints>& upper,
                   const Table2<float, kMaxSpans, kMaxPoints>& lower, const SpanColumns& c, float base,
                   int axis_width)
{
    const DiagramPlace place{base, 0.075F, std::max(MaxAbsOverSpans(m, upper), MaxAbsOverSpans(m, lower))};
    if (place.maximum > 0 && std::isfinite(place.maximum)) {
        for (const auto* values : {&upper, &lower}) {
            s.SetDrawStyle(values == &upper ? DrawStyle::Solid : DrawStyle::Dot);
            for (int i = 1; i <= m.nf; ++i) {
                const SpanCurve curve = span_curve(m, *values, i);
                const auto py = [&](float v) { return 100 / place.maximum * v * place.amplitude + base; };
                for (std::size_t k = 0; k + 1 < curve.v.size(); ++k) {
                    s.Line(c.at(i, curve.x[k]), py(curve.v[k]), c.at(i, curve.x[k + 1]), py(curve.v[k + 1]),
                           kBlack);
                }
            }
            s.SetDrawStyle(DrawStyle::Solid);
            const CurveMarks marks = curve_marks(m, d, *values, values == &upper, c, place, paper_labels());
            ink(s, "Arial", 7, false);
            for (const DiagramText& t : marks.texts) {
                s.SetFontSize(t.size);
                PrintAt(s, t.x, t.y, t.text, t.color);
            }
            for (const DiagramStroke& st : marks.strokes) {
                s.Line(st.x1, st.y1, st.x2, st.y2, kBlack);
            }
        }
    }
    paper_axis(s, m, c, base, axis_width);
}

} // namespace

void PaperArrowHead(PlotSurface& s, float x, float tip, float height, bool down)
{
    constexpr float kSqrt3 = 1.7320508F;
    const float step = height / 20;
    const float inset = step / kSqrt3;
    const float half = height / kSqrt3;
    for (int k = 0; k < 20; ++k) {
        // From the base towards the tip, each line a little shorter.
        const float from_tip = height - static_cast<float>(k) * step;
        const float level = down ? tip + from_tip : tip - from_tip;
        const float w = half - static_cast<float>(k) * inset;
        s.Line(x - w, level, x + w, level, kBlack);
    }
}

float PrintLoadPlots(PlotSurface& s, const Model& m, float x, float y)
{
    const SpanColumns c = PlotSpanWidths(m, kLeft, kWidth);
    for (const LoadGroupId id : {LoadGroupId::G, LoadGroupId::Q1, LoadGroupId::Q2}) {
        const LoadGroup& g = group_of(m, id);
        if (g.empty()) {
            continue;
        }
        y -= id == LoadGroupId::Q2 ? 5 : 4;
        ink(s, "Times New Roman", 10, true);
        PrintAt(s, x, y, paper_caption(m, id));
        print_factors(s, m, id, x, y);
        y -= 3;
        paper_bands(s, m, g, c, y);
    }
    y -= 5;
    PrintBeam(s, m, y);
    return y - 6;
}

void PrintBeam(PlotSurface& s, const Model& m, float y)
{
    const SpanColumns c = PlotSpanWidths(m, kLeft, kWidth);
    s.SetFillStyle(FillStyle::Transparent);
    for (int i = 1; i <= m.nf; ++i) {
        s.Line(c.start(i), y, c.start(i + 1), y + 1, kBlack, true);
        ink(s, "Arial", 7, false);
        PrintAt(s, (c.start(i) + c.start(i + 1)) / 2 - 3, y - 2.5F, format_number(m, m.ffl_s(i), "##0.000"));
    }
    for (int node = 1; node <= m.nnodes; ++node) {
        const float x = c.start(node);
        const char kind = m.support_kind(node);
        if (kind == kSimple) {
            PaperArrowHead(s, x, y, 1.5F, false);
            s.Line(x - 2, y - 1.5F, x + 2, y - 1.5F, kBlack);
        } else if (kind == kBuiltIn && (node == 1 || node == m.nnodes)) {
            const float out = node == 1 ? -1.0F : 1.0F;
            s.Line(x, y - 2, x, y + 3, kBlack);
            for (float h : {-2.0F, -0.75F, 0.5F, 1.75F, 3.0F}) {
                s.Line(x, y + h, x + out, y + h - 1, kBlack);
            }
        }
    }
}

float PrintResults(PlotSurface& s, const Model& m, float x, float y0)
{
    const bool eng = m.language == "Eng";
    ink(s, "Times New Roman", 10, true);
    PrintAt(s, x, y0, eng ? "Moment and Shear" : "Moment og Skj\u00e6r");
    s.SetFontBold(false);
    s.SetFontUnderline(false);
    const SpanColumns c = PlotSpanWidths(m, kLeft, kWidth);
    paper_diagram(s, m, Diagram::Moment, m.M_max, m.M_min, c, y0 - 13, 3);
    paper_diagram(s, m, Diagram::Shear, m.V_max, m.V_min, c, y0 - 31, 1);
    ink(s, "Times New Roman", 10, true);
    PrintAt(s, x, y0 - 43, eng ? "Deformations" : "Deformasjoner");
    s.SetFontBold(false);
    paper_diagram(s, m, Diagram::Deflection, m.W_max, m.W_min, c, y0 - 53, 1);
    return y0 - 63;
}

} // namespace kvelder
