#include "drawing/pictures.h"

#include "drawing/beam_plot.h"
#include "drawing/result_plot.h"

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

} // namespace kvelder
