#include "drawing/load_sketches.h"

#include "drawing/glyphs.h"

namespace kvelder {
namespace {

constexpr PlotColor kBaseline = RGB(0, 0, 250);
constexpr PlotColor kDimension = RGB(250, 0, 0);
constexpr float kMargin = 5.0F;
constexpr float kSpanY = 30.0F;

void start(PlotSurface& s)
{
    s.Cls();
    SetPlotScale(s, 0, 100, 100, 0);
    s.SetFontName("arial");
    s.SetFontSize(8);
    s.SetDrawWidth(1);
    s.Line(kMargin, kSpanY, 100 - kMargin, kSpanY, kBaseline);
    s.Line(kMargin, kSpanY - 5, kMargin, kSpanY + 5, kBaseline); // the start of the span
}

// A dimension from the start of the span to `to`, at height y, with end ticks.
void dimension(PlotSurface& s, float to, float y, std::string_view label)
{
    s.Line(kMargin, y, to, y, kDimension);
    s.Line(kMargin, y - 5, kMargin, y + 5, kDimension);
    s.Line(to, y - 5, to, y + 5, kDimension);
    PrintAt(s, (kMargin + to) / 2 - 2, y + 9, label);
}

} // namespace

void PlotTrapezoidSketch(PlotSurface& s)
{
    start(s);
    const float x1 = 25, x2 = 75, h1 = 12, h2 = 32;
    {
        PixelMode px(s);
        s.SetFillColor(kGrey);
        s.SetForeColor(kBlack);
        const PixelPoint band[] = {
            {to_pixel(px.x(x1)), to_pixel(px.y(kSpanY))},
            {to_pixel(px.x(x2)), to_pixel(px.y(kSpanY))},
            {to_pixel(px.x(x2)), to_pixel(px.y(kSpanY + h2))},
            {to_pixel(px.x(x1)), to_pixel(px.y(kSpanY + h1))},
        };
        s.Polygon(band);
    }
    dimension(s, x1, 20, "x1");
    dimension(s, x2, 8, "x2");
    PrintAt(s, x1 - 8, kSpanY + h1 + 8, "q1");
    PrintAt(s, x2 + 2, kSpanY + h2 + 8, "q2");
}

void PlotPointSketch(PlotSurface& s)
{
    start(s);
    const float x = 45;
    s.Line(x, kSpanY, x, kSpanY + 45, kBlack);
    {
        PixelMode px(s);
        DrawArrowHead(s, px.x(x) - 3, px.y(kSpanY) - static_cast<float>(ArrowHeight(6)), 6, true);
    }
    dimension(s, x, 15, "x");
    PrintAt(s, x + 3, kSpanY + 50, "P");
}

void PlotMomentSketch(PlotSurface& s)
{
    start(s);
    const float x = 45;
    {
        PixelMode px(s);
        s.SetFillStyle(FillStyle::Transparent);
        s.Circle(px.x(x), px.y(kSpanY) - 3, 15, kBlack, 0.0F, 3.14F);
        DrawArrowHead(s, px.x(x) + 15 - 3, px.y(kSpanY) - 3, 6, true);
    }
    s.Line(x, kSpanY - 3, x, kSpanY + 3, kBlack);
    dimension(s, x, 15, "x");
    PrintAt(s, x + 8, kSpanY + 35, "+M");
}

} // namespace kvelder
