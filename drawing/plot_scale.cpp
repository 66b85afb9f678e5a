#include "drawing/plot_scale.h"

#include <cmath>

namespace kvelder {

void SetPlotScale(PlotSurface& surface, float left, float top, float right, float bottom)
{
    surface.SetScaleLeft(left);
    surface.SetScaleTop(top);
    surface.SetScaleWidth(right - left);
    surface.SetScaleHeight(bottom - top);
}

PercentUnits GetPercentUnits(const PlotSurface& surface)
{
    return {surface.ScaleHeight() / 100, surface.ScaleWidth() / 100};
}

float MaxAbsOverSpans(const Model& m, const Table2<float, kMaxSpans, kMaxPoints>& values)
{
    float largest = 0;
    for (int i = 1; i <= m.nf; ++i) {
        for (int k = 1; k <= m.nxtot_s(i); ++k) {
            largest = std::max(largest, std::abs(values(i, k)));
        }
    }
    return largest;
}

float SpanColumns::start(int span) const
{
    float x = margin;
    for (int i = 1; i < span; ++i) {
        x += width[static_cast<std::size_t>(i - 1)];
    }
    return x;
}

float SpanColumns::at(int span, float a) const
{
    return start(span) + a * per_metre;
}

SpanColumns PlotSpanWidths(const Model& m, float margin, float total)
{
    SpanColumns c;
    c.margin = margin;
    double length = 0;
    for (int i = 1; i <= m.nf; ++i) {
        length += m.ffl_s(i);
    }
    if (!(length > 0)) {
        return c; // nothing to share: every column stays empty
    }
    c.per_metre = static_cast<float>(total / length);
    for (int i = 1; i <= m.nf; ++i) {
        c.width[static_cast<std::size_t>(i - 1)] = c.per_metre * m.ffl_s(i);
    }
    return c;
}

SpanColumns SketchSpanWidths(float margin)
{
    SpanColumns c;
    c.margin = margin;
    c.width.fill((100 - 2 * margin) / 5);
    return c;
}

int ArrowHeight(int size)
{
    constexpr float pi = 3.1415927F;
    return static_cast<int>(std::lround(std::sin(pi / 180) * 60 * static_cast<float>(size)));
}

std::array<PixelPoint, 3> ArrowHead(int size, bool down)
{
    const int half = static_cast<int>(std::lround(size / 2.0));
    const int height = ArrowHeight(size);
    if (down) {
        return {PixelPoint{half, height}, PixelPoint{size, 0}, PixelPoint{0, 0}};
    }
    return {PixelPoint{half, 0}, PixelPoint{size, height}, PixelPoint{0, height}};
}

} // namespace kvelder
