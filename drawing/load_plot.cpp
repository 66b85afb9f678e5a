#include "drawing/load_plot.h"

#include "drawing/glyphs.h"
#include "files/number_format.h"

#include <algorithm>

namespace kvelder {
namespace {

constexpr int kBandArrow = 4;
constexpr int kLoadArrow = 6;

// An arrow of a band at x (pixels): its head at the base or at the top, by the
// direction of the load, and a shaft over the height of the band there.
void band_arrow(PlotSurface& s, float x, float base, float top, bool down)
{
    const int half = static_cast<int>(std::lround(kBandArrow / 2.0));
    const float h = static_cast<float>(ArrowHeight(kBandArrow));
    if (down) {
        DrawArrowHead(s, x - static_cast<float>(half), base - h, kBandArrow, true);
    } else {
        DrawArrowHead(s, x - static_cast<float>(half), top, kBandArrow, false);
    }
    s.Line(x, base, x, top, kBlack);
}

void grey_band(PlotSurface& s, float left, float right, float base, float top_left, float top_right)
{
    s.SetFillColor(kGrey);
    s.SetForeColor(kBlack);
    const PixelPoint band[] = {
        {to_pixel(left), to_pixel(base)},
        {to_pixel(right), to_pixel(base)},
        {to_pixel(right), to_pixel(top_right)},
        {to_pixel(left), to_pixel(top_left)},
    };
    s.Polygon(band);
}

void uniform_band(PlotSurface& s, const Model& m, const LoadGroup& g, const SpanColumns& c, float base,
                  float height)
{
    const float largest = MaxAbsOfLoads(g.uni_q, g.uni_n);
    if (!(largest > 0)) {
        return; // rows of no load draw nothing
    }
    const float scale = height / largest;
    for (int k = 1; k <= g.uni_n; ++k) {
        const int span = g.uni_span(k);
        if (span < 1 || span > m.nf) {
            continue;
        }
        const float q = g.uni_q(k);
        const float x0 = c.start(span);
        const float w = c.width[static_cast<std::size_t>(span - 1)];
        {
            PixelMode px(s);
            const float top = px.y(base + std::abs(q) * scale);
            grey_band(s, px.x(x0), px.x(x0 + w), px.y(base), top, top);
            for (int quarter = 0; quarter <= 4; ++quarter) {
                band_arrow(s, px.x(x0 + static_cast<float>(quarter) * w / 4), px.y(base), top, q >= 0);
            }
        }
        PrintAt(s, x0 + 1.65F * (w / 4), base, format_number(m, std::abs(q), "#0.00  "), kBlue);
    }
}

void trapezoid_band(PlotSurface& s, const Model& m, const LoadGroup& g, const SpanColumns& c, float base,
                    float height, float text_drop)
{
    const float largest = std::max(MaxAbsOfLoads(g.trap_q1, g.trap_n), MaxAbsOfLoads(g.trap_q2, g.trap_n));
    if (!(largest > 0)) {
        return;
    }
    const float scale = height / largest;
    for (int k = 1; k <= g.trap_n; ++k) {
        const int span = g.trap_span(k);
        if (span < 1 || span > m.nf) {
            continue;
        }
        const float q1 = g.trap_q1(k), q2 = g.trap_q2(k);
        const float left = c.at(span, g.trap_a(k));
        const float right = c.at(span, g.trap_b(k));
        PixelMode px(s);
        grey_band(s, px.x(left), px.x(right), px.y(base), px.y(base + std::abs(q1) * scale),
                  px.y(base + std::abs(q2) * scale));
        for (int quarter = 0; quarter <= 4; ++quarter) {
            const float t = static_cast<float>(quarter) / 4;
            const float h = (std::abs(q1) + t * (std::abs(q2) - std::abs(q1))) * scale;
            const float q = q1 + t * (q2 - q1);
            band_arrow(s, px.x(left + t * (right - left)), px.y(base), px.y(base + h), q >= 0);
        }
        // These two values are placed from the top of the picture, in pixels.
        s.SetFontName("Arial");
        s.SetFontSize(7);
        const float text_y = px.down(base + text_drop);
        PrintAt(s, px.x(left - 0.5F), text_y, format_number(m, q1, " #0.00 "), kBlue);
        PrintAt(s, px.x(right), text_y, format_number(m, q2, " #0.00 "), kBlue);
    }
}

void point_band(PlotSurface& s, const Model& m, const LoadGroup& g, const SpanColumns& c, float base,
                float height)
{
    for (int k = 1; k <= g.pt_n; ++k) {
        const int span = g.pt_span(k);
        if (span < 1 || span > m.nf) {
            continue;
        }
        const float P = g.pt_P(k);
        const float x = c.at(span, g.pt_a(k));
        {
            PixelMode px(s);
            const int half = static_cast<int>(std::lround(kLoadArrow / 2.0));
            const float h = static_cast<float>(ArrowHeight(kLoadArrow));
            if (P >= 0) {
                DrawArrowHead(s, px.x(x) - static_cast<float>(half), px.y(base) - h, kLoadArrow, true);
            } else {
                DrawArrowHead(s, px.x(x) - static_cast<float>(half), px.y(base + height), kLoadArrow, false);
            }
        }
        s.Line(x, base, x, base + height, kBlack);
        PrintAt(s, x - 2, base + height + 7, format_number(m, std::abs(P), " #0.0"), kBlue);
    }
}

void moment_band(PlotSurface& s, const Model& m, const LoadGroup& g, const SpanColumns& c, float base)
{
    for (int k = 1; k <= g.mom_n; ++k) {
        const int span = g.mom_span(k);
        if (span < 1 || span > m.nf) {
            continue;
        }
        const float M = g.mom_M(k);
        const float x = c.at(span, g.mom_a(k));
        {
            PixelMode px(s);
            const float xp = px.x(x), yp = px.y(base);
            if (M >= 0) {
                DrawArrowHead(s, xp + 15, yp, kLoadArrow, true);
            } else {
                DrawArrowHead(s, xp - 15, yp - 4, kLoadArrow, true);
            }
            s.SetFillStyle(FillStyle::Transparent);
            s.Circle(xp, yp - 3, 15, kBlack, 0.0F, 3.14F);
        }
        const float pixel = 100.0F / static_cast<float>(s.PixelWidth());
        PrintAt(s, x - 2 + 2 * pixel, base + 10, format_number(m, std::abs(M), " #0.00 "), kBlue);
    }
}

const char* caption(const Model& m, LoadGroupId group)
{
    const bool eng = m.language == "Eng";
    switch (group) {
    case LoadGroupId::G:
        return eng ? "Permanent load (G):" : "Permanent last (G):";
    case LoadGroupId::Q1:
        return eng ? "Variable load Q1:" : "Variabel last Q1:";
    case LoadGroupId::Q2:
        break;
    }
    return eng ? "Variable load Q2: " : "Variabel last Q2:";
}

} // namespace

BandBases band_bases(const LoadGroup& g, float y, float height, float gap)
{
    const bool uni = g.uni_n > 0, trap = g.trap_n > 0, pt = g.pt_n > 0;
    const auto step = [&](int below) { return static_cast<float>(below) * (height + gap); };
    BandBases b{};
    b.uniform = y;
    b.trapezoid = uni ? y + height + 1.5F * gap : y;
    b.point = y + step((uni ? 1 : 0) + (trap ? 1 : 0));
    b.moment = y + step((uni ? 1 : 0) + (trap ? 1 : 0) + (pt ? 1 : 0));
    return b;
}

void PlotLoadFactors(PlotSurface& surface, const Model& m, LoadGroupId group, float x, float y)
{
    const bool a = m.comb_rule == "610a";
    const GroupFactors f = factors_of(m, group);
    const float sls = f.creep, uls = a ? f.gamma_a : f.gamma_b;
    surface.SetFontName("Arial");
    surface.SetFontSize(9);
    PrintAt(surface, x, y + 90, caption(m, group));
    surface.SetFontSize(7);
    PrintAt(surface, x + 38, y + 88, "SLS:", kBlue);
    PrintAt(surface, x + 43, y + 88, format_number(m, sls, "##0.00"));
    PrintAt(surface, x + 48, y + 88, "ULS:", kBlue);
    PrintAt(surface, x + 53, y + 88, a ? "Eq. 6.10a:" : "Eq. 6.10b:", kBlue);
    PrintAt(surface, x + 63, y + 88, format_number(m, uls, "##0.00"));
}

void PlotLoadGroup(PlotSurface& surface, const Model& m, LoadGroupId group, LoadPlotState& state,
                   float margin)
{
    const LoadGroup& g = group_of(m, group);
    float y = 10.0F;
    if (group == LoadGroupId::G) {
        y = 20.0F;
        state.band_height = 10.0F;
    } else if (group == LoadGroupId::Q1) {
        state.band_height = 11.0F;
    }
    const float height = state.band_height;
    SetPlotScale(surface, 0, 100, 100, 0);
    const SpanColumns c = PlotSpanWidths(m, margin, 100 - 2 * margin);
    PlotLoadFactors(surface, m, group, margin, group == LoadGroupId::G ? y - 10 : y);

    const BandBases b = band_bases(g, y, height);
    surface.SetFontName("Arial");
    surface.SetFontSize(7);
    if (g.uni_n > 0) {
        uniform_band(surface, m, g, c, b.uniform, height);
    }
    if (g.trap_n > 0) {
        trapezoid_band(surface, m, g, c, b.trapezoid, height, group == LoadGroupId::G ? 20.0F : 38.0F);
    }
    if (g.pt_n > 0) {
        point_band(surface, m, g, c, b.point, height);
    }
    if (g.mom_n > 0) {
        moment_band(surface, m, g, c, b.moment);
    }
    SetPlotScale(surface, 0, 100, 100, 0);
}

} // namespace kvelder
