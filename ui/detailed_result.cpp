#include "ui/detailed_result.h"

#include "design/section_checks.h"
#include "files/code_page.h"
#include "files/number_format.h"
#include "ui/box_texts.h"
#include "ui/edits.h"

#include <cstddef>

namespace kvelder {
namespace {

const char* pick(const Model& m, const char* eng, const char* nor)
{
    return m.language == "Eng" ? eng : nor;
}

// Keeps the usage factor apart from the divisor before it.
constexpr const char* kGap = "   ";

// A check's heading with its value, then the usage formula with the factor in
// its colour and where it governs.
void add_check(std::vector<TextLine>& lines, const Model& m, std::string heading, double value,
               const char* unit, const char* formula, double stress, double strength, float usage,
               const char* limit, double x)
{
    lines.push_back({{std::move(heading) + format_number(m, value) + unit}});
    lines.push_back({{formula + format_number(m, stress) + " / " + format_number(m, strength) + kGap},
                     {format_number(m, usage), usage_color(usage)},
                     {std::string(limit) + "  at   xl   =   " + format_number(m, x)}});
    lines.push_back({});
}

bool is_timber(const Model& m)
{
    return m.material_family == "tre_bjelke" || m.material_family == "lam_bjelke";
}

} // namespace

std::uint32_t usage_color(float usage)
{
    return usage > 1.0F ? kOverrunColor : kWithinColor;
}

std::vector<TextLine> Print_section_lines(const Model& m, int span)
{
    const int i = span;
    std::vector<TextLine> lines{
        {{pick(m, "Span no.   ", "Felt nr.   ") + format_number(m, i, "0")}},
        {{pick(m, "Section Control: ", "Tverrsnitts kontroll :  ")}},
        {},
    };
    add_check(lines, m, pick(m, "Max. posetive moment:  ", "Maks. posetivt moment:  "), m.M_pos(i), " kNm",
              "UF  =  sigma_pos / fm,y,d               =     ", m.sigma_pos(i), m.fmd, m.Uf_pos(i),
              "        <  1.0      ", m.x_pos(i));
    add_check(lines, m, pick(m, "Max. negative moment:  ", "Maks. negativt moment:  "), m.M_neg(i), " kNm",
              "UF  =  sigma_neg / fm,y,d               =     ", m.sigma_neg(i), m.fmd, m.Uf_neg(i),
              "        <  1.0      ", m.x_neg(i));
    add_check(lines, m, pick(m, "Max. Shear:  ", "Maks. skj\u00e6rkraft:  "), m.V_gov(i), " kN",
              "UF  =  Tau / fv,d                              =     ", m.tau_gov(i), m.fvd, m.Uf_tau(i),
              "        <  1.0     ", m.xt_gov(i));
    lines.push_back({{pick(m, "Lateral buckling: ", "Vipping: ")}});
    if (!buckling_checked(m)) {
        lines.push_back(
            {{pick(m, " No lateral buckling, circular profile or compression side continuously supported: ",
                   "Ingen vipping, sirkul\u00e6rt profil eller trykkside kontinuerlig avstivet:: ")}});
    }
    return lines;
}

std::vector<TextLine> Print_buckling_lines(const Model& m, int span)
{
    const int i = span;
    const char* leff = m.load_location == 0 ? "leff  = Feltlengde (avstand mellom stag) + 2 x h = "
                                            : "leff = Feltlengde (avstand mellom stag)- 0.5 x h  = ";
    return {
        {{leff + format_number(m, m.l_eff(i), "0.0") + "  m"}},
        {{"lamda   =  " + format_number(m, m.lambda_rel_m(i))}},
        {{"k_crit   =  " + format_number(m, m.k_crit(i))}},
        {{"UF  = Sigma / fm,y,d x k_crit  =      " + format_number(m, m.sigma_ltb(i)) + " / " +
          format_number(m, m.fmd) + " x " + format_number(m, m.k_crit(i)) + "= "},
         {format_number(m, m.Uf_ltb(i)), usage_color(m.Uf_ltb(i))}},
    };
}

std::vector<TextLine> Show_span_detail(const Model& m, int span)
{
    std::vector<TextLine> lines = Print_section_lines(m, span);
    if (buckling_checked(m)) {
        const std::vector<TextLine> buckling = Print_buckling_lines(m, span);
        lines.insert(lines.end(), buckling.begin(), buckling.end());
    }
    return lines;
}

DetailSection detail_section(const Model& m)
{
    DetailSection s;
    s.b = box_text(m, Box::Width);
    s.h = box_text(m, Box::Height);
    s.d = format_number(m, m.section_d, "0");
    if (m.section_form == "Tube") {
        s.kind = TrialSection::Circle;
    } else if (is_timber(m) && is_true(m.standard_section)) {
        s.kind = TrialSection::Profile;
        const auto& rows = m.profile_families.of(m.prof_type_index);
        if (m.prof_index >= 0 && static_cast<std::size_t>(m.prof_index) < rows.size()) {
            s.profile = as_utf8(rows[static_cast<std::size_t>(m.prof_index)].name);
        }
    }
    return s;
}

TrialCommit commit_trial_size(Model& m, Box box, std::string_view text)
{
    BoxCommit c = commit_box(m, box, text);
    // The window words its refusals of b and h a little apart from the main window's boxes.
    if (c.failure && box != Box::Diameter) {
        const bool eng = m.language == "Eng";
        c.failure->text = box == Box::Width ? (eng ? " b =< 0 " : "b =< 0 ") : (eng ? " h =< 0 " : "h =< 0 ");
    }
    std::string shown = !c.failure && box == Box::Diameter ? format_number(m, m.section_d, "0") : c.text;
    return {std::move(shown), std::move(c.text), std::move(c.failure)};
}

TrialSizes trial_sizes(const Model& m)
{
    return {m.section_b, m.section_h, m.section_d};
}

std::string restore_trial_size(Model& m, Box box, const TrialSizes& taken)
{
    set_section_size(m, box, box == Box::Width ? taken.b : box == Box::Height ? taken.h : taken.d);
    return box_text(m, box);
}

std::vector<Caption> detailed_result_captions(const std::string& language)
{
    const bool eng = language == "Eng";
    std::vector<Caption> captions{
        {kDetailedResultForm, eng ? "Detailed results" : "Detaljerte resultater"},
        {"Fra_profil", eng ? "Profile" : "Profil"},
        {"fraspanbuck", eng ? "Span no." : "Felt nr."},
        {"Lbl_b1", "b (mm)"},
        {"Lbl_h1", "h (mm)"},
        {"Lbl_tube", "d (mm)"},
        {"Cmd_ok", "OK"},
    };
    for (int k = 0; k < kMaxSpans; ++k) {
        captions.push_back({"Optspandet_" + std::to_string(k), std::to_string(k + 1)});
    }
    return captions;
}

} // namespace kvelder
