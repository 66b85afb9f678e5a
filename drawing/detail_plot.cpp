#include "drawing/detail_plot.h"

#include "drawing/glyphs.h"

#include <algorithm>

namespace kvelder {
namespace {

constexpr PlotColor kWood = RGB(240, 220, 170);
constexpr PlotColor kEdge = RGB(0, 85, 152);

} // namespace

void PlotTextLines(PlotSurface& s, const std::vector<TextLine>& lines)
{
    s.Cls();
    SetPlotScale(s, 0, 100, 100, 0);
    s.SetFontName("arial");
    s.SetFontSize(9);
    const float pitch = s.TextHeight() * 1.15F;
    float y = 100 - 2;
    for (const TextLine& line : lines) {
        float x = 2;
        for (const TextSegment& piece : line) {
            PrintAt(s, x, y, piece.text, piece.color);
            x += s.TextWidth(piece.text);
        }
        y -= pitch;
    }
}

void PlotSectionSketch(PlotSurface& s, TrialSection kind)
{
    s.Cls();
    SetPlotScale(s, 0, 100, 100, 0);
    s.SetFontName("arial");
    s.SetFontSize(8);
    s.SetDrawWidth(1);
    if (kind == TrialSection::Circle) {
        PixelMode px(s);
        const float radius = std::min(px.x(30), px.down(35));
        s.SetFillStyle(FillStyle::Transparent);
        s.Circle(px.x(45), px.y(50), radius, kEdge, 0.0F, 6.2832F);
    } else {
        s.SetFillStyle(FillStyle::Solid);
        s.SetFillColor(kWood);
        s.Line(30, 85, 60, 15, kEdge, true);
        s.SetFillStyle(FillStyle::Transparent);
    }
    if (kind == TrialSection::Circle) {
        s.Line(25, 50, 65, 50, kBlack);
        PrintAt(s, 80, 56, "d");
    } else {
        PrintAt(s, 42, 12, "b");
        PrintAt(s, 64, 56, "h");
    }
}

} // namespace kvelder
