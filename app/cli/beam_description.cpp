#include "app/cli/beam_description.h"

#include "files/code_page.h"
#include "model/load_rows.h"
#include "ui/edits.h"
#include "ui/load_checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace kvelder::cli {
namespace {

using nlohmann::json;

// Thrown and caught within this file only: the first key that cannot be used.
class DescriptionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

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

// One group's load rows, as typed into its dialog and confirmed: uniform
// [span, q], trapezoid [span, q1, q2, a, b], point [span, P, a], moment [span, M, a].
void loads_into(const json& v, const std::string& key, LoadGroup& g)
{
    if (!v.is_object()) {
        fail(key, "must be an object of load tables");
    }
    g = LoadGroup{};
    for (const auto& [kind, rows] : v.items()) {
        const std::string where = key + "." + kind;
        const auto named = std::find(kLoadTableKeys.begin(), kLoadTableKeys.end(), kind);
        if (named == kLoadTableKeys.end()) {
            fail(where, "is no load table (uni, trap, pt or mom)");
        }
        const auto table = static_cast<LoadTable>(named - kLoadTableKeys.begin());
        const auto width = static_cast<std::size_t>(value_count(table) + 1);
        if (!rows.is_array()) {
            fail(where, "must be a list of rows");
        }
        if (static_cast<int>(rows.size()) > capacity(table)) {
            fail(where, "holds at most " + std::to_string(capacity(table)) + " rows");
        }
        for (std::size_t r = 0; r < rows.size(); ++r) {
            const std::string row_key = where + "[" + std::to_string(r) + "]";
            if (!rows[r].is_array() || rows[r].size() != width) {
                fail(row_key, "must be a row of " + std::to_string(width) + " numbers");
            }
            LoadRow row;
            row.span = static_cast<std::int16_t>(integer(rows[r][0], row_key + "[0]", -32768, 32767));
            for (std::size_t c = 1; c < width; ++c) {
                row.values[c - 1] = number(rows[r][c], row_key);
            }
            set_row(g, table, static_cast<int>(r + 1), row);
        }
        set_row_count(g, table, static_cast<int>(rows.size()));
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

void choose_setup(Model& m, const json& d)
{
    const auto annex_of = [&m](int r) { return m.setup.setup_table[static_cast<std::size_t>(r)].annex; };
    if (const auto row = chosen_row(d, "setup_row", "annex", m.setup.setup_last_row, annex_of,
                                    "no row of the setup file has the code")) {
        choose_annex_row(m, *row);
    }
    if (d.contains("language")) {
        choose_language(m, text(d["language"], "language", {"Eng", "Nor"}));
    }
    if (d.contains("safety_class")) {
        choose_safety_class(m, integer(d["safety_class"], "safety_class", 1, 3));
    }
    constexpr std::array<std::pair<const char*, PsiList>, 4> psis{{{"psi0_1", PsiList::Psi0_Q1},
                                                                   {"psi0_2", PsiList::Psi0_Q2},
                                                                   {"psi2_1", PsiList::Psi2_Q1},
                                                                   {"psi2_2", PsiList::Psi2_Q2}}};
    for (const auto& [key, list] : psis) {
        if (d.contains(key)) {
            choose_psi(m, list, psi_index(d[key], key, psi_list_size(list) == 9 ? 2 : 0));
        }
    }
}

void choose_geometry(Model& m, const json& d, LoadDialogs& dialogs)
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
        Table<float, kMaxSpans> lengths;
        numbers_into(d["ffl_s"], "ffl_s", static_cast<std::size_t>(nf), lengths);
        choose_span_count(m, nf, dialogs);
        for (int i = 1; i <= nf; ++i) {
            set_span_length(m, i, lengths(i), dialogs);
        }
    }
    // Without "l_stag" the braces stand at the span ends, whatever the order of the keys.
    for (int k = 1; k <= kMaxSpans; ++k) {
        m.l_stag(k) = m.ffl_s(k);
    }
    for (const auto& [key, end] :
         {std::pair{"nsupLeft_s", BeamEnd::Left}, std::pair{"nsupRight_s", BeamEnd::Right}}) {
        if (d.contains(key)) {
            choose_support(m, end, text(d[key], key, {"F", "R", "I"}).front(), dialogs);
        }
    }
}

void choose_section(Model& m, const json& d)
{
    const auto name_of = [&m](int r) {
        return as_utf8(m.material_table.rows[static_cast<std::size_t>(r)].name);
    };
    if (const auto row = chosen_row(d, "material_row", "material", m.material_table.last_row, name_of,
                                    "the material catalogue has no class")) {
        choose_material(m, *row);
    }
    if (d.contains("prof_type_index")) {
        choose_family(m, integer(d["prof_type_index"], "prof_type_index", 0, 3));
    }
    const bool free_rectangle = d.contains("section_b") || d.contains("section_h");
    const bool circle =
        d.contains("section_form") && text(d["section_form"], "section_form", {"Firk", "Tube"}) == "Tube";
    if (d.contains("prof_index")) {
        const int count = static_cast<int>(m.profile_families.of(m.prof_type_index).size());
        const int index = integer(d["prof_index"], "prof_index", 0, 400);
        if (index >= count) {
            fail("prof_index", "the profile list of this family has " + std::to_string(count) + " rows");
        }
        choose_profile(m, index);
        if (!free_rectangle && !circle && section_option_enabled(m, SectionOption::Standard)) {
            choose_section_option(m, SectionOption::Standard);
        }
    }
    if (free_rectangle || (d.contains("section_form") && !circle && m.section_form == "Tube")) {
        choose_section_option(m, SectionOption::Rectangle);
    }
    if (circle) {
        if (!section_option_enabled(m, SectionOption::Circle)) {
            fail("section_form", "a kerto or k_bjelke beam is rectangular");
        }
        choose_section_option(m, SectionOption::Circle);
    }
    for (const auto& [key, box] : {std::pair{"section_b", Box::Width}, std::pair{"section_h", Box::Height},
                                   std::pair{"section_d", Box::Diameter}}) {
        if (d.contains(key)) {
            set_section_size(m, box, number(d[key], key));
        }
    }
}

void choose_classes_and_checks(Model& m, const json& d)
{
    if (d.contains("duration_class")) {
        choose_duration_class(m, integer(d["duration_class"], "duration_class", 1, 5));
    }
    if (d.contains("service_class")) {
        const int highest = service_class_enabled(m, 3) ? 3 : 2;
        choose_service_class(m, integer(d["service_class"], "service_class", 1, highest));
    }
    if (d.contains("ksys")) {
        set_ksys(m, number(d["ksys"], "ksys"));
    }
    if (d.contains("vipping_off") && buckling_check_enabled(m)) {
        set_buckling_check(m, !boolean(d["vipping_off"], "vipping_off"));
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
    for (const auto& [key, box] :
         {std::pair{"bearing_length", Box::BearingLength}, std::pair{"bearing_kc90", Box::Kc90}}) {
        if (d.contains(key)) {
            Table<float, kMaxNodes> values;
            numbers_into(d[key], key, static_cast<std::size_t>(m.nnodes), values);
            for (int node = 1; node <= m.nnodes; ++node) {
                set_bearing(m, node, box, values(node));
            }
        }
    }
}

void choose_loads_and_modes(Model& m, const json& d)
{
    if (d.contains("G") || d.contains("Q1") || d.contains("Q2")) {
        for (LoadGroupId id : kLoadGroups) {
            const char* key = group_name(id);
            group_of(m, id) = LoadGroup{};
            if (d.contains(key)) {
                loads_into(d[key], key, group_of(m, id));
            }
        }
    }
    if (d.contains("profile_weight_on")) {
        set_self_weight(m, boolean(d["profile_weight_on"], "profile_weight_on"));
    }
    if (d.contains("loadcomb_option")) {
        choose_load_combination(m, integer(d["loadcomb_option"], "loadcomb_option", 1, 2));
    }
    if (d.contains("comb_rule")) {
        choose_comb_rule(m, text(d["comb_rule"], "comb_rule", {"610a", "610b"}));
    }
}

// The description in the order an engineer would click through the window.
void apply(Model& m, const json& d)
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
    LoadDialogs dialogs = load_dialogs(m);
    choose_setup(m, d);
    choose_geometry(m, d, dialogs);
    choose_section(m, d);
    choose_classes_and_checks(m, d);
    choose_loads_and_modes(m, d);
}

} // namespace

std::optional<std::string> apply_description(Model& m, const json& description)
{
    auto work = std::make_unique<Model>(m);
    try {
        apply(*work, description);
    } catch (const DescriptionError& e) {
        return e.what();
    }
    m = *work;
    return std::nullopt;
}

} // namespace kvelder::cli
