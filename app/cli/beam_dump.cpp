#include "app/cli/beam_dump.h"

#include "app/cli/beam_description.h"
#include "app/cli/result_json.h"
#include "design/factors.h"
#include "model/load_rows.h"

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
    for (LoadTable table : kLoadTables) {
        ordered_json list = ordered_json::array();
        for (int k = 1; k <= row_count(g, table); ++k) {
            const LoadRow r = row(g, table, k);
            ordered_json fields = ordered_json::array({r.span});
            for (int v = 0; v < value_count(table); ++v) {
                fields.push_back(single(r.values[static_cast<std::size_t>(v)]));
            }
            list.push_back(fields);
        }
        if (!list.empty()) {
            rows[kLoadTableKeys[static_cast<std::size_t>(table)]] = list;
        }
    }
    return rows;
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
    d["psi0_1"] = single(psi0_of(m.psi0_1_index));
    d["psi0_2"] = single(psi0_of(m.psi0_2_index));
    d["psi2_1"] = single(psi2_of(m.psi2_1_index));
    d["psi2_2"] = single(psi2_of(m.psi2_2_index));
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
