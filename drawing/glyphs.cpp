#include "drawing/glyphs.h"

namespace kvelder {

PixelMode::PixelMode(PlotSurface& surface) : m_surface(surface)
{
    m_surface.SetScaleMode(ScaleMode::Pixel);
    m_units = GetPercentUnits(m_surface);
    m_surface.SetFillStyle(FillStyle::Solid);
    m_surface.SetDrawWidth(1);
}

PixelMode::~PixelMode()
{
    SetPlotScale(m_surface, 0, 100, 100, 0);
}

void DrawArrowHead(PlotSurface& surface, float left, float top, int size, bool down)
{
    surface.SetCurrentX(left);
    surface.SetCurrentY(top);
    const auto dx = to_pixel(surface.CurrentX());
    const auto dy = to_pixel(surface.CurrentY());
    std::array<PixelPoint, 3> points = ArrowHead(size, down);
    for (PixelPoint& p : points) {
        p.x += dx;
        p.y += dy;
    }
    surface.SetForeColor(kBlack);
    surface.SetFillColor(kBlack);
    surface.Polygon(points);
}

void DrawSupport(PlotSurface& surface, char kind, float x, float y, int size, bool first, bool last)
{
    if (kind == kSimple) {
        const int half = static_cast<int>(std::lround(size / 2.0));
        DrawArrowHead(surface, x - static_cast<float>(half), y, size, false);
        const auto base = y + static_cast<float>(ArrowHeight(size));
        surface.Line(x - 10, base, x + 10, base, kBlack);
    } else if (kind == kBuiltIn && (first || last)) {
        surface.Line(x, y - 10, x, y + 10, kBlack);
        const float stroke = first ? -5.0F : 5.0F;
        for (float dy : {-10.0F, -5.0F, 0.0F, 5.0F, 10.0F}) {
            surface.Line(x, y + dy, x + stroke, y + dy, kBlack);
        }
    }
}

void PrintAt(PlotSurface& surface, float x, float y, std::string_view text, PlotColor color)
{
    surface.SetForeColor(color);
    surface.SetCurrentX(x);
    surface.SetCurrentY(y);
    surface.Print(text);
    surface.SetForeColor(kBlack);
}

} // namespace kvelder
