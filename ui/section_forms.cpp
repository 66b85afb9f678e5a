#include "ui/section_forms.h"

#include "files/number_format.h"
#include "files/text_number.h"
#include "ui/edits.h"
#include "ui/help_texts.h"

namespace kvelder {

std::vector<Caption> properties_captions(const std::string& language)
{
    return pick_captions(language, {
                                       {kPropertiesForm, "Section properties", "Tverrsnittsverdier "},
                                       {"Fra_Iyy_Wyy", "(mm4), (mm3), (mm2)", "(mm4), (mm3), (mm2)"},
                                       {"Lbl_felt_prop", "Span", "Felt"},
                                       {"Lbl_iyy", "Iy-y", "Iy-y"},
                                       {"Lbl_wyy", "Wy-y", "Wy-y"},
                                       {"Lbl_azz", "Az-z", "Az-z"},
                                       {"cmdOK", "OK", "OK"},
                                   });
}

std::vector<Caption> buckling_captions(const std::string& language)
{
    std::vector<Caption> captions = pick_captions(
        language,
        {
            {kBucklingForm, "Parametre for lateral torsional buckling", "Vippeparametre"},
            {"Fra_vipping", "Effective length of beam (m) and kcrit", "Effektive vippelengde (m)og kcrit"},
            {"Lbl_felt_vipp", "Span", "Felt"},
            {"Lbl_l_stag", "l_stag", "l_stag"},
            {"Lbl_le_fak", "lef_factor", "lef_faktor"},
            {"Lbl_leff_head", "lef", "lef"},
            {"Lbl_crit_head", "kcrit", "kcrit"},
            {"Fra_angrepspunkt", "Location of load", "Angrepspunkt for last"},
            {"Opt_angrepspunkt_0", "Top of beam", "Top av bjelke"},
            {"Opt_angrepspunkt_1", "Bottom of beam", "Underkantav bjelke"},
            {"Cmd_lef", "Table lef / l", "Tabell lef / l"},
            {"cmdOK", "OK", "OK"},
        });
    // The factor and the two load positions of the explanation the support help gives too.
    const std::vector<HelpLine> lines = effective_length_lines(language);
    const std::size_t shown[] = {1, 3, 4};
    for (std::size_t k = 0; k < std::size(shown); ++k) {
        captions.push_back({"Lbl_lef_help_" + std::to_string(k), lines.at(shown[k]).text.at(0).text});
    }
    return captions;
}

std::vector<Caption> lef_table_captions(const std::string& language)
{
    return pick_captions(language, {
                                       {kLefTableForm, "Effective length lef / l", "Effektiv lengde lef / l"},
                                       {"cmdOK", "OK", "OK"},
                                   });
}

std::vector<Caption> about_captions(const std::string& language)
{
    std::vector<Caption> captions = pick_captions(language, {
                                                                {kAboutForm, "About Kvelder", "Om Kvelder"},
                                                                {"cmdOK", "OK", "OK"},
                                                            });
    captions.push_back({"lblTitle", program_title()});
    captions.push_back({"lblDescription", program_line(language)});
    captions.push_back({"lblVersion", version_line()});
    return captions;
}

std::array<PropertyRow, kMaxSpans> property_rows(const Model& m)
{
    std::array<PropertyRow, kMaxSpans> rows;
    for (int i = 1; i <= m.nf && i <= kMaxSpans; ++i) {
        rows[static_cast<std::size_t>(i - 1)] = {
            format_number(i, "0"), format_number(m, m.I_mm4, "0.000E+00"),
            format_number(m, m.Wyy, "0.000E+00"), format_number(m, m.Axx, "0.000E+00")};
    }
    return rows;
}

std::array<BucklingRow, kMaxSpans> buckling_rows(const Model& m)
{
    const bool checked = m.vipping_off == 0;
    std::array<BucklingRow, kMaxSpans> rows;
    for (int i = 1; i <= m.nf && i <= kMaxSpans; ++i) {
        BucklingRow& row = rows[static_cast<std::size_t>(i - 1)];
        row.shown = true;
        row.span = format_number(i, " 0");
        row.l_stag = format_number(m, m.l_stag(i));
        row.lef_factor = format_number(m, m.lef_factor(i));
        if (checked) {
            row.l_eff = format_number(m, m.l_eff(i));
            row.k_crit = format_number(m, m.k_crit(i));
        }
        row.l_stag_failed = check_box(m, Box::LStag, m.l_stag(i), i).has_value();
        row.lef_factor_failed = check_box(m, Box::LefFactor, m.lef_factor(i)).has_value();
    }
    return rows;
}

BoxCommit commit_buckling_box(Model& m, Box box, int span, std::string_view text)
{
    if (span < 1 || span > m.nf) {
        return {std::string(text), std::nullopt}; // no row of the dialog
    }
    const Converted<float> c = TextToNumber(text, m.decimal_comma);
    const float value = c.value.value_or(0.0F);
    std::optional<Message> failure =
        box == Box::LStag ? set_l_stag(m, span, value) : set_lef_factor(m, span, value);
    // A refused text stays, so that the engineer sees what was not taken.
    std::string shown = failure || !c.value
                            ? std::string(text)
                            : format_number(box == Box::LStag ? m.l_stag(span) : m.lef_factor(span), "0.00",
                                            m.decimal_comma != 0);
    return {std::move(shown), std::move(failure)};
}

} // namespace kvelder
