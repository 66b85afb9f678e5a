#pragma once

#include "model/governing.h"
#include "model/model.h"
#include "ui/detailed_result.h"

#include <optional>
#include <string>
#include <vector>

namespace kvelder {

// The loading behind a governing value as the pattern pictures name it:
// "G", "G+Q2", "Q1 no.3" (Norwegian "Q1 nr.3") for a pattern with Q1, and
// "G+Q1+Q2" for the total load; "-" where nothing governs.
std::string load_state_name(const Model& m, const std::optional<GoverningValue>& v);

// "(6.10a)" or "(6.10b)": the expression the ultimate values were found under.
std::string expression_text(const Model& m);

// One line that names the loading behind each check of span i and behind its
// largest deflection; buckling only while that check is in force.
std::string governing_line(const Model& m, const GoverningStates& g, int span);

// The detailed results of a span close with its governing line, after an
// empty one, where the run could be explained.
void append_governing_line(std::vector<TextLine>& lines, const Model& m,
                           const std::optional<GoverningStates>& g, int span);

} // namespace kvelder
