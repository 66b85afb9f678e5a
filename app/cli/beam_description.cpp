#include "app/cli/beam_description.h"

#include "design/factors.h"
#include "design/section.h"
#include "files/setup_file.h"
#include "ui/change_beam.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

namespace kvelder::cli {
namespace {

using nlohmann::json;

[[noreturn]] void fail(const std::string& key, const std::string& what)
{
    throw DescriptionError("\"" + key + "\": " + what);
}

// The keys of a beam description: the model's own names.
// clang-format off
constexpr std::array<std::string_view, 37> kKeys = {
    "prosjekt_s", "id_s", "language", "annex", "setup_row", "nf", "ffl_s", "nsupLeft_s", "nsupRight_s", "loadcomb_option",
    "comb_rule", "profile_weight_on", "G", "Q1", "Q2", "material_row", "material", "prof_type_index",
    "prof_index", "section_form", "section_b", "section_h", "section_d", "duration_class", "service_class",
    "ksys", "safety_class", "psi0_1", "psi0_2", "psi2_1", "psi2_2", "vipping_off", "l_stag", "lef_factor",
    "load_location", "bearing_length", "bearing_kc90"};
// clang-format on

float number(const json& v, const std::string& key)
{
    if (!v.is_number()) {
        fail(key, "must be a number");
    }
    const double d = v.get<double>();
    if (!std::isfinite(d) || std::abs(d) > 3.0e38) {
        fail(key, "is outside the range of the program's numbers");
    }
    return static_cast<float>(d);
}

int integer(const json& v, const std::string& key, int low, int high)
{
    if (!v.is_number_integer()) {
        fail(key, "must be a whole number");
    }
    const auto i = v.get<long long>();
    if (i < low || i > high) {
        fail(key, "must lie between " + std::to_string(low) + " and " + std::to_string(high));
    }
    return static_cast<int>(i);
}

std::string text(const json& v, const std::string& key, std::initializer_list<const char*> allowed)
{
    if (!v.is_string()) {
        fail(key, "must be a text");
    }
    const std::string s = v.get<std::string>();
    std::string list;
    for (const char* a : allowed) {
        if (s == a) {
            return s;
        }
        list += std::string(list.empty() ? "" : ", ") + "\"" + a + "\"";
    }
    fail(key, "must be one of " + list);
}

bool boolean(const json& v, const std::string& key)
{
    if (!v.is_boolean()) {
        fail(key, "must be true or false");
    }
    return v.get<bool>();
}

// A list of exactly `count` numbers into a 1-based table.
template <typename T> void numbers_into(const json& v, const std::string& key, std::size_t count, T& table)
{
    if (!v.is_array()) {
        fail(key, "must be a list of numbers");
    }
    if (v.size() != count) {
        fail(key, "must have " + std::to_string(count) + " entries");
    }
    for (std::size_t k = 0; k < count; ++k) {
        table(static_cast<int>(k + 1)) = number(v[k], key);
    }
}

// The index of a psi value in its list: psi0 runs 0.2 .. 1.0, psi2 0.0 .. 1.0.
std::int16_t psi_index(const json& v, const std::string& key, int offset)
{
    const double psi = number(v, key);
    const double steps = psi * 10;
    const long index = std::lround(steps) - offset;
    if (std::abs(steps - std::round(steps)) > 1e-4 || index < 0 || index > 10 - offset) {
        fail(key, offset == 2 ? "must be one of 0.2, 0.3, ... 1.0" : "must be one of 0.0, 0.1, ... 1.0");
    }
    return static_cast<std::int16_t>(index);
}

// One group's load rows: uniform [span, q], trapezoid [span, q1, q2, a, b],
// point [span, P, a], moment [span, M, a].
void loads_into(const json& v, const std::string& key, LoadGroup& g)
{
    if (!v.is_object()) {
        fail(key, "must be an object of load tables");
    }
    g = LoadGroup{};
    for (const auto& [kind, rows] : v.items()) {
        const std::string where = key + "." + kind;
        int capacity = 0;
        std::size_t width = 0;
        if (kind == "uni") {
            capacity = LoadGroup::kUniRows, width = 2;
        } else if (kind == "trap") {
            capacity = LoadGroup::kTrapRows, width = 5;
        } else if (kind == "pt") {
            capacity = LoadGroup::kPointRows, width = 3;
        } else if (kind == "mom") {
            capacity = LoadGroup::kMomentRows, width = 3;
        } else {
            fail(where, "is no load table (uni, trap, pt or mom)");
        }
        if (!rows.is_array()) {
            fail(where, "must be a list of rows");
        }
        if (static_cast<int>(rows.size()) > capacity) {
            fail(where, "holds at most " + std::to_string(capacity) + " rows");
        }
        for (std::size_t r = 0; r < rows.size(); ++r) {
            const std::string row_key = where + "[" + std::to_string(r) + "]";
            if (!rows[r].is_array() || rows[r].size() != width) {
                fail(row_key, "must be a row of " + std::to_string(width) + " numbers");
            }
            const auto span = static_cast<std::int16_t>(integer(rows[r][0], row_key + "[0]", -32768, 32767));
            std::array<float, 4> x{};
            for (std::size_t c = 1; c < width; ++c) {
                x[c - 1] = number(rows[r][c], row_key);
            }
            const int k = static_cast<int>(r + 1);
            if (kind == "uni") {
                g.uni_n = static_cast<std::int16_t>(k), g.uni_span(k) = span, g.uni_q(k) = x[0];
            } else if (kind == "trap") {
                g.trap_n = static_cast<std::int16_t>(k), g.trap_span(k) = span;
                g.trap_q1(k) = x[0], g.trap_q2(k) = x[1], g.trap_a(k) = x[2], g.trap_b(k) = x[3];
            } else if (kind == "pt") {
                g.pt_n = static_cast<std::int16_t>(k), g.pt_span(k) = span, g.pt_P(k) = x[0],
                g.pt_a(k) = x[1];
            } else {
                g.mom_n = static_cast<std::int16_t>(k), g.mom_span(k) = span, g.mom_M(k) = x[0],
                g.mom_a(k) = x[1];
            }
        }
    }
}

// A row chosen by its index under `index_key` or by its name under `name_key`
// (the first row of that name); none when the description gives neither.
template <typename NameOf>
std::optional<std::int16_t> chosen_row(const json& d, const char* index_key, const char* name_key,
                                       int last_row, NameOf name_of, const std::string& unknown)
{
    if (d.contains(index_key) && d.contains(name_key)) {
        fail(name_key, std::string("and \"") + index_key + "\" both choose the row; give one of them");
    }
    if (d.contains(index_key)) {
        return static_cast<std::int16_t>(integer(d[index_key], index_key, 0, last_row));
    }
    if (!d.contains(name_key)) {
        return std::nullopt;
    }
    if (!d[name_key].is_string()) {
        fail(name_key, "must be a text");
    }
    const std::string name = d[name_key].get<std::string>();
    for (int r = 0; r <= last_row; ++r) {
        if (name_of(r) == name) {
            return static_cast<std::int16_t>(r);
        }
    }
    fail(name_key, unknown + " \"" + name + "\"");
}

void select_setup_row(Model& m, const json& d)
{
    const auto annex_of = [&m](int r) { return m.setup.setup_table[static_cast<std::size_t>(r)].annex; };
    if (const auto row = chosen_row(d, "setup_row", "annex", m.setup.setup_last_row, annex_of,
                                    "no row of the setup file has the code")) {
        m.setup.setup_row = *row;
    }
    if (d.contains("language")) {
        m.setup.setup_language = text(d["language"], "language", {"Eng", "Nor"});
    }
    ApplySetupRow(m);
    if (d.contains("safety_class")) {
        m.safety_class = static_cast<std::int16_t>(integer(d["safety_class"], "safety_class", 1, 3));
    }
    const std::array<std::pair<const char*, int>, 4> psis{
        {{"psi0_1", 2}, {"psi0_2", 2}, {"psi2_1", 0}, {"psi2_2", 0}}};
    const std::array<std::int16_t*, 4> indexes{&m.psi0_1_index, &m.psi0_2_index, &m.psi2_1_index,
                                               &m.psi2_2_index};
    const std::array<float*, 4> values{&m.psi0_1, &m.psi0_2, &m.psi2_1, &m.psi2_2};
    for (std::size_t k = 0; k < psis.size(); ++k) {
        if (d.contains(psis[k].first)) {
            *indexes[k] = psi_index(d[psis[k].first], psis[k].first, psis[k].second);
            *values[k] = f32((*indexes[k] + psis[k].second) * 0.1);
        }
    }
}

void set_geometry(Model& m, const json& d)
{
    if (d.contains("nf") && !d.contains("ffl_s")) {
        fail("nf", "needs \"ffl_s\" with its span lengths");
    }
    if (d.contains("ffl_s")) {
        const int nf = d.contains("nf") ? integer(d["nf"], "nf", 1, kMaxSpans)
                                        : (d["ffl_s"].is_array() ? static_cast<int>(d["ffl_s"].size()) : 0);
        if (nf < 1 || nf > kMaxSpans) {
            fail("ffl_s", "must be a list of 1 to 5 span lengths");
        }
        m.nf = static_cast<std::int16_t>(nf);
        m.ffl_s.fill(0);
        numbers_into(d["ffl_s"], "ffl_s", static_cast<std::size_t>(nf), m.ffl_s);
        ChangeBeam(m);
        m.lef_factor.fill(0.9F);
    }
    for (int k = 1; k <= kMaxSpans; ++k) {
        m.l_stag(k) = m.ffl_s(k);
    }
    const auto support = [&](const char* key) { return text(d[key], key, {"F", "R", "I"}).front(); };
    if (d.contains("nsupLeft_s")) {
        m.nsupLeft_s = support("nsupLeft_s");
    }
    if (d.contains("nsupRight_s")) {
        m.nsupRight_s = support("nsupRight_s");
    }
    m.support_kind(1) = m.nsupLeft_s;
    m.support_kind(m.nnodes) = m.nsupRight_s;
}

void set_material_and_section(Model& m, const json& d)
{
    const auto name_of = [&m](int r) { return m.material_table.rows[static_cast<std::size_t>(r)].name; };
    if (const auto row = chosen_row(d, "material_row", "material", m.material_table.last_row, name_of,
                                    "the material catalogue has no class")) {
        m.material_row = *row;
    }

    if (d.contains("prof_type_index")) {
        m.prof_type_index = static_cast<std::int16_t>(integer(d["prof_type_index"], "prof_type_index", 0, 3));
        m.material_family = family_code(m.prof_type_index);
        m.section_form = "Firk";
    }
    if (d.contains("prof_index")) {
        m.prof_index = static_cast<std::int16_t>(integer(d["prof_index"], "prof_index", 0, 400));
    }
    const bool free_rectangle = d.contains("section_b") || d.contains("section_h");
    if (!free_rectangle && (d.contains("prof_type_index") || d.contains("prof_index"))) {
        const int count = static_cast<int>(m.profile_families.of(m.prof_type_index).size());
        if (m.prof_index >= count) {
            fail(d.contains("prof_index") ? "prof_index" : "prof_type_index",
                 "the profile list of this family has " + std::to_string(count) + " rows");
        }
        Read_profile_dimensions(m, m.prof_type_index, m.prof_index);
        m.standard_section = kTrue;
    }
    if (free_rectangle) {
        m.standard_section = kFalse;
    }
    if (d.contains("section_b")) {
        m.section_b = number(d["section_b"], "section_b");
    }
    if (d.contains("section_h")) {
        m.section_h = number(d["section_h"], "section_h");
    }
    if (d.contains("section_d")) {
        m.section_d = number(d["section_d"], "section_d");
    }
    if (d.contains("section_form")) {
        m.section_form = text(d["section_form"], "section_form", {"Firk", "Tube"});
        if (m.section_form == "Tube" && m.prof_type_index >= 2) {
            fail("section_form", "a kerto or k_bjelke beam is rectangular");
        }
        if (m.section_form == "Tube") {
            m.standard_section = kFalse; // a circle is never a catalogue section
        }
    }
}

void set_classes_and_checks(Model& m, const json& d)
{
    if (d.contains("duration_class")) {
        m.duration_class = static_cast<std::int16_t>(integer(d["duration_class"], "duration_class", 1, 5));
    }
    if (d.contains("service_class")) {
        const int highest = m.prof_type_index >= 2 ? 2 : 3; // kerto and k_bjelke are not made for class 3
        m.service_class = static_cast<std::int16_t>(integer(d["service_class"], "service_class", 1, highest));
    }
    if (d.contains("ksys")) {
        m.ksys = number(d["ksys"], "ksys");
    }
    if (d.contains("vipping_off")) {
        m.vipping_off = flag_of(boolean(d["vipping_off"], "vipping_off"));
    }
    if (m.section_form == "Tube") {
        m.vipping_off = kTrue; // a circle has no lateral buckling check
    }
    if (d.contains("l_stag")) {
        numbers_into(d["l_stag"], "l_stag", static_cast<std::size_t>(m.nf), m.l_stag);
    }
    if (d.contains("lef_factor")) {
        numbers_into(d["lef_factor"], "lef_factor", static_cast<std::size_t>(m.nf), m.lef_factor);
    }
    if (d.contains("load_location")) {
        m.load_location = static_cast<std::int16_t>(integer(d["load_location"], "load_location", 0, 1));
    }
    if (d.contains("bearing_length")) {
        numbers_into(d["bearing_length"], "bearing_length", static_cast<std::size_t>(m.nnodes),
                     m.bearing_length);
    }
    if (d.contains("bearing_kc90")) {
        numbers_into(d["bearing_kc90"], "bearing_kc90", static_cast<std::size_t>(m.nnodes), m.bearing_kc90);
    }
}

void set_loads_and_modes(Model& m, const json& d)
{
    if (d.contains("G") || d.contains("Q1") || d.contains("Q2")) {
        for (const char* key : {"G", "Q1", "Q2"}) {
            LoadGroup& g = key[0] == 'G' ? m.G : key[1] == '1' ? m.Q1 : m.Q2;
            g = LoadGroup{};
            if (d.contains(key)) {
                loads_into(d[key], key, g);
            }
        }
    }
    if (d.contains("profile_weight_on")) {
        m.profile_weight_on = flag_of(boolean(d["profile_weight_on"], "profile_weight_on"));
    }
    if (d.contains("loadcomb_option")) {
        m.loadcomb_option = static_cast<std::int16_t>(integer(d["loadcomb_option"], "loadcomb_option", 1, 2));
    }
    if (d.contains("comb_rule")) {
        m.comb_rule = text(d["comb_rule"], "comb_rule", {"610a", "610b"});
    }
}

} // namespace

void apply_description(Model& m, const json& d)
{
    if (!d.is_object()) {
        throw DescriptionError("the beam description must be a JSON object");
    }
    for (const auto& [key, value] : d.items()) {
        if (std::find(kKeys.begin(), kKeys.end(), key) == kKeys.end()) {
            fail(key, "is not a key of a beam description");
        }
    }
    for (const char* key : {"prosjekt_s", "id_s"}) {
        if (d.contains(key)) {
            if (!d[key].is_string()) {
                fail(key, "must be a text");
            }
            (key[0] == 'p' ? m.prosjekt_s : m.id_s) = d[key].get<std::string>();
        }
    }
    select_setup_row(m, d);
    set_geometry(m, d);
    set_material_and_section(m, d);
    set_classes_and_checks(m, d);
    set_loads_and_modes(m, d);
}

} // namespace kvelder::cli
