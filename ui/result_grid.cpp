#include "ui/result_grid.h"

#include "design/section_checks.h"
#include "files/number_format.h"
#include "ui/result_points.h"

#include <cstddef>

namespace kvelder {
namespace {

std::vector<GridHead> heads(bool eng)
{
    std::vector<GridHead> h{
        {0, 0, 6, eng ? "               Forces and Moments" : "               Krefter og  Momenter"},
        {0, 6, 4, eng ? "      Support Reactions" : "      Oppleggskrefter"},
        {0, 10, 3, eng ? "Deformation" : "Nedb\u00f8yning"},
        {1, 0, 1, eng ? "Span" : "Felt"},
        {1, 1, 1, "   xl"},
        {1, 2, 2, eng ? "Shear (kN)" : "Skj\u00e6rkraft (kN)"},
        {1, 4, 2, "Moment (kNm)"},
        {1, 6, 2, eng ? "  Force (kN)" : "  Kraft (kN)"},
        {1, 8, 2, "Moment (kNm)"},
        {1, 10, 2, "        (mm)  "},
        {2, 0, 1, eng ? " no." : " nr."},
        {2, 1, 1, "  m"},
    };
    for (int c = 2; c <= 10; c += 2) {
        h.push_back({2, c, 1, eng ? "  max." : "  maks."});
        h.push_back({2, c + 1, 1, "  min."});
    }
    return h;
}

} // namespace

ResultGrid result_grid(const Model& m)
{
    ResultGrid grid{heads(m.language == "Eng"), {}};
    const std::vector<DetailPoint> points = coarse_points(m);
    for (std::size_t k = 0; k < points.size(); ++k) {
        const DetailPoint& p = points[k];
        const int i = p.span, j = p.fine;
        const bool first = k == 0 || points[k - 1].span != i;
        const bool last = k + 1 == points.size() || points[k + 1].span != i;
        GridRow& row = grid.rows.emplace_back();
        row.node = first || last;
        row.cells[0] = first ? format_number(m, i, "##") : std::string();
        row.cells[1] = format_number(m, p.x, "##0.000");
        row.cells[2] = format_number(m, m.V_max(i, j), "##0.0");
        row.cells[3] = format_number(m, m.V_min(i, j), "##0.0");
        row.cells[4] = format_number(m, m.M_max(i, j), "##0.0");
        row.cells[5] = format_number(m, m.M_min(i, j), "##0.0");
        row.cells[10] = format_number(m, m.W_max(i, j), "#0.0");
        row.cells[11] = format_number(m, m.W_min(i, j), "#0.0");
        // A node inside the beam ends one span and starts the next: its
        // reaction stands once, at the end of the span before it.
        const int node = first && i == 1 ? 1 : last ? i + 1 : 0;
        if (node != 0 && bearing_kind(m, node) != kFree) {
            const int r = reaction_index(m, node);
            row.cells[6] = format_number(m, m.R_max(r), "##0.0");
            row.cells[7] = format_number(m, m.R_min(r), "##0.0");
            row.cells[8] = format_number(m, m.MR_max(r), "##0.0");
            row.cells[9] = format_number(m, m.MR_min(r), "##0.0");
        }
    }
    return grid;
}

std::vector<Caption> result_grid_captions(const std::string& language)
{
    const bool eng = language == "Eng";
    return {
        {kResultGridForm, eng ? "Results along the beam" : "Resultater langs bjelken"},
        {"grid_heading",
         eng ? "Max. and Min. forces and deformations" : "Maks. og Min. krefter og deformasjoner"},
    };
}

} // namespace kvelder
