#include "ui/governing_text.h"

#include "design/section_checks.h"

namespace kvelder {

std::string load_state_name(const Model& m, const std::optional<GoverningValue>& v)
{
    if (!v) {
        return "-";
    }
    const LoadState& s = v->state;
    if (s.Q1_spans.empty()) {
        return s.Q2 ? "G+Q2" : "G";
    }
    if (s.pattern == 1) {
        return "G+Q1+Q2";
    }
    // The pictures number the patterns with Q1 from 1.
    return (m.language == "Eng" ? "Q1 no." : "Q1 nr.") + std::to_string(s.pattern - 1);
}

std::string expression_text(const Model& m)
{
    return std::string("(") + expression_name(m.comb_rule) + ")";
}

std::string governing_line(const Model& m, const GoverningStates& g, int span)
{
    const bool eng = m.language == "Eng";
    const SpanGoverning& s = g.spans.at(static_cast<std::size_t>(span - 1));
    std::string line = eng ? "Governing loads:  moment " : "Dimensjonerende last:  moment ";
    line += load_state_name(m, s.bending);
    line += (eng ? ",  shear " : ",  skj\u00e6r ") + load_state_name(m, s.shear);
    if (buckling_checked(m)) {
        line += (eng ? ",  buckling " : ",  vipping ") + load_state_name(m, s.buckling);
    }
    line += "  " + expression_text(m) + ";  ";
    line += (eng ? "deflection " : "nedb\u00f8yning ") + load_state_name(m, s.deflection) + "  (SLS)";
    return line;
}

void append_governing_line(std::vector<TextLine>& lines, const Model& m,
                           const std::optional<GoverningStates>& g, int span)
{
    if (g) {
        lines.push_back({});
        lines.push_back({{governing_line(m, *g, span)}});
    }
}

} // namespace kvelder
