#include "report/code_check_report.h"

#include "drawing/glyphs.h"
#include "files/number_format.h"
#include "report/report_text.h"

#include <string_view>
#include <utility>

namespace kvelder {
namespace {

// The columns of a block, in millimetres from its left edge.
constexpr float kRuleIndent = 4;
constexpr float kRatioRight = 62;
constexpr float kOutcomeLeft = 66;
// A block is ten lines and half a line between spans, whether or not its
// buckling rule is printed, so that the spans of a page stand at one pitch.
constexpr float kBlockLines = 10.5F;

CheckLine plain(std::string text, bool bold = false)
{
    return {std::move(text), {}, {}, bold, false};
}

CheckLine rule(std::string title, std::string ratio, std::string outcome)
{
    return {std::move(title), std::move(ratio), std::move(outcome), false, true};
}

std::string ratio(const Model& m, float stress, float strength)
{
    return format_number(m, stress, "0.0") + " / " + format_number(m, strength, "0.0");
}

CheckLine bending_rule(const Model& m, const char* title, float stress, float uf, float x)
{
    return rule(title, ratio(m, stress, m.fmd),
                format_number(m, uf, "0.00") + "        <  1.0       " +
                    "  at   xl   =   " + format_number(m, x, "0.00"));
}

// The text of the beam's language, to be joined with numbers.
std::string said(const Model& m, std::string_view eng, std::string_view nor)
{
    return std::string(pick(m, eng, nor));
}

} // namespace

std::vector<CheckLine> BuildBucklingText(const Model& m, int span)
{
    const std::string title = said(m, "Lateral buckling: ", "Vipping: ");
    if (m.section_form == "Tube") {
        return {plain(title + said(m, " No lateral buckling, circular profile. ",
                                   " Ingen vipping, sirkulært profil. "))};
    }
    if (m.vipping_off != 0) {
        return {plain(title + said(m, " No lateral buckling, compression side supported. ",
                                   " Ingen vipping, trykkside kontinuerlig avstivet. "))};
    }
    return {plain(title),
            rule("UF  = Sigma / fm,y,d x k_crit",
                 ratio(m, m.sigma_ltb(span), m.fmd) + " x " + format_number(m, m.k_crit(span), "0.00"),
                 format_number(m, m.Uf_ltb(span), "0.00"))};
}

std::vector<CheckLine> BuildCheckTexts(const Model& m, int span)
{
    std::vector<CheckLine> lines{
        plain(said(m, "Span no.    ", "Felt nr.    ") + format_number(m, static_cast<float>(span), "0"),
              true),
        plain(said(m, "Section Control: ", "Tverrsnitts kontroll: ")),
        plain(said(m, "Max. posetive moment: ", "Maks. posetivt moment: ") +
              format_number(m, m.M_pos(span), "0.0") + " kNm"),
        bending_rule(m, "UF  =  sigma_pos / fm,y,d", m.sigma_pos(span), m.Uf_pos(span), m.x_pos(span)),
        plain(said(m, "Max. negative moment: ", "Maks. negativt moment: ") +
              format_number(m, m.M_neg(span), "0.0") + " kNm"),
        bending_rule(m, "UF  = sigma_neg / fm,y,d", m.sigma_neg(span), m.Uf_neg(span), m.x_neg(span)),
        plain(said(m, "Shear: ", "Skjær: ") + format_number(m, m.V_gov(span), "0.0") + " kN"),
        rule("UF  =  Tau / fv,d", ratio(m, m.tau_gov(span), m.fvd),
             format_number(m, m.Uf_tau(span), "0.00") + "        <  1.0      " +
                 "   at   xl   =   " + format_number(m, m.xt_gov(span), "0.00")),
    };
    for (auto& line : BuildBucklingText(m, span)) {
        lines.push_back(std::move(line));
    }
    return lines;
}

float PrintCodeCheck(PlotSurface& surface, const Model& m, float x, float y, int first_span, int last_span)
{
    SetTableFont(surface);
    // 8 point lines set a little closer than the font's own pitch: a block
    // then takes about 27 mm.
    const float pitch = LinePitch(surface) * 0.85F;
    for (int span = first_span; span <= last_span; ++span) {
        float line_y = y;
        for (const CheckLine& line : BuildCheckTexts(m, span)) {
            surface.SetFontBold(line.bold);
            const float left = line.rule ? x + kRuleIndent : x;
            PrintAt(surface, left, line_y, line.text);
            if (!line.ratio.empty()) {
                PrintRight(surface, x + kRatioRight, line_y, line.ratio);
            }
            if (!line.outcome.empty()) {
                PrintAt(surface, x + kOutcomeLeft, line_y, line.outcome);
            }
            surface.SetFontBold(false);
            line_y -= pitch;
        }
        y -= pitch * kBlockLines;
    }
    return y;
}

} // namespace kvelder
