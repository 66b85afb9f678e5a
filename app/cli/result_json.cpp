#include "app/cli/result_json.h"

#include "design/section_checks.h"
#include "files/code_page.h"

#include <charconv>
#include <cmath>
#include <string>

namespace kvelder::cli {

using nlohmann::ordered_json;

ordered_json single(float value)
{
    if (!std::isfinite(value)) {
        return nullptr;
    }
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    // The double nearest to the shortest text prints as that text again. Read
    // back by from_chars, which, unlike stod, ignores the locale Qt has set.
    double nearest = 0;
    std::from_chars(buffer, end, nearest);
    return nearest;
}

ordered_json messages_json(const std::vector<Message>& messages)
{
    ordered_json list = ordered_json::array();
    for (const Message& msg : messages) {
        list.push_back({{"code", msg.code == 0 ? ordered_json(nullptr) : ordered_json(msg.code)},
                        {"title", msg.title},
                        {"text", msg.text}});
    }
    return list;
}

namespace {

ordered_json factors(const Model& m)
{
    return {{"gamma_G_a", single(m.gamma_G_a)},
            {"gamma_G_b", single(m.gamma_G_b)},
            {"gamma_Q1_a", single(m.gamma_Q1_a)},
            {"gamma_Q1_b", single(m.gamma_Q1_b)},
            {"gamma_Q2_a", single(m.gamma_Q2_a)},
            {"gamma_Q2_b", single(m.gamma_Q2_b)},
            {"creep_G", single(m.creep_G)},
            {"creep_Q1", single(m.creep_Q1)},
            {"creep_Q2", single(m.creep_Q2)},
            {"kmod", single(m.kmod)},
            {"kdef", single(m.kdef)},
            {"kh", single(m.kh)},
            {"kcr", single(m.kcr)},
            {"gamma_M", single(m.gamma_M)},
            {"kfi", single(m.kfi)},
            {"ksys", single(m.ksys)},
            {"psi0_1", single(m.psi0_1)},
            {"psi0_2", single(m.psi0_2)},
            {"psi2_1", single(m.psi2_1)},
            {"psi2_2", single(m.psi2_2)}};
}

ordered_json spans(const Model& m)
{
    ordered_json list = ordered_json::array();
    for (int i = 1; i <= m.nf; ++i) {
        ordered_json points = ordered_json::array();
        // Point 2 is the right end: it comes last in the order of x.
        const auto add = [&](int j) {
            points.push_back({{"x", single(m.xl_s(i, j))},
                              {"V_max", single(m.V_max(i, j))},
                              {"V_min", single(m.V_min(i, j))},
                              {"M_max", single(m.M_max(i, j))},
                              {"M_min", single(m.M_min(i, j))},
                              {"W_max", single(m.W_max(i, j))},
                              {"W_min", single(m.W_min(i, j))}});
        };
        add(1);
        for (int j = 3; j <= m.nxtot_s(i); ++j) {
            add(j);
        }
        add(2);
        list.push_back({{"span", i}, {"L", single(m.ffl_s(i))}, {"points", points}});
    }
    return list;
}

ordered_json supports(const Model& m)
{
    ordered_json list = ordered_json::array();
    for (int k = 1; k <= m.nsup; ++k) {
        list.push_back({{"node", m.sup_node(k)},
                        {"R_max", single(m.R_max(k))},
                        {"R_min", single(m.R_min(k))},
                        {"MR_max", single(m.MR_max(k))},
                        {"MR_min", single(m.MR_min(k))}});
    }
    return list;
}

ordered_json checks(const Model& m)
{
    const bool buckling = m.vipping_off == 0;
    const auto ltb = [buckling](float v) { return buckling ? single(v) : ordered_json(nullptr); };
    ordered_json list = ordered_json::array();
    for (int i = 1; i <= m.nf; ++i) {
        list.push_back({{"span", i},
                        {"Uf_mom", single(m.Uf_mom(i))},
                        {"M_gov", single(m.M_gov(i))},
                        {"x_mom", single(m.x_mom(i))},
                        {"Uf_pos", single(m.Uf_pos(i))},
                        {"M_pos", single(m.M_pos(i))},
                        {"x_pos", single(m.x_pos(i))},
                        {"Uf_neg", single(m.Uf_neg(i))},
                        {"M_neg", single(m.M_neg(i))},
                        {"x_neg", single(m.x_neg(i))},
                        {"Uf_tau", single(m.Uf_tau(i))},
                        {"V_gov", single(m.V_gov(i))},
                        {"xt_gov", single(m.xt_gov(i))},
                        {"l_eff", ltb(m.l_eff(i))},
                        {"lambda_rel_m", ltb(m.lambda_rel_m(i))},
                        {"k_crit", ltb(m.k_crit(i))},
                        {"Uf_ltb", ltb(m.Uf_ltb(i))}});
    }
    return list;
}

ordered_json bearing(const Model& m)
{
    ordered_json list = ordered_json::array();
    for (int i = 1; i <= m.nnodes; ++i) {
        const char kind = bearing_kind(m, i);
        ordered_json row{{"node", i}, {"kind", std::string(1, kind)}};
        if (kind == kSimple && m.section_form == "Firk") {
            row["R"] = single(m.R_max(reaction_index(m, i)));
            row["sigma_c90"] = single(m.sigma_c90(i));
            row["Uf_c90"] = single(m.Uf_c90(i));
        }
        list.push_back(row);
    }
    return list;
}

ordered_json governing_value(const Model& m, const std::optional<GoverningValue>& v, bool uls)
{
    if (!v) {
        return nullptr;
    }
    const LoadState& s = v->state;
    std::string loads = "G";
    loads += s.Q1_spans.empty() ? "" : "+Q1";
    loads += s.Q2 ? "+Q2" : "";
    return {{"pattern", s.pattern},   {"loads", loads},
            {"Q1_spans", s.Q1_spans}, {"combination", uls ? expression_name(m.comb_rule) : "SLS"},
            {"x", single(v->x)},      {"value", single(v->value)}};
}

} // namespace

ordered_json governing_json(const Model& m, const GoverningStates& g)
{
    ordered_json spans = ordered_json::array();
    for (std::size_t i = 0; i < g.spans.size(); ++i) {
        const SpanGoverning& s = g.spans[i];
        spans.push_back({{"span", i + 1},
                         {"bending", governing_value(m, s.bending, true)},
                         {"shear", governing_value(m, s.shear, true)},
                         {"buckling", governing_value(m, s.buckling, true)},
                         {"deflection", governing_value(m, s.deflection, false)}});
    }
    ordered_json supports = ordered_json::array();
    for (std::size_t k = 0; k < g.supports.size(); ++k) {
        const SupportGoverning& s = g.supports[k];
        supports.push_back({{"node", m.sup_node(static_cast<int>(k) + 1)},
                            {"R_max", governing_value(m, s.R_max, true)},
                            {"R_min", governing_value(m, s.R_min, true)},
                            {"MR_max", governing_value(m, s.MR_max, true)},
                            {"MR_min", governing_value(m, s.MR_min, true)}});
    }
    return {{"spans", spans}, {"supports", supports}};
}

ordered_json result_json(const Model& m, const std::vector<Message>& messages)
{
    const MaterialRow& material = m.material_table.rows.at(static_cast<std::size_t>(m.material_row));
    return {{"messages", messages_json(messages)},
            {"npatterns", m.npatterns},
            {"factors", factors(m)},
            {"material",
             {{"name", as_utf8(material.name)},
              {"fmk", single(m.fmk)},
              {"fvk", single(m.fvk)},
              {"fc90k", single(m.fc90k)},
              {"E0_mean", single(m.E0_mean)},
              {"E0_05", single(m.E0_05)},
              {"density", single(m.density)}}},
            {"section",
             {{"section_form", m.section_form},
              {"b", single(m.section_b)},
              {"h", single(m.section_h)},
              {"d", single(m.section_d)},
              {"I_mm4", single(m.I_mm4)},
              {"Wyy", single(m.Wyy)},
              {"Axx", single(m.Axx)},
              {"Azz", single(m.Azz)},
              {"selfweight_q", single(m.selfweight_q(1))}}},
            {"strengths", {{"fmd", single(m.fmd)}, {"fvd", single(m.fvd)}, {"fc90d", single(m.fc90d)}}},
            {"spans", spans(m)},
            {"supports", supports(m)},
            {"checks", checks(m)},
            {"bearing", bearing(m)}};
}

} // namespace kvelder::cli
