#include "app/cli/beam_dump.h"

#include "app/cli/result_json.h"

#include <cmath>

namespace kvelder::cli {
namespace {

using nlohmann::ordered_json;

template <int N> ordered_json first(const Table<float, N>& t, int count)
{
    ordered_json list = ordered_json::array();
    for (int k = 1; k <= count; ++k) {
        list.push_back(single(t(k)));
    }
    return list;
}

ordered_json group(const LoadGroup& g)
{
    ordered_json rows = ordered_json::object();
    ordered_json uni = ordered_json::array(), trap = ordered_json::array(), pt = ordered_json::array(),
                 mom = ordered_json::array();
    for (int k = 1; k <= g.uni_n; ++k) {
        uni.push_back({g.uni_span(k), single(g.uni_q(k))});
    }
    for (int k = 1; k <= g.trap_n; ++k) {
        trap.push_back({g.trap_span(k), single(g.trap_q1(k)), single(g.trap_q2(k)), single(g.trap_a(k)),
                        single(g.trap_b(k))});
    }
    for (int k = 1; k <= g.pt_n; ++k) {
        pt.push_back({g.pt_span(k), single(g.pt_P(k)), single(g.pt_a(k))});
    }
    for (int k = 1; k <= g.mom_n; ++k) {
        mom.push_back({g.mom_span(k), single(g.mom_M(k)), single(g.mom_a(k))});
    }
    for (auto& [key, list] :
         {std::pair{"uni", &uni}, std::pair{"trap", &trap}, std::pair{"pt", &pt}, std::pair{"mom", &mom}}) {
        if (!list->empty()) {
            rows[key] = *list;
        }
    }
    return rows;
}

// A psi value as its list shows it, one decimal.
double psi(std::int16_t index, int offset)
{
    return (index + offset) / 10.0;
}

} // namespace

ordered_json describe_beam(const Model& m)
{
    ordered_json d;
    d["prosjekt_s"] = m.prosjekt_s;
    d["id_s"] = m.id_s;
    d["language"] = m.language;
    d["setup_row"] = m.setup.setup_row;
    d["safety_class"] = m.safety_class;
    d["psi0_1"] = psi(m.psi0_1_index, 2);
    d["psi0_2"] = psi(m.psi0_2_index, 2);
    d["psi2_1"] = psi(m.psi2_1_index, 0);
    d["psi2_2"] = psi(m.psi2_2_index, 0);
    d["nf"] = m.nf;
    d["ffl_s"] = first(m.ffl_s, m.nf);
    d["nsupLeft_s"] = std::string(1, m.nsupLeft_s);
    d["nsupRight_s"] = std::string(1, m.nsupRight_s);
    d["loadcomb_option"] = m.loadcomb_option;
    d["comb_rule"] = m.comb_rule;
    d["profile_weight_on"] = is_true(m.profile_weight_on);
    d["G"] = group(m.G);
    d["Q1"] = group(m.Q1);
    d["Q2"] = group(m.Q2);
    d["material_row"] = m.material_row;
    d["prof_type_index"] = m.prof_type_index;
    d["prof_index"] = m.prof_index;
    if (!is_true(m.standard_section)) {
        d["section_b"] = single(m.section_b);
        d["section_h"] = single(m.section_h);
    }
    d["section_form"] = m.section_form;
    d["section_d"] = single(m.section_d);
    d["duration_class"] = m.duration_class;
    d["service_class"] = m.service_class;
    d["ksys"] = single(m.ksys);
    d["vipping_off"] = is_true(m.vipping_off);
    if (m.vipping_off == 0) {
        d["l_stag"] = first(m.l_stag, m.nf);
        d["lef_factor"] = first(m.lef_factor, m.nf);
        d["load_location"] = m.load_location == 0 ? 0 : 1; // anything else is the bottom
    }
    d["bearing_length"] = first(m.bearing_length, m.nnodes);
    d["bearing_kc90"] = first(m.bearing_kc90, m.nnodes);
    return d;
}

} // namespace kvelder::cli
