#include "drawing/pictures.h"

#include "drawing/beam_plot.h"
#include "drawing/result_plot.h"

#include <memory>

namespace kvelder {

void PlotAllLoads(PlotSurface& egenlast, PlotSurface& nyttelast, PlotSurface& nyttelast_2, const Model& m)
{
    LoadPlotState state;
    const bool drawable = !is_true(m.err_loads) && !is_true(m.err_spans);
    egenlast.Cls();
    if (drawable) {
        PlotBeamToScale(egenlast, m);
        if (!m.G.empty()) {
            PlotLoadGroup(egenlast, m, LoadGroupId::G, state);
        }
    }
    nyttelast.Cls();
    if (drawable && !m.Q1.empty()) {
        PlotLoadGroup(nyttelast, m, LoadGroupId::Q1, state);
    }
    nyttelast_2.Cls();
    if (drawable && !m.Q2.empty()) {
        PlotLoadGroup(nyttelast_2, m, LoadGroupId::Q2, state);
    }
}

void PlotAll(const ScreenSurfaces& s, const Model& m)
{
    s.felt.Cls();
    PlotSpanSketch(s.felt, m);
    PlotAllLoads(s.egenlast, s.nyttelast, s.nyttelast_2, m);
    s.result.Cls();
    s.disp.Cls();
    PlotResults(s.result, s.disp, m);
}

PictureImages draw_pictures(const Model& m, const std::array<QSize, std::size(kPictures)>& sizes,
                            qreal pixel_ratio)
{
    PictureImages images;
    for (std::size_t k = 0; k < images.size(); ++k) {
        images[k] = QImage(sizes[k].expandedTo(QSize(1, 1)) * pixel_ratio, QImage::Format_RGB32);
        images[k].setDevicePixelRatio(pixel_ratio);
        images[k].fill(Qt::white);
    }
    {
        // The surfaces end their painting when they go, before the images leave.
        std::array<std::unique_ptr<PlotSurface>, std::size(kPictures)> s;
        for (std::size_t k = 0; k < images.size(); ++k) {
            s[k] = std::make_unique<PlotSurface>(images[k]);
        }
        PlotAll({*s[0], *s[1], *s[2], *s[3], *s[4], *s[5]}, m);
    }
    return images;
}

} // namespace kvelder
