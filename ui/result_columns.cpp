#include "ui/result_columns.h"

#include "design/section_checks.h"
#include "ui/number_format.h"

namespace kvelder {
namespace {

ResultCell usage_cell(float uf, const char* pattern)
{
    return {format_number(uf, pattern), uf > 1, true, Shade::LightYellow};
}

} // namespace

std::array<SpanColumn, kMaxSpans> span_columns(const Model& m)
{
    std::array<SpanColumn, kMaxSpans> columns{};
    for (int k = 0; k < kMaxSpans; ++k) {
        SpanColumn& c = columns[static_cast<std::size_t>(k)];
        const bool exists = k < m.nf;
        const Shade shade = exists ? Shade::LightYellow : Shade::ButtonFace;
        for (ResultCell* cell : {&c.span, &c.x_moment, &c.moment, &c.x_shear, &c.shear, &c.buckling}) {
            cell->background = shade;
        }
        c.moment.bold = c.shear.bold = c.buckling.bold = true;
        if (!exists) {
            continue;
        }
        const int i = k + 1;
        c.span.text = format_number(i, "0");
        if (m.Wyy >= 0.000001F) {
            c.x_moment.text = format_number(m.x_mom(i), "0.0 ");
            c.moment = usage_cell(m.Uf_mom(i), "0.00 ");
        }
        if (m.Azz >= 0.000001F) {
            c.x_shear.text = format_number(m.xt_gov(i), "0.0 ");
            c.shear = usage_cell(m.Uf_tau(i), "0.00 ");
        }
        if (m.vipping_off == 0) {
            c.buckling = usage_cell(m.Uf_ltb(i), "0.00 ");
        }
    }
    if (m.vipping_off != 0) {
        for (SpanColumn& c : columns) {
            c.buckling.background = Shade::ButtonFace;
        }
    }
    return columns;
}

std::array<BearingRow, kMaxNodes> bearing_rows(const Model& m)
{
    std::array<BearingRow, kMaxNodes> rows{};
    if (m.section_form != "Firk") {
        for (BearingRow& r : rows) {
            r.node.background = r.kc90.background = r.usage.background = Shade::WindowBackground;
        }
        return rows;
    }
    const bool eng = m.language == "Eng";
    for (int i = 1; i <= m.nnodes; ++i) {
        BearingRow& r = rows[static_cast<std::size_t>(i - 1)];
        r.node.text = format_number(i, "0");
        switch (bearing_kind(m, i)) {
        case kBuiltIn:
            r.usage.text = eng ? "Fixed" : "Innspent";
            break;
        case kFree:
            r.usage.text = eng ? "Free" : "Fri";
            break;
        default:
            r.kc90 = {format_number(m.bearing_kc90(i), "0.00"), false, false, Shade::LightYellow};
            r.usage = usage_cell(m.Uf_c90(i), "0.00");
            break;
        }
    }
    return rows;
}

FactorLabels factor_labels(const Model& m)
{
    const auto psi = [](float psi0, float psi2) {
        return "psi0 = " + format_number(psi0, "0.0") + "   psi2 = " + format_number(psi2, "0.0");
    };
    return {format_number(m.gamma_M, "0.00 "), format_number(m.kcr, "0.00 "), format_number(m.kmod, "0.00 "),
            format_number(m.kdef, "0.00 "),    format_number(m.ksys, "0.00"), format_number(m.kh, "0.00"),
            std::to_string(m.service_class),   psi(m.psi0_1, m.psi2_1),       psi(m.psi0_2, m.psi2_2),
            format_number(m.fmd, "0.0"),       format_number(m.fvd, "0.0"),   format_number(m.fc90d, "0.0"),
            format_number(m.fmk, "0.0"),       format_number(m.fvk, "0.0"),   format_number(m.fc90k, "0.0")};
}

} // namespace kvelder
