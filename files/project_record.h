#pragma once

#include "model/catalogues.h"

#include <array>
#include <cstdint>
#include <string>

namespace kvelder {

// The slots of a record table: slot i holds row i of the model, slot 0 and
// the slots above the row count stay 0.
using Slots = std::array<float, 11>;

// One load group as the project record keeps it. G and Q1 keep their span
// numbers as whole numbers in floats; Q2 keeps them as 16-bit integers and has
// fewer uniform and moment slots (see the layout).
struct LoadRecord {
    Slots uni_span{}, uni_q{};
    std::int16_t uni_n = 0;
    Slots trap_span{}, trap_q1{}, trap_q2{}, trap_a{}, trap_b{};
    std::int16_t trap_n = 0;
    Slots pt_span{}, pt_P{}, pt_a{};
    std::int16_t pt_n = 0;
    Slots mom_span{}, mom_M{}, mom_a{};
    std::int16_t mom_n = 0;

    friend bool operator==(const LoadRecord&, const LoadRecord&) = default;
};

// Block 6 of a project file: the beam, its loads and the design options.
// Texts are UTF-8 here; the file holds them in Windows-1252.
struct ProjectRecord {
    std::string prosjekt_s, id_s;
    std::int16_t nf = 0;
    Slots ffl_s{};
    std::string nsupLeft_s, nsupRight_s;
    std::int16_t loadcomb_option = 0;
    std::string comb_rule;
    std::int16_t profile_weight_on = 0;
    float creep_G = 0, gamma_G_a = 0, gamma_G_b = 0;
    float creep_Q1 = 0, gamma_Q1_a = 0, gamma_Q1_b = 0;
    float creep_Q2 = 0, gamma_Q2_a = 0, gamma_Q2_b = 0;
    LoadRecord G, Q1, Q2;
    std::string material_family;
    std::int16_t standard_section = 0;
    float section_b = 0, section_h = 0, section_d = 0;
    std::int16_t duration_class = 0, service_class = 0;
    float ksys = 0;
    std::string section_form;
    Slots bearing_length{}, bearing_kc90{}, l_stag{}, lef_factor{};
    float load_location = 0;
    std::int16_t vipping_off = 0;

    friend bool operator==(const ProjectRecord&, const ProjectRecord&) = default;
};

// A whole project file: the six blocks in file order.
struct ProjectFile {
    FileDatabase setup;               // block 1
    MaterialTable materials;          // block 2, its last row from block 3
    std::int16_t material_row = 0;    // block 3
    std::int16_t prof_type_index = 0; // block 4
    std::int16_t prof_index = 0;      //
    ProfileTable profiles;            // block 5, its last row from block 4
    ProjectRecord record;             // block 6

    friend bool operator==(const ProjectFile&, const ProjectFile&) = default;
};

} // namespace kvelder
