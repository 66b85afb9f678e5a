#include "app/cli/result_text.h"

#include "design/section_checks.h"
#include "files/code_page.h"
#include "files/number_format.h"
#include "ui/result_columns.h"

#include <algorithm>
#include <cstdio>

namespace kvelder::cli {
namespace {

std::string column(const std::string& text, int width)
{
    return text.size() >= static_cast<std::size_t>(width)
               ? " " + text
               : std::string(static_cast<std::size_t>(width) - text.size(), ' ') + text;
}

std::string n(double value, const char* pattern, int width)
{
    return column(format_number(value, pattern), width);
}

// A usage factor as the window shows it; an overrun, red there, is starred here.
std::string usage(const ResultCell& cell, int width)
{
    if (cell.text.empty()) {
        return column("-", width);
    }
    return column(cell.text + (cell.red ? "*" : " "), width);
}

// The largest and smallest value of an envelope along span i.
template <typename Table>
std::pair<float, float> extremes(const Model& m, int i, const Table& max, const Table& min)
{
    float hi = max(i, 1);
    float lo = min(i, 1);
    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        hi = std::max(hi, max(i, j));
        lo = std::min(lo, min(i, j));
    }
    return {hi, lo};
}

} // namespace

std::string result_text(const Model& m)
{
    const FactorLabels f = factor_labels(m);
    const MaterialRow& material = m.material_table.rows.at(static_cast<std::size_t>(m.material_row));
    // The window's title without the project: the program and its annex.
    std::string out = m.title_suffix.substr(0, m.title_suffix.rfind(": ")) + "\n\n";

    out += "Spans (m):";
    for (int i = 1; i <= m.nf; ++i) {
        out += ' ';
        out += format_number(m.ffl_s(i), "0.000");
    }
    out += "   supports " + std::string(1, m.nsupLeft_s) + " ... " + std::string(1, m.nsupRight_s);
    out += "   " + std::string(m.comb_rule == "610a" ? "6.10a" : "6.10b");
    out += m.loadcomb_option == 2 ? "   load patterns: " : "   total variable load, cases: ";
    out += std::to_string(m.npatterns) + "\n";
    out += "Material " + as_utf8(material.name) + ":  fm,k " + f.fmk + "  fv,k " + f.fvk + "  fc,90,k " +
           f.fc90k + "  E0,mean " + format_number(m.E0_mean, "0") + " MPa\n";
    if (m.section_form == "Tube") {
        out += "Section: circle d = " + format_number(m.section_d, "0") + " mm";
    } else {
        out +=
            "Section: " + format_number(m.section_b, "0") + " x " + format_number(m.section_h, "0") + " mm";
    }
    out += "   I = " + format_number(m.I_mm4, "0.000E+00") +
           " mm4   W = " + format_number(m.Wyy, "0.000E+00") + " mm3\n";
    out += "gamma_M " + f.gamma_M + " kcr " + f.kcr + " kmod " + f.kmod + " kdef " + f.kdef + " ksys " +
           f.ksys + "  kh " + f.kh + "  service class " + f.service_class + "\n";
    out += "Q1: " + f.psi_Q1 + "    Q2: " + f.psi_Q2 + "\n";
    out += "Design strengths (MPa): fm,d " + f.fmd + "  fv,d " + f.fvd + "  fc,90,d " + f.fc90d + "\n\n";

    out +=
        "Span     M max    M min    V max    V min    w max    w min   Uf M   x (m)   Uf V   x (m)  Uf LTB\n";
    const auto columns = span_columns(m);
    for (int i = 1; i <= m.nf; ++i) {
        const auto [M_hi, M_lo] = extremes(m, i, m.M_max, m.M_min);
        const auto [V_hi, V_lo] = extremes(m, i, m.V_max, m.V_min);
        const auto [W_hi, W_lo] = extremes(m, i, m.W_max, m.W_min);
        const SpanColumn& c = columns[static_cast<std::size_t>(i - 1)];
        out += column(std::to_string(i), 4) + n(M_hi, "0.00", 10) + n(M_lo, "0.00", 9) + n(V_hi, "0.00", 9) +
               n(V_lo, "0.00", 9) + n(W_hi, "0.00", 9) + n(W_lo, "0.00", 9) + usage(c.moment, 7) +
               column(c.x_moment.text, 8) + usage(c.shear, 7) + column(c.x_shear.text, 8) +
               usage(c.buckling, 8) + "\n";
    }
    out += "\nNode    R max    R min   MR max   MR min   kc90   Uf c90\n";
    const auto rows = bearing_rows(m);
    for (int node = 1; node <= m.nnodes; ++node) {
        std::string line = column(std::to_string(node), 4);
        int k = 0;
        for (int s = 1; s <= m.nsup; ++s) {
            k = m.sup_node(s) == node ? s : k;
        }
        if (k > 0) {
            line += n(m.R_max(k), "0.00", 9) + n(m.R_min(k), "0.00", 9) + n(m.MR_max(k), "0.00", 9) +
                    n(m.MR_min(k), "0.00", 9);
        } else {
            line += column("-", 9) + column("-", 9) + column("-", 9) + column("-", 9);
        }
        const BearingRow& r = rows[static_cast<std::size_t>(node - 1)];
        line += column(r.kc90.text, 7) + (r.usage.bold ? usage(r.usage, 9) : column(r.usage.text, 9));
        out += line + "\n";
    }
    out +=
        "\n* usage factor above 1.00, an overrun. Moments in kNm (negative where the bottom is in tension),"
        " shear and reactions in kN, deflections in mm with creep.\n";
    return out;
}

} // namespace kvelder::cli
