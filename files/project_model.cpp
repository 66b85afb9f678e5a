#include "files/project_model.h"

#include "analysis/points.h"
#include "design/section.h"
#include "files/catalogue.h"
#include "files/number_format.h"
#include "files/setup_file.h"

#include <cmath>

namespace kvelder {
namespace {

// Rows 1..rows of a model table into their slots; span numbers become floats.
template <typename T, int N> void to_slots(const Table<T, N>& t, int rows, Slots& s)
{
    for (int k = 1; k <= rows; ++k) {
        s[static_cast<std::size_t>(k)] = static_cast<float>(t(k));
    }
}

// The count and the slots of one table of a record, span first.
struct RecordTable {
    std::int16_t& count;
    std::array<Slots*, 5> slots;
};

RecordTable table_of(LoadRecord& r, LoadTable table)
{
    switch (table) {
    case LoadTable::Uniform:
        return {r.uni_n, {&r.uni_span, &r.uni_q}};
    case LoadTable::Trapezoid:
        return {r.trap_n, {&r.trap_span, &r.trap_q1, &r.trap_q2, &r.trap_a, &r.trap_b}};
    case LoadTable::Point:
        return {r.pt_n, {&r.pt_span, &r.pt_P, &r.pt_a}};
    case LoadTable::Moment:
        break;
    }
    return {r.mom_n, {&r.mom_span, &r.mom_M, &r.mom_a}};
}

LoadRecord load_record(const LoadGroup& g)
{
    LoadRecord r;
    for (LoadTable table : kLoadTables) {
        const RecordTable t = table_of(r, table);
        const int n = row_count(g, table);
        t.count = static_cast<std::int16_t>(n);
        for (int k = 1; k <= n; ++k) {
            const LoadRow row_k = row(g, table, k);
            (*t.slots[0])[static_cast<std::size_t>(k)] = static_cast<float>(row_k.span);
            for (int v = 0; v < value_count(table); ++v) {
                (*t.slots[static_cast<std::size_t>(v + 1)])[static_cast<std::size_t>(k)] =
                    row_k.values[static_cast<std::size_t>(v)];
            }
        }
    }
    return r;
}

// A whole number kept in a float, rounded as the format has always rounded it:
// halves to the even neighbour.
std::int16_t span_number(float v)
{
    return static_cast<std::int16_t>(std::nearbyint(v));
}

float at(const Slots& s, int k)
{
    return s[static_cast<std::size_t>(k)];
}

// One group's rows into the model and its dialog. `moment_spans` false keeps
// the model's moment span numbers and gives the point rows theirs again.
void restore_group(const LoadRecord& record, LoadGroup& g, LoadDialogTexts& dialog, bool moment_spans,
                   bool decimal_comma)
{
    LoadRecord r = record;
    dialog = LoadDialogTexts{};
    for (LoadTable table : kLoadTables) {
        const RecordTable t = table_of(r, table);
        const auto f = static_cast<std::size_t>(table);
        set_row_count(g, table, t.count);
        for (int k = 1; k <= t.count; ++k) {
            LoadRow stored = row(g, table, k);
            RowTexts texts;
            const float span = at(*t.slots[0], k);
            texts[0] = format_number(span, "0");
            if (table != LoadTable::Moment || moment_spans) {
                stored.span = span_number(span);
            } else {
                g.pt_span(k) = span_number(at(r.pt_span, k));
            }
            for (int v = 0; v < value_count(table); ++v) {
                const auto slot = static_cast<std::size_t>(v + 1);
                stored.values[slot - 1] = at(*t.slots[slot], k);
                texts[slot] = format_number(stored.values[slot - 1], "0.00", decimal_comma);
            }
            set_row(g, table, k, stored);
            dialog.frames[f].push_back(texts);
        }
    }
}

} // namespace

void RecordFromModel(const Model& m, ProjectFile& file)
{
    file.setup = m.setup;
    StoreSetupRow(m, file.setup);
    file.materials = m.material_table;
    file.material_row = m.material_row;
    file.prof_type_index = m.prof_type_index;
    file.prof_index = m.prof_index;
    file.profiles = m.profile_table;

    ProjectRecord& p = file.record;
    p = ProjectRecord{};
    p.prosjekt_s = m.prosjekt_s;
    p.id_s = m.id_s;
    p.nf = m.nf;
    to_slots(m.ffl_s, m.nf, p.ffl_s);
    p.nsupLeft_s = std::string(1, m.nsupLeft_s);
    p.nsupRight_s = std::string(1, m.nsupRight_s);
    p.loadcomb_option = m.loadcomb_option;
    p.comb_rule = m.comb_rule;
    p.profile_weight_on = m.profile_weight_on;
    p.creep_G = m.creep_G, p.gamma_G_a = m.gamma_G_a, p.gamma_G_b = m.gamma_G_b;
    p.creep_Q1 = m.creep_Q1, p.gamma_Q1_a = m.gamma_Q1_a, p.gamma_Q1_b = m.gamma_Q1_b;
    p.creep_Q2 = m.creep_Q2, p.gamma_Q2_a = m.gamma_Q2_a, p.gamma_Q2_b = m.gamma_Q2_b;
    p.G = load_record(m.G);
    p.Q1 = load_record(m.Q1);
    p.Q2 = load_record(m.Q2);
}

void RecordFromSection(const Model& m, ProjectFile& file)
{
    ProjectRecord& p = file.record;
    p.material_family = m.material_family;
    p.standard_section = m.standard_section;
    p.section_b = m.section_b;
    p.section_h = m.section_h;
    p.section_d = m.section_d;
    p.duration_class = m.duration_class;
    p.service_class = m.service_class;
    p.ksys = m.ksys;
    p.section_form = m.section_form;
    to_slots(m.bearing_length, kMaxNodes, p.bearing_length);
    to_slots(m.bearing_kc90, kMaxNodes, p.bearing_kc90);
    if (m.vipping_off == 0) {
        to_slots(m.l_stag, m.nf, p.l_stag);
        to_slots(m.lef_factor, m.nf, p.lef_factor);
        p.load_location = static_cast<float>(m.load_location);
    }
    p.vipping_off = m.vipping_off;
}

void ModelFromRecord(Model& m, const ProjectFile& file, LoadDialogs& dialogs)
{
    const ProjectRecord& p = file.record;
    m.setup = file.setup;
    m.material_table = file.materials;
    m.material_row = file.material_row;
    m.prof_type_index = file.prof_type_index;
    m.prof_index = file.prof_index;
    m.profile_table = file.profiles;

    m.loading_flag = kTrue;
    ApplySetupRow(m);
    m.prosjekt_s = p.prosjekt_s;
    m.id_s = p.id_s;
    m.nf = p.nf;
    for (int k = 1; k <= kMaxSpans; ++k) {
        m.ffl_s(k) = at(p.ffl_s, k);
    }
    m.nsupLeft_s = p.nsupLeft_s.front();
    m.nsupRight_s = p.nsupRight_s.front();
    m.loadcomb_option = p.loadcomb_option;
    m.comb_rule = p.comb_rule;
    m.profile_weight_on = p.profile_weight_on;
    m.nnodes = static_cast<std::int16_t>(m.nf + 1);
    m.nsup = m.nnodes;

    m.support_kind.fill(kSimple);
    m.support_kind(1) = m.nsupLeft_s;
    m.support_kind(m.nnodes) = m.nsupRight_s;

    const bool comma = m.decimal_comma != 0;
    restore_group(p.G, m.G, dialogs[0], true, comma);
    restore_group(p.Q1, m.Q1, dialogs[1], false, comma);
    restore_group(p.Q2, m.Q2, dialogs[2], false, comma);

    m.creep_G = p.creep_G, m.gamma_G_a = p.gamma_G_a, m.gamma_G_b = p.gamma_G_b;
    m.creep_Q1 = p.creep_Q1, m.gamma_Q1_a = p.gamma_Q1_a, m.gamma_Q1_a = p.gamma_Q1_b;
    m.creep_Q2 = p.creep_Q2, m.gamma_Q2_a = p.gamma_Q2_a, m.gamma_Q2_a = p.gamma_Q2_b;

    const bool no_loads = m.G.empty() && m.Q1.empty() && m.Q2.empty();
    m.err_load_item = flag_of(no_loads && m.profile_weight_on != kTrue);
    build_calculation_grids(m);
}

void SectionFromRecord(Model& m, const ProjectFile& file)
{
    const ProjectRecord& p = file.record;
    m.loading_flag = kTrue;
    m.duration_class = p.duration_class;
    m.service_class = p.service_class;
    m.ksys = p.ksys;
    m.material_family = p.material_family;
    m.standard_section = p.standard_section;
    m.vipping_off = p.vipping_off;
    m.profile_families = SplitProfileFamilies(m.profile_table);
    m.section_b = p.section_b;
    m.section_h = p.section_h;
    m.section_d = p.section_d;
    if (is_true(m.standard_section)) {
        // Catalogue sections are rectangles, whatever form the beam before had.
        Read_profile_dimensions(m, m.prof_type_index, m.prof_index);
        m.section_form = "Firk";
    } else {
        m.section_form = p.section_form;
    }
    if (m.vipping_off == 0) {
        for (int k = 1; k <= m.nf; ++k) {
            m.lef_factor(k) = at(p.lef_factor, k);
            m.l_stag(k) = at(p.l_stag, k);
        }
        m.load_location = span_number(p.load_location);
    }
}

} // namespace kvelder
