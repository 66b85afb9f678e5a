#pragma once

#include "drawing/plot_scale.h"
#include "drawing/plot_surface.h"

namespace kvelder {

// The colours of the plots.
inline constexpr PlotColor kBlack = 0;
inline constexpr PlotColor kGrey = 0xC0C0C0;
inline constexpr PlotColor kBlue = RGB(0, 0, 255);
inline constexpr PlotColor kRed = 255;
inline constexpr PlotColor kCurveGreen = 49152;
inline constexpr PlotColor kDeflectionGreen = RGB(0, 255, 0);

// Pixel mode for drawing glyphs, with the percent of the screen pictures
// converted by hand (pixel y runs down). When it ends the percent scale
// 0..100 x 0..100 with y up is back.
class PixelMode {
public:
    explicit PixelMode(PlotSurface& surface);
    ~PixelMode();
    PixelMode(const PixelMode&) = delete;
    PixelMode& operator=(const PixelMode&) = delete;

    float x(float percent) const { return m_units.width_unit * percent; }
    float y(float percent) const { return m_surface.ScaleHeight() - m_units.height_unit * percent; }
    // A height in percent measured down from the top, without the flip.
    float down(float percent) const { return m_units.height_unit * percent; }

private:
    PlotSurface& m_surface;
    PercentUnits m_units;
};

// A filled black arrow head of width `size` pixels with its top left corner at
// (left, top) in pixels: anchored through the cursor, drawn by Polygon.
void DrawArrowHead(PlotSurface& surface, float left, float top, int size, bool down);

// The symbol of a support at a node (x, y) in pixels: nothing for a free end, a
// triangle on a line for a simple support, a wall for a built-in end (at the
// first or last node only, on the outer side).
void DrawSupport(PlotSurface& surface, char kind, float x, float y, int size, bool first, bool last);

// Text at (x, y) in the current scale, in a colour; black is the ink again after.
void PrintAt(PlotSurface& surface, float x, float y, std::string_view text, PlotColor color = kBlack);

} // namespace kvelder
