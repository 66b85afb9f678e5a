#pragma once

#include "model/load_group.h"
#include "model/numbers.h"
#include "model/table.h"

#include <cstdint>
#include <string>

namespace kvelder {

constexpr int kMaxSpans = 5;
constexpr int kMaxNodes = kMaxSpans + 1;
constexpr int kMaxPoints = 211;            // calculation points one span can hold
constexpr int kForceRows = 2 * kMaxPoints; // shear in row 2j - 1, moment in row 2j
constexpr int kBandStorage = 100;          // neq x nband; the largest beam needs 48

// Support kinds of a node.
constexpr char kFree = 'F';
constexpr char kSimple = 'R';
constexpr char kBuiltIn = 'I';

// The one beam: its input, the work tables of the analysis and its results.
// Every table is 1-based. Units along the beam are m, kN, kN/m and kNm; E in
// kN/m2 and I in m4 for the stiffness work; deflections in mm.
struct Model {
    // --- Geometry and supports -------------------------------------------------
    std::int16_t nf = 1;           // number of spans, 1..5
    std::int16_t nf_previous = 1;  // span count of the last finished recalculation
    std::int16_t nnodes = 2;       // nf + 1
    Table<float, kMaxSpans> ffl_s; // span lengths
    char nsupLeft_s = kSimple;
    char nsupRight_s = kSimple;
    Table<char, kMaxNodes> support_kind; // 'F', 'R' or 'I'; inner nodes always 'R'
    Table<std::int16_t, kMaxNodes> nodeA;
    Table<std::int16_t, kMaxNodes> nodeB;
    std::int16_t nsup = 0;                        // nodes that carry a support
    Table<std::int16_t, kMaxNodes> sup_node;      // those nodes, left to right
    std::int16_t nrestr = 0;                      // restrained freedoms
    Table2<std::int16_t, 2, 2 * kMaxNodes> restr; // (1, k) node, (2, k) freedom: 1 v, 2 rotation

    // --- Section and material as the analysis takes them -----------------------
    float E0_mean = 0; // N/mm2
    float I_mm4 = 0;   // mm4
    double E_kNm2 = 0; // E0_mean x 1000
    Table<double, kMaxSpans> I_span_m4;
    std::int16_t profile_weight_on = kFalse;
    Table<float, kMaxSpans> selfweight_q; // kN/m

    // --- Loads -------------------------------------------------------------------
    LoadGroup G;  // permanent
    LoadGroup Q1; // variable, patterned span by span
    LoadGroup Q2; // variable, never patterned
    LoadPointLists G_points;
    LoadPointLists Q1_points;
    LoadPointLists Q2_points;

    // --- Modes -------------------------------------------------------------------
    std::int16_t loadcomb_option = 1; // 1 total variable load, 2 patterned
    std::string comb_rule = "610b";   // "610a" or "610b"
    std::string language = "Eng";     // "Eng" or "Nor"
    std::string annex = "Nor";        // "Nor", "Swe" or "Euc"

    // --- Load factors ---------------------------------------------------------------
    float creep_G = 0, creep_Q1 = 0, creep_Q2 = 0;
    float gamma_G_a = 0, gamma_Q1_a = 0, gamma_Q2_a = 0;
    float gamma_G_b = 0, gamma_Q1_b = 0, gamma_Q2_b = 0;

    // --- Calculation grids: point 1 at x = 0, point 2 at x = L, interior from 3 --
    Table<std::int16_t, kMaxSpans> nxtot_s; // 50 subdivisions plus load points
    Table2<float, kMaxSpans, kMaxPoints> xl_s;
    Table<std::int16_t, kMaxSpans> nxtot10_s; // 10 subdivisions plus load points
    Table2<float, kMaxSpans, kMaxPoints> xl10_s;

    // --- Stiffness work ---------------------------------------------------------------
    std::int16_t neq = 0;
    std::int16_t nband = 0;
    Table<double, kBandStorage> K_band;
    Table<double, kBandStorage> K_orig;
    Table<double, kBandStorage> K_fact;
    Table<double, kBandStorage> F_load;
    Table<double, kBandStorage> D_disp;
    Table2<double, kMaxSpans, 10> k_member; // packed upper triangle of each member

    // --- Current load case -------------------------------------------------------------
    Table2<float, kMaxSpans, kForceRows> SF_fix; // both member ends held
    Table2<float, kMaxSpans, kForceRows> SF_end; // from the end displacements
    Table2<float, kMaxSpans, kForceRows> SF_tot;
    Table2<double, kMaxSpans, kForceRows> W_fix; // EI x deflection, down positive
    Table2<double, kMaxSpans, kForceRows> W_nod; // m, up positive
    Table2<double, kMaxSpans, kForceRows> W_tot; // mm, up positive, row j for point j
    Table<float, kMaxNodes> react_V;
    Table<float, kMaxNodes> react_M;

    // --- Current combination -------------------------------------------------------------
    Table2<float, kMaxSpans, kMaxPoints> C_V;
    Table2<float, kMaxSpans, kMaxPoints> C_M; // negative for sagging
    Table2<float, kMaxSpans, kMaxPoints> C_W; // with the deflection factors
    Table2<float, kMaxSpans, kMaxPoints> C_Winst;
    Table<float, kMaxNodes> C_R;
    Table<float, kMaxNodes> C_MR;

    // --- Envelopes over every state of the last run --------------------------------------
    Table2<float, kMaxSpans, kMaxPoints> V_max, V_min;
    Table2<float, kMaxSpans, kMaxPoints> M_max, M_min;
    Table2<float, kMaxSpans, kMaxPoints> W_max, W_min;
    Table<float, kMaxNodes> R_max, R_min;
    Table<float, kMaxNodes> MR_max, MR_min;
    std::int16_t npatterns = 0;

    // --- Flags ---------------------------------------------------------------------------
    std::int16_t err_spans = kFalse;
    std::int16_t err_supports = kFalse;
    std::int16_t err_loads = kFalse;
    std::int16_t err_section = kFalse;
    std::int16_t err_load_item = kFalse;
    std::int16_t G_empty = kFalse;
    std::int16_t Q1_empty = kFalse;
    std::int16_t Q2_empty = kFalse;
    std::int16_t loading_flag = kFalse;

    friend bool operator==(const Model&, const Model&) = default;
};

} // namespace kvelder
