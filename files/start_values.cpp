#include "files/start_values.h"

#include "analysis/points.h"
#include "design/factors.h"
#include "design/section.h"
#include "files/setup_file.h"
#include "files/text_number.h"

#include <algorithm>

namespace kvelder {

void StartBeam(Model& m)
{
    m.nf = 2;
    m.nnodes = 3;
    m.nsup = 3;
    m.ffl_s.fill(0);
    m.ffl_s(1) = 5.0F;
    m.ffl_s(2) = 5.0F;
    m.nsupLeft_s = kSimple;
    m.nsupRight_s = kSimple;
    m.support_kind.fill(kSimple);
    m.comb_rule = "610a";
    m.loadcomb_option = 1;
}

void StartLoads(Model& m)
{
    m.G = LoadGroup{};
    m.Q1 = LoadGroup{};
    m.Q2 = LoadGroup{};
    for (int k = 1; k <= m.nf; ++k) {
        m.G.uni_span(k) = static_cast<std::int16_t>(k);
        m.G.uni_q(k) = 2.0F;
        m.Q1.uni_span(k) = static_cast<std::int16_t>(k);
        m.Q1.uni_q(k) = 4.0F;
    }
    m.G.uni_n = m.nf;
    m.Q1.uni_n = m.nf;
}

void StartSection(Model& m)
{
    m.duration_class = 3;
    m.service_class = 1;
    m.ksys = 1.0F;
    // A catalogue of fewer classes than the shipped one starts on its last class.
    m.material_row = static_cast<std::int16_t>(std::min<int>(24, m.material_table.last_row));
    m.material_family = kLaminated;
    m.prof_type_index = 1;
    m.prof_index = 52;
    if (!Read_profile_dimensions(m, 1, 52)) {
        m.prof_index =
            static_cast<std::int16_t>(middle_profile_row(static_cast<int>(m.profile_families.of(1).size())));
        Read_profile_dimensions(m, 1, m.prof_index);
    }
    m.standard_section = kTrue;
    m.section_form = "Firk";
    m.section_d = 400.0F;
    m.bearing_kc90.fill(1.0F);
    m.bearing_length.fill(90.0F);
    m.vipping_off = kTrue;
    m.lef_factor.fill(0.9F);
    m.load_location = 0;
    for (int k = 1; k <= kMaxSpans; ++k) {
        m.l_stag(k) = m.ffl_s(k);
    }
}

void NewProjectHeading(Model& m)
{
    const bool eng = m.setup.setup_language == "Eng";
    m.prosjekt_s = eng ? "Project 1" : "Prosjekt 1";
    m.id_s = eng ? "Beam 1" : "Bjelk 1";
}

void StartProject(Model& m)
{
    m.loading_flag = kTrue;
    StartBeam(m);
    StartLoads(m);
    StartSection(m);
    NewProjectHeading(m);
    m.nf_previous = m.nf;
    m.nf_at_change = m.nf;
    build_calculation_grids(m);
}

std::vector<DataFileNote> start_up(Model& m, const std::filesystem::path& data_folder)
{
    return start_up(m, data_folder, DecimalProbe());
}

std::vector<DataFileNote> start_up(Model& m, const std::filesystem::path& data_folder,
                                   std::int16_t decimal_comma)
{
    m.decimal_comma = decimal_comma;
    std::vector<DataFileNote> notes = ReadDataFiles(m, data_folder);
    ApplySetupRow(m);
    StartProject(m);
    return notes;
}

} // namespace kvelder
