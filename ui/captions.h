#pragma once

#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

namespace kvelder {

// The text of one control of the main window, named by its objectName; an element
// of a control array carries an underscore and its index ("mnufileitem_1").
struct Caption {
    std::string control;
    std::string text;

    friend bool operator==(const Caption&, const Caption&) = default;
};

// A control's text in both languages, as a form's caption table holds it.
struct CaptionPair {
    const char* control;
    const char* eng;
    const char* nor;
};

// The texts of a table in a language: "Eng" English, any other Norwegian.
std::vector<Caption> pick_captions(const std::string& language, std::span<const CaptionPair> pairs);
inline std::vector<Caption> pick_captions(const std::string& language,
                                          std::initializer_list<CaptionPair> pairs)
{
    return pick_captions(language, std::span(pairs.begin(), pairs.size()));
}

// The texts the window's controls carry before any language is applied: the symbols,
// heads and buttons that read the same in both languages, and the few texts the
// Norwegian window keeps from the form (mnuexit, Lblcontrvipp). Value labels are not
// here: the recalculation writes them.
std::vector<Caption> form_captions();

// What applying a language does to the main window, in the order it is applied: the
// menu and upper part, then the beam, classes and results, then the labels beside the
// family list. "Eng" gives English, any other language Norwegian. Fraresult follows
// comb_rule ("610b" shows 6.10b, anything else 6.10a) and Lbl_lastvarig2 the
// duration class (1..5, empty outside). A control Norwegian leaves alone is not in
// its list, so switching from English keeps the form's text there. The words of
// controls the program added come last, in both languages.
std::vector<Caption> window_captions(const std::string& language, const std::string& comb_rule,
                                     int duration_class);

// The four family names of cboProfType, by prof_type_index.
std::array<std::string, 4> family_names(const std::string& language);

// The title, the line under it and the version, as the window, the about box and
// the report show them.
std::string program_title();
std::string program_line(const std::string& language);
std::string version_line();
std::string version_number();

} // namespace kvelder
