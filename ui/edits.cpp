#include "ui/edits.h"

#include "analysis/points.h"
#include "design/factors.h"
#include "design/section.h"
#include "files/setup_file.h"
#include "files/text_number.h"
#include "ui/change_beam.h"
#include "ui/load_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kvelder {
namespace {

constexpr int kKerto = 2;

// Lateral bracing at the span ends and the factor of a simply supported span:
// what the buckling data start from after the spans, an end support or the
// section changed.
void reset_buckling_data(Model& m)
{
    for (int i = 1; i <= m.nf; ++i) {
        m.l_stag(i) = m.ffl_s(i);
        m.lef_factor(i) = 0.9F;
    }
}

// A reset gives each span its length as the distance between braces; a span
// that had no length yet gets it when its length comes, or when the check is
// switched on. Braces the engineer set are kept.
void brace_span_without_length(Model& m, int span)
{
    if (!(m.l_stag(span) > 0.3F)) {
        m.l_stag(span) = m.ffl_s(span);
    }
}

bool rectangles_only(const Model& m)
{
    return m.prof_type_index >= kKerto;
}

int family_size(const Model& m)
{
    return static_cast<int>(m.profile_families.of(m.prof_type_index).size());
}

LoadDialogTexts& dialog_of(LoadDialogs& dialogs, LoadGroupId id)
{
    return dialogs[static_cast<std::size_t>(id)];
}

// A point row standing on the support at one end, or a moment row on a
// built-in end, loses its span number.
void drop_rows_on_support(const Model& m, LoadDialogTexts& dialog, BeamEnd end, char kind)
{
    const int span = end == BeamEnd::Left ? 1 : m.nf;
    const float L = m.ffl_s(span);
    const auto on_support = [&](const RowTexts& row) {
        const float position = TextToNumber(row[2], m.decimal_comma).value.value_or(0);
        return end == BeamEnd::Left ? position <= 0.01F : position > L - 0.01F;
    };
    const auto on_span = [&](const RowTexts& row) {
        return !row[0].empty() && TextToInt16(row[0], m.decimal_comma).value == span;
    };
    for (const LoadTable table : {LoadTable::Point, LoadTable::Moment}) {
        const bool held = table == LoadTable::Moment ? kind == kBuiltIn : kind == kBuiltIn || kind == kSimple;
        for (RowTexts& row : dialog.frames[static_cast<std::size_t>(table)]) {
            if (held && on_span(row) && on_support(row)) {
                row[0].clear();
            }
        }
    }
}

} // namespace

void choose_family(Model& m, int family)
{
    if (family < 0 || family > 3) {
        return; // no family of the list
    }
    m.prof_type_index = static_cast<std::int16_t>(family);
    m.material_family = family_code(family);
    m.section_form = "Firk";
    if (rectangles_only(m)) {
        m.standard_section = kFalse;
        if (m.service_class == 3) {
            m.service_class = 2;
        }
    }
    if (family_size(m) <= m.prof_index) {
        m.prof_index = static_cast<std::int16_t>(middle_profile_row(family_size(m)));
    }
    Read_profile_dimensions(m, m.prof_type_index, m.prof_index);
}

void choose_profile(Model& m, int index)
{
    if (index < 0 || index >= family_size(m)) {
        return; // no row of the list
    }
    m.prof_index = static_cast<std::int16_t>(index);
    Read_profile_dimensions(m, m.prof_type_index, m.prof_index);
}

void choose_material(Model& m, int row)
{
    if (row < 0 || row > std::min<int>(m.material_table.last_row, MaterialTable::kRows - 1)) {
        return; // no row of the catalogue
    }
    m.material_row = static_cast<std::int16_t>(row);
}

bool section_option_enabled(const Model& m, SectionOption option)
{
    return option == SectionOption::Rectangle || !rectangles_only(m);
}

void choose_section_option(Model& m, SectionOption option)
{
    switch (option) {
    case SectionOption::Standard:
        m.standard_section = kTrue;
        m.section_form = "Firk";
        Read_profile_dimensions(m, m.prof_type_index, m.prof_index);
        break;
    case SectionOption::Rectangle:
        m.standard_section = kFalse;
        m.section_form = "Firk";
        break;
    case SectionOption::Circle:
        m.section_form = "Tube";
        m.vipping_off = kTrue;
        m.standard_section = kFalse;
        reset_buckling_data(m);
        break;
    }
}

std::optional<Message> set_section_size(Model& m, Box box, float value)
{
    (box == Box::Width ? m.section_b : box == Box::Height ? m.section_h : m.section_d) = value;
    return check_box(m, box, value);
}

std::optional<Message> set_bearing(Model& m, int node, Box box, float value)
{
    if (node < 1 || node > m.nnodes) {
        return std::nullopt; // no support of the beam
    }
    (box == Box::Kc90 ? m.bearing_kc90 : m.bearing_length)(node) = value;
    return check_box(m, box, value);
}

std::optional<SpanFailure> choose_span_count(Model& m, int nf, LoadDialogs& dialogs)
{
    if (nf < 1 || nf > kMaxSpans) {
        return std::nullopt; // no option of the window
    }
    m.nf = static_cast<std::int16_t>(nf);
    for (int i = nf + 1; i <= kMaxSpans; ++i) {
        m.ffl_s(i) = 0; // its box is hidden and empty
    }
    ChangeBeam(m, dialogs);
    if (nf == 1) {
        m.loadcomb_option = 1; // one span has no patterns
    }
    reset_buckling_data(m);
    return check_spans(m);
}

std::optional<SpanFailure> set_span_length(Model& m, int span, float length, LoadDialogs& dialogs)
{
    if (span < 1 || span > m.nf) {
        return std::nullopt; // no span box on show
    }
    m.ffl_s(span) = length;
    if (auto failure = check_spans(m)) {
        return failure;
    }
    brace_span_without_length(m, span);
    ClipLoadsToSpans(m, dialog_of(dialogs, LoadGroupId::G));
    ClipLoadsToSpans(m, dialog_of(dialogs, LoadGroupId::Q1));
    read_all_rows(m, dialogs);
    return std::nullopt;
}

std::optional<Message> choose_support(Model& m, BeamEnd end, char kind, LoadDialogs& dialogs)
{
    if (kind != kFree && kind != kSimple && kind != kBuiltIn) {
        return std::nullopt;
    }
    (end == BeamEnd::Left ? m.nsupLeft_s : m.nsupRight_s) = kind;
    std::optional<Message> message = check_supports(m);
    reset_buckling_data(m);
    for (LoadGroupId id : {LoadGroupId::G, LoadGroupId::Q1}) {
        drop_rows_on_support(m, dialog_of(dialogs, id), end, kind);
        CompactRows(dialog_of(dialogs, id));
    }
    read_all_rows(m, dialogs);
    return message;
}

void set_self_weight(Model& m, bool on)
{
    m.profile_weight_on = flag_of(on);
    build_calculation_grids(m);
}

void choose_load_combination(Model& m, int option)
{
    if (option != 1 && option != 2) {
        return;
    }
    m.loadcomb_option = static_cast<std::int16_t>(option);
}

void choose_comb_rule(Model& m, std::string_view rule)
{
    if (rule != "610a" && rule != "610b") {
        return;
    }
    m.comb_rule = rule;
}

bool buckling_check_enabled(const Model& m)
{
    return m.section_form != "Tube";
}

void set_buckling_check(Model& m, bool on)
{
    m.vipping_off = on ? kFalse : kTrue;
    if (on) {
        for (int i = 1; i <= m.nf; ++i) {
            brace_span_without_length(m, i);
        }
    }
}

std::optional<Message> set_l_stag(Model& m, int span, float l_stag)
{
    if (span < 1 || span > m.nf) {
        return std::nullopt; // no row of the dialog
    }
    if (auto failure = check_box(m, Box::LStag, l_stag, span)) {
        return failure;
    }
    m.l_stag(span) = l_stag;
    return std::nullopt;
}

std::optional<Message> set_lef_factor(Model& m, int span, float factor)
{
    if (span < 1 || span > m.nf) {
        return std::nullopt;
    }
    if (auto failure = check_box(m, Box::LefFactor, factor)) {
        return failure;
    }
    m.lef_factor(span) = factor;
    return std::nullopt;
}

void choose_load_location(Model& m, int location)
{
    if (location != 0 && location != 1) {
        return;
    }
    m.load_location = static_cast<std::int16_t>(location);
}

bool service_class_enabled(const Model& m, int service_class)
{
    return service_class != 3 || !rectangles_only(m);
}

void choose_service_class(Model& m, int service_class)
{
    if (service_class < 1 || service_class > 3 || !service_class_enabled(m, service_class)) {
        return;
    }
    m.service_class = static_cast<std::int16_t>(service_class);
}

void choose_duration_class(Model& m, int duration_class)
{
    if (duration_class < 1 || duration_class > 5) {
        return;
    }
    m.duration_class = static_cast<std::int16_t>(duration_class);
}

std::optional<Message> set_ksys(Model& m, float ksys)
{
    m.ksys = ksys;
    return check_box(m, Box::Ksys, ksys);
}

void choose_annex_row(Model& m, int row)
{
    if (row < 0 || row > m.setup.last_row()) {
        return;
    }
    m.setup.setup_row = static_cast<std::int16_t>(row);
    ApplySetupRow(m);
}

void choose_language(Model& m, std::string_view language)
{
    if (language != "Eng" && language != "Nor") {
        return;
    }
    m.language = language;
    m.setup.setup_language = language;
}

void choose_safety_class(Model& m, int safety_class)
{
    if (safety_class < 1 || safety_class > 3) {
        return;
    }
    m.safety_class = static_cast<std::int16_t>(safety_class);
    if (const std::optional<float> kfi = kfi_of(m.annex, safety_class)) {
        m.kfi = *kfi;
    }
}

int psi_list_size(PsiList list)
{
    return list == PsiList::Psi0_Q1 || list == PsiList::Psi0_Q2 ? 9 : 11;
}

void choose_psi(Model& m, PsiList list, int index)
{
    if (index < 0 || index >= psi_list_size(list)) {
        return; // no value of the list
    }
    const auto i = static_cast<std::int16_t>(index);
    switch (list) {
    case PsiList::Psi0_Q1:
        m.psi0_1_index = i, m.psi0_1 = psi0_of(i);
        break;
    case PsiList::Psi0_Q2:
        m.psi0_2_index = i, m.psi0_2 = psi0_of(i);
        break;
    case PsiList::Psi2_Q1:
        m.psi2_1_index = i, m.psi2_1 = psi2_of(i);
        break;
    case PsiList::Psi2_Q2:
        m.psi2_2_index = i, m.psi2_2 = psi2_of(i);
        break;
    }
}

} // namespace kvelder
