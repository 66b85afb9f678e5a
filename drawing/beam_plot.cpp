#include "drawing/beam_plot.h"

#include "drawing/glyphs.h"
#include "files/number_format.h"

namespace kvelder {
namespace {

void beam_body(PlotSurface& surface, const SpanColumns& c, int nf, float y)
{
    surface.SetFillStyle(FillStyle::Solid);
    surface.SetFillColor(kRed);
    surface.SetForeColor(kRed);
    for (int i = 1; i <= nf; ++i) {
        surface.Line(c.start(i), y, c.start(i + 1), y + 1, kRed, true);
    }
    surface.SetForeColor(kBlack);
}

} // namespace

void PlotSpanSketch(PlotSurface& surface, const Model& m, float margin, float y)
{
    SetPlotScale(surface, 0, 100, 100, 0);
    y -= 5;
    const SpanColumns c = SketchSpanWidths(margin);
    surface.SetFontName("Arial");
    surface.SetFontSize(8);
    for (int i = 1; i <= m.nf; ++i) {
        PrintAt(surface, (c.start(i) + c.start(i + 1)) / 2, y + 16, format_number(i, " 0 "));
    }
    beam_body(surface, c, m.nf, y);

    // The total length between two stubs of an interrupted dimension line.
    const float d = y - 47;
    const float left = margin;
    const float right = c.end(m.nf);
    surface.Line(left, d + 8, left + 5, d + 8, kBlack);
    surface.Line(right - 5, d + 8, right, d + 8, kBlack);
    surface.Line(left, d + 4, left, d + 14, kBlack);
    surface.Line(right, d + 4, right, d + 14, kBlack);
    double total = 0;
    for (int i = 1; i <= m.nf; ++i) {
        total += m.ffl_s(i);
    }
    PrintAt(surface, (left + right) / 2 - 4, d + 14, format_number(total, " 0.000 ", m.decimal_comma != 0));

    PixelMode px(surface);
    for (int node = 1; node <= m.nnodes; ++node) {
        const float x = px.x(c.start(node));
        const float top = px.y(y);
        const char kind = m.support_kind(node);
        DrawSupport(surface, kind, x, top, 8, node == 1, node == m.nnodes);
        PrintAt(surface, x - (kind == kFree ? 8.0F : 15.0F), top + 2, format_number(node, "0"));
    }
}

void PlotBeamToScale(PlotSurface& surface, const Model& m, float margin, float y)
{
    SetPlotScale(surface, 0, 100, 100, 0);
    const SpanColumns c = PlotSpanWidths(m, margin, 100 - 2 * margin);
    beam_body(surface, c, m.nf, y);

    surface.SetFontName("arial");
    surface.SetFontSize(7);
    for (int i = 1; i <= m.nf; ++i) {
        const float centre = (c.start(i) + c.start(i + 1)) / 2;
        PrintAt(surface, centre - 1.8F, y - 2, format_number(m.ffl_s(i), "##0.000", m.decimal_comma != 0));
    }

    surface.SetDrawWidth(2);
    for (int i = 1; i <= m.nf; ++i) {
        for (int k = 3; k <= m.nxtot10_s(i); ++k) {
            const float x = c.at(i, m.xl10_s(i, k));
            surface.Line(x, k == 7 ? y - 1.2F : y - 1.5F, x, y + 1.5F, kBlack);
        }
    }
    surface.SetDrawWidth(1);

    PixelMode px(surface);
    for (int node = 1; node <= m.nnodes; ++node) {
        DrawSupport(surface, m.support_kind(node), px.x(c.start(node)), px.y(y), 6, node == 1,
                    node == m.nnodes);
    }
}

} // namespace kvelder
