#pragma once

#include "model/catalogues.h"
#include "model/load_group.h"
#include "model/numbers.h"
#include "model/table.h"

#include <cstdint>
#include <string>

namespace kvelder {

// "6.10a" or "6.10b": the expression of EN 1990 that a comb_rule puts in
// force. "610a" takes the a-factors, anything else the b-factors.
inline const char* expression_name(const std::string& comb_rule)
{
    return comb_rule == "610a" ? "6.10a" : "6.10b";
}

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
    // --- Heading ---------------------------------------------------------------------
    std::string prosjekt_s; // project text
    std::string id_s;       // beam identification

    // --- Geometry and supports -------------------------------------------------
    std::int16_t nf = 1;           // number of spans, 1..5
    std::int16_t nf_previous = 1;  // span count of the last finished recalculation
    std::int16_t nf_at_change = 1; // span count the load dialogs were last fitted to
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
    std::string annex = "Nor";        // "Nor", "Swe", "Euc", "Uk ", "Fin" or "Den"
    std::string annex_s = "Nor";      // the same code; the crack-factor rule reads this copy
    std::string annex_title;          // shown after the program's name
    std::string title_suffix;         // window title before the project path
    std::int16_t decimal_comma = 0;   // non-zero where the machine writes 1,5

    // --- Catalogues and setup as read (a project carries its own copies) --------------
    MaterialTable material_table;
    ProfileTable profile_table;
    ProfileFamilies profile_families;
    FileDatabase setup;

    // --- Classes and choices of the design ------------------------------------------
    std::int16_t duration_class = 3;            // load-duration class 1..5
    std::int16_t service_class = 1;             // 1..3
    std::int16_t safety_class = 2;              // reliability class (Norway) or safety class (Sweden)
    std::string material_family = "lam_bjelke"; // 10 characters, blank-padded
    std::string section_form = "Firk";          // "Firk" rectangle or "Tube" circle
    std::int16_t material_row = 24;
    std::int16_t prof_type_index = 1; // 0 timber, 1 laminated, 2 kerto, 3 k_bjelke
    std::int16_t prof_index = 52;
    std::int16_t standard_section = kTrue;
    float ksys = 1.0F;
    std::int16_t kcr_exposed = kFalse;
    float gamma_timb = 0, gamma_lam = 0, gamma_kerto = 0, gamma_k_bjelke = 0;
    float kcr_timb = 0, kcr_lam = 0, kcr_kerto = 0, kcr_k_bjelke = 0;
    std::int16_t psi0_1_index = 0, psi0_2_index = 0, psi2_1_index = 0, psi2_2_index = 0;
    float psi0_1 = 0, psi0_2 = 0, psi2_1 = 0, psi2_2 = 0;

    // --- Active material (MPa, kg/m3) ----------------------------------------------------
    float fmk = 0, ft0k = 0, fc90k = 0, fvk = 0, E0_05 = 0, spare = 0, density = 0, s_exponent = 0;

    // --- Factors ---------------------------------------------------------------------------
    float gamma_M = 0, kcr = 0, kmod = 0, kdef = 0, kh = 0, kfi = 0;

    // --- Section (mm) and its properties ---------------------------------------------------
    float section_b = 0, section_h = 0, section_d = 400.0F;
    float Wyy = 0, Axx = 0, Azz = 0;   // mm3, mm2, mm2 (Azz already times kcr)
    float fmd = 0, fvd = 0, fc90d = 0; // design strengths, MPa
    std::int16_t calc_invalid = kFalse;

    // --- Lateral torsional buckling ---------------------------------------------------------
    std::int16_t vipping_off = kTrue; // true: compression side held, no check
    std::int16_t load_location = 0;   // 0 load on top of the beam, 1 at the bottom
    Table<float, kMaxSpans> l_stag;   // m between lateral braces
    Table<float, kMaxSpans> lef_factor;
    Table<float, kMaxSpans> l_eff, sigma_m_crit, lambda_rel_m, k_crit;
    Table<float, kMaxSpans> Uf_ltb, M_ltb, sigma_ltb;
    Table2<float, kMaxSpans, kMaxPoints> sigma_ltb_st, Uf_ltb_st;

    // --- Bending and shear checks per span ----------------------------------------------------
    Table<float, kMaxSpans> Uf_pos, Uf_neg, M_pos, M_neg, sigma_pos, sigma_neg, x_pos, x_neg;
    Table<float, kMaxSpans> Uf_mom, M_gov, x_mom;
    Table<float, kMaxSpans> Uf_tau_pos, Uf_tau_neg, V_pos, V_neg, tau_pos, tau_neg, xt_pos, xt_neg;
    Table<float, kMaxSpans> Uf_tau, tau_gov, V_gov, xt_gov;
    Table2<float, kMaxSpans, kMaxPoints> sigma_st, Uf_sigma_st, tau_st, Uf_tau_st;

    // --- Bearing at the nodes ---------------------------------------------------------------------
    Table<float, kMaxNodes> bearing_kc90;   // kc90 as the engineer gives it
    Table<float, kMaxNodes> bearing_length; // mm in the grain direction
    Table<float, kMaxNodes> sigma_c90, Uf_c90;

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
    Table2<double, kMaxSpans, kMaxPoints> W_fix; // EI x deflection, down positive
    Table2<double, kMaxSpans, kMaxPoints> W_nod; // m, up positive
    Table2<double, kMaxSpans, kMaxPoints> W_tot; // mm, up positive, row j for point j
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
