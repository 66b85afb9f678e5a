#include "ui/annex_table.h"

#include "design/section_checks.h"
#include "files/code_page.h"
#include "files/number_format.h"

#include <algorithm>
#include <functional>

namespace kvelder {

AnnexTable annex_table(const std::vector<const Model*>& beams, const std::vector<bool>& calculated,
                       const std::string& language)
{
    const bool eng = language == "Eng";
    AnnexTable t;
    for (const Model* m : beams) {
        t.heads.push_back(m->annex_title.empty() ? "EC5" : "EC5 + " + as_utf8(m->annex_title));
    }
    const auto row = [&](std::string label, const std::function<std::string(const Model&)>& cell) {
        AnnexTable::Row r{std::move(label), {}};
        for (std::size_t k = 0; k < beams.size(); ++k) {
            r.cells.push_back(calculated[k] ? cell(*beams[k]) : "-");
        }
        t.rows.push_back(std::move(r));
    };
    const Model& first = *beams.front();
    const auto number = [&first](double v, const char* pattern = "0.00") {
        return format_number(first, v, pattern);
    };
    // The load factors of the expression in force, which differ by annex.
    const bool a = first.comb_rule == "610a";
    const std::string expression = std::string(" (") + expression_name(first.comb_rule) + ")";
    row("gamma_G" + expression, [&](const Model& m) { return number(a ? m.gamma_G_a : m.gamma_G_b); });
    row("gamma_Q1" + expression, [&](const Model& m) { return number(a ? m.gamma_Q1_a : m.gamma_Q1_b); });
    row("gamma_Q2" + expression, [&](const Model& m) { return number(a ? m.gamma_Q2_a : m.gamma_Q2_b); });
    row("gamma_M", [&](const Model& m) { return number(m.gamma_M); });
    row("kmod", [&](const Model& m) { return number(m.kmod); });
    row("kcr", [&](const Model& m) { return number(m.kcr); });
    row("fm,d (MPa)", [&](const Model& m) { return number(m.fmd, "0.0"); });
    row("fv,d (MPa)", [&](const Model& m) { return number(m.fvd, "0.0"); });
    row("fc,90,d (MPa)", [&](const Model& m) { return number(m.fc90d, "0.0"); });
    for (int i = 1; i <= first.nf; ++i) {
        const std::string span = (eng ? "Span " : "Felt ") + std::to_string(i) + ": ";
        row(span + (eng ? "Uf bending" : "Uf b\u00f8yning"),
            [&, i](const Model& m) { return number(m.Uf_mom(i)); });
        row(span + (eng ? "Uf shear" : "Uf skj\u00e6r"),
            [&, i](const Model& m) { return number(m.Uf_tau(i)); });
        if (buckling_checked(first)) {
            row(span + (eng ? "Uf buckling" : "Uf vipping"),
                [&, i](const Model& m) { return number(m.Uf_ltb(i)); });
        }
    }
    row(eng ? "Largest reaction (kN)" : "St\u00f8rste opplagerkraft (kN)", [&](const Model& m) {
        float largest = 0;
        for (int k = 1; k <= m.nsup; ++k) {
            largest = std::max(largest, m.R_max(k));
        }
        return number(largest, "0.0");
    });
    return t;
}

std::vector<Caption> annex_captions(const std::string& language)
{
    return pick_captions(language, {
                                       {kAnnexForm, "Annexes side by side", "Tilleggene side om side"},
                                       {"Cmd_ok", "OK", "OK"},
                                   });
}

} // namespace kvelder
