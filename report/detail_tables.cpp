#include "report/detail_tables.h"

#include "design/section_checks.h"
#include "files/number_format.h"
#include "report/report_text.h"
#include "ui/governing_text.h"
#include "ui/result_points.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>

namespace kvelder {
namespace {

using Align = TableCell::Align;

// Right edges of the columns of both tables, mm from the section's x.
constexpr float kSpan = 10, kPosition = 24;
constexpr float kShearMax = 35, kShearMin = 51, kMomentMax = 67, kMomentMin = 83, kDeflectionMax = 100,
                kDeflectionMin = 122;

TableCell text(float x, std::string_view s)
{
    return {x, std::string(s), Align::Left, false};
}

TableCell right(float x, std::string s)
{
    return {x, std::move(s), Align::Right, false};
}

TableLine max_min_heads(const Model& m, std::initializer_list<float> max_edges)
{
    TableLine line;
    for (const float edge : max_edges) {
        line.cells.push_back(right(edge, std::string(pick(m, "Max.", "Maks."))));
        line.cells.push_back(right(edge + 16, "Min."));
    }
    return line;
}

} // namespace

std::vector<TableLine> force_lines(const Model& m)
{
    std::vector<TableLine> lines{
        {{text(26, pick(m, "F o r c e s   a n d   M o m e n t s", "K r e f t e r   o g   M o m e n t e r")),
          text(92, pick(m, "D e f o r m a t i o n s", "D e f o r m a s j o n e r"))}},
        {{right(kSpan, std::string(pick(m, "Span no.", "Felt nr."))), right(kPosition, "xl (m)"),
          text(30, pick(m, "Shear force", "Skj\u00e6rkraft")), text(64, "Moment")}},
        max_min_heads(m, {kShearMax, kMomentMax}),
    };
    lines.back().cells.push_back(right(kDeflectionMax, std::string(pick(m, "Max.", "Maks."))));
    lines.back().cells.push_back(right(kDeflectionMin, "Min."));
    for (const DetailPoint& p : detail_points(m)) {
        const int i = p.span, j = p.fine;
        lines.push_back(
            {{right(kSpan, format_number(m, i, "##")), right(kPosition, format_number(m, p.x, "##0.00")),
              right(kShearMax, format_number(m, m.V_max(i, j), "##0.00 ")),
              right(kShearMin, format_number(m, m.V_min(i, j), "##0.00 ")),
              right(kMomentMax, format_number(m, m.M_max(i, j), "##0.00 ")),
              right(kMomentMin, format_number(m, m.M_min(i, j), "##0.00 ")),
              right(kDeflectionMax, format_number(m, m.W_max(i, j), "##0.0 ")),
              right(kDeflectionMin, format_number(m, m.W_min(i, j), "##0.0 "))}});
    }
    return lines;
}

std::vector<TableLine> reaction_lines(const Model& m)
{
    std::vector<TableLine> lines{
        {{text(26, pick(m, "S u p p o r t   R e a c t i o n s", "O p p l e g g s k r e f t e r"))}},
        {{right(kSpan + 2, std::string(pick(m, "Support no.", "Oppleggs nr."))),
          text(37, pick(m, "Force", "Kraft")), text(64, "Moment")}},
        max_min_heads(m, {kShearMax, kMomentMax}),
    };
    for (int node = 1; node <= m.nnodes; ++node) {
        TableLine& line = lines.emplace_back();
        line.cells.push_back(right(kSpan, format_number(m, node, "0 ")));
        if (bearing_kind(m, node) == kFree) {
            line.cells.push_back(right(kShearMax, std::string(pick(m, "Free", "Fri"))));
            continue;
        }
        const int k = reaction_index(m, node);
        line.cells.insert(line.cells.end(), {right(kShearMax, format_number(m, m.R_max(k), "##0.00 ")),
                                             right(kShearMin, format_number(m, m.R_min(k), "##0.00 ")),
                                             right(kMomentMax, format_number(m, m.MR_max(k), "##0.00 ")),
                                             right(kMomentMin, format_number(m, m.MR_min(k), "##0.00 "))});
    }
    return lines;
}

std::vector<TableLine> governing_lines(const Model& m, const GoverningStates& g)
{
    constexpr float kMoment = 16, kShear = 40, kBuckling = 64, kDeflection = 88;
    const bool buckling = buckling_checked(m);
    std::vector<TableLine> lines{
        {{text(26, std::string(pick(m, "G o v e r n i n g   L o a d s   ",
                                    "D i m e n s j o n e r e n d e   L a s t   ")) +
                       expression_text(m))}},
        {{right(kSpan, std::string(pick(m, "Span no.", "Felt nr."))), text(kMoment, "Moment"),
          text(kShear, pick(m, "Shear", "Skj\u00e6r"))}},
    };
    if (buckling) {
        lines.back().cells.push_back(text(kBuckling, pick(m, "Buckling", "Vipping")));
    }
    lines.back().cells.push_back(text(kDeflection, pick(m, "Deflection (SLS)", "Nedb\u00f8yning (SLS)")));
    for (int i = 1; i <= m.nf; ++i) {
        const SpanGoverning& s = g.spans.at(static_cast<std::size_t>(i - 1));
        TableLine& line = lines.emplace_back();
        line.cells = {right(kSpan, format_number(m, i, "##")), text(kMoment, load_state_name(m, s.bending)),
                      text(kShear, load_state_name(m, s.shear))};
        if (buckling) {
            line.cells.push_back(text(kBuckling, load_state_name(m, s.buckling)));
        }
        line.cells.push_back(text(kDeflection, load_state_name(m, s.deflection)));
    }
    lines.push_back({{right(kSpan + 2, std::string(pick(m, "Support no.", "Oppleggs nr."))),
                      text(kMoment, pick(m, "Max. reaction", "Maks. oppleggskraft"))}});
    for (int node = 1; node <= m.nnodes; ++node) {
        if (bearing_kind(m, node) != kFree) {
            const SupportGoverning& s = g.supports.at(static_cast<std::size_t>(reaction_index(m, node) - 1));
            lines.push_back(
                {{right(kSpan, format_number(m, node, "0 ")), text(kMoment, load_state_name(m, s.R_max))}});
        }
    }
    return lines;
}

} // namespace kvelder
