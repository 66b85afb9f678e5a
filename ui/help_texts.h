#pragma once

#include "ui/help_forms.h"

#include <string>
#include <vector>

namespace kvelder {

// A piece of a line of help text; a subscript stands smaller and lower, right
// after the piece before it.
struct TextPiece {
    std::string text;
    bool subscript = false;

    friend bool operator==(const TextPiece&, const TextPiece&) = default;
};

// One row of a reference page: a label in the left column, its text in the
// next and, in the psi tables, a value in a third. A label without text runs
// across the columns; a row with nothing in it leaves a blank row; a heading
// row stands out from the rows under it.
struct HelpLine {
    std::string label;
    std::vector<TextPiece> text;
    std::string value;
    bool heading = false;
};

// The text a reference form draws into its picture: a title over its rows.
struct HelpPage {
    std::string title;
    std::vector<HelpLine> lines;
};

// The window title of a reference form, in the language ("Eng" English, any
// other Norwegian).
std::string help_caption(HelpForm form, const std::string& language);

// The page of a form. The two pattern forms give their heading and the lines
// over the strips of their picture.
HelpPage help_page(HelpForm form, const std::string& language);

// The effective length of a span for lateral buckling, as the support help and
// the buckling input explain it.
std::vector<HelpLine> effective_length_lines(const std::string& language);

// The captions of the strips of the pattern pictures: the permanent load (the
// two-span picture has its own wording), Q1 in pattern `number` (0 for Q1 on
// every span at once) and Q2.
std::string permanent_strip_caption(const std::string& language, int nf);
std::string q1_strip_caption(const std::string& language, int number);
std::string q2_strip_caption(const std::string& language);

} // namespace kvelder
