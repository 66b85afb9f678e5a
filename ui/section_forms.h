#pragma once

#include "model/model.h"
#include "ui/box_texts.h"
#include "ui/captions.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The small forms around the section: its properties (frm_Kvelder_Prop), the
// lateral buckling input (frm_Kvelder_vipp_input) with its table of effective
// lengths (frm_Kvelder_vipp_le), and the about box (frmAbout).

inline constexpr const char* kPropertiesForm = "frm_Kvelder_Prop";
inline constexpr const char* kBucklingForm = "frm_Kvelder_vipp_input";
inline constexpr const char* kLefTableForm = "frm_Kvelder_vipp_le";
inline constexpr const char* kAboutForm = "frmAbout";

// The texts of each form in a language, "Eng" or Norwegian for any other; a
// caption naming the form is its title.
std::vector<Caption> properties_captions(const std::string& language);
std::vector<Caption> buckling_captions(const std::string& language);
std::vector<Caption> lef_table_captions(const std::string& language);
std::vector<Caption> about_captions(const std::string& language);

// One row of the section properties, for span k + 1: the one section serves
// every span. The column headed "Az-z" holds the gross area Axx. Spans the
// beam does not have are blank.
struct PropertyRow {
    std::string span; // Lblfelt_prop
    std::string iyy;  // Lbl_iyy_val
    std::string wyy;  // Lbl_wyy_val
    std::string azz;  // Lbl_azz_val
};
std::array<PropertyRow, kMaxSpans> property_rows(const Model& m);

// One row of the buckling input, for span k + 1, as the last recalculation
// left it: the span number, the two boxes, the effective length and k_crit.
// Rows beyond nf are empty and take no input; the results are blank while the
// check is off. A box whose value fails its check is marked failed.
struct BucklingRow {
    bool shown = false;
    std::string span;       // Lbl_felt_nr_vipp
    std::string l_stag;     // Txt_l_stag
    std::string lef_factor; // Txt_le_fak
    std::string l_eff;      // Lbl_leff
    std::string k_crit;     // Lbl_crit
    bool l_stag_failed = false;
    bool lef_factor_failed = false;
};
std::array<BucklingRow, kMaxSpans> buckling_rows(const Model& m);

// Leaving Txt_l_stag (Box::LStag) or Txt_le_fak (Box::LefFactor) of span
// `span`: the text is converted and checked; a value that passes is stored and
// shown again in "0.00", a refused one leaves the beam as it was.
BoxCommit commit_buckling_box(Model& m, Box box, int span, std::string_view text);

} // namespace kvelder
