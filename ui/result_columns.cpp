#include "ui/result_columns.h"

#include "design/section_checks.h"
#include "files/number_format.h"

#include <array>

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

namespace {

std::string duration_words(const std::string& language, int duration_class)
{
    static constexpr std::array<std::array<const char*, 2>, 5> words{{
        {"Permanent action", "Permanent last"},
        {"Long term action", "Langtid last"},
        {"Medium term action", "Halv\u00e5rs last"},
        {"Short term action", "Kort tids last"},
        {"Instantaneous action", "\u00d8yeblikks last"},
    }};
    if (duration_class < 1 || duration_class > 5) {
        return {};
    }
    return words[static_cast<std::size_t>(duration_class - 1)][language == "Eng" ? 0 : 1];
}

} // namespace

FactorLabels factor_labels(const Model& m)
{
    const auto psi = [](float psi0, float psi2) {
        return "psi0 = " + format_number(psi0, "0.0") + "   psi2 = " + format_number(psi2, "0.0");
    };
    const bool norway = m.annex == "Nor";
    const bool sweden = m.annex == "Swe";
    std::optional<std::string> safety_frame;
    std::string safety_class;
    if (m.annex == "Euc") {
        safety_frame = "";
    } else if (norway) {
        safety_frame = m.language == "Nor" ? "P\u00e5lit. klasse" : "Rel. class";
        safety_class = m.safety_class == 1 ? "1" : "2 - 4";
    } else if (sweden) {
        safety_frame = "Safety class";
        safety_class = std::to_string(m.safety_class);
    }
    FactorLabels labels;
    labels.gamma_M = format_number(m.gamma_M, "0.00 ");
    labels.kcr = format_number(m.kcr, "0.00 ");
    labels.kmod = format_number(m.kmod, "0.00 ");
    labels.kdef = format_number(m.kdef, "0.00 ");
    labels.ksys = format_number(m.ksys, "0.00");
    labels.kh = format_number(m.kh, "0.00");
    labels.service_class = std::to_string(m.service_class);
    labels.psi_Q1 = psi(m.psi0_1, m.psi2_1);
    labels.psi_Q2 = psi(m.psi0_2, m.psi2_2);
    labels.fmd = format_number(m.fmd, "0.0");
    labels.fvd = format_number(m.fvd, "0.0");
    labels.fc90d = format_number(m.fc90d, "0.0");
    labels.fmk = format_number(m.fmk, "0.0");
    labels.fvk = format_number(m.fvk, "0.0");
    labels.fc90k = format_number(m.fc90k, "0.0");
    labels.duration = duration_words(m.language, m.duration_class);
    labels.safety_frame = safety_frame;
    labels.safety_class = safety_class;
    labels.kfi = (sweden ? "Sk = " : "Kfi = ") + format_number(m.kfi, "0.00");
    return labels;
}

} // namespace kvelder
