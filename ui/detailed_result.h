#pragma once

#include "model/message.h"
#include "model/model.h"
#include "ui/captions.h"
#include "ui/input_checks.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

inline constexpr const char* kDetailedResultForm = "frm_Kvelder_detailedresult";

// The detailed results of one span (frm_Kvelder_detailedresult): the section
// checks in words and numbers, and the trial dimensions that change the beam.

// Colours as the plots give them: red in the low byte.
constexpr std::uint32_t kTextColor = 0;
constexpr std::uint32_t kOverrunColor = 192;  // dark red
constexpr std::uint32_t kWithinColor = 32768; // green

// A usage factor above 1 is an overrun; 1 itself is not.
std::uint32_t usage_color(float usage);

// A piece of a line in one colour; the pieces of a line follow each other.
struct TextSegment {
    std::string text;
    std::uint32_t color = kTextColor;

    friend bool operator==(const TextSegment&, const TextSegment&) = default;
};
using TextLine = std::vector<TextSegment>;

// The span's heading and its checks of moment and shear, then the heading of
// lateral buckling and, where that check is off or the section is round, the
// line that says so. An empty line parts the paragraphs.
std::vector<TextLine> Print_section_lines(const Model& m, int span);

// Effective length, slenderness, k_crit and the usage factor of lateral
// buckling, in Norwegian whatever the language.
std::vector<TextLine> Print_buckling_lines(const Model& m, int span);

// The whole text of a span: the section lines and, while the check is in
// force, the buckling lines.
std::vector<TextLine> Show_span_detail(const Model& m, int span);

// Which controls of Fra_profil the beam's section brings: a catalogue profile
// of timber or laminated timber by name (Txt_stand_dim), a free rectangle
// (txt_b1, txt_h1; kerto and k_bjelke always), or a circle (Txt_d_tube).
enum class TrialSection { Profile, Rectangle, Circle };

struct DetailSection {
    TrialSection kind = TrialSection::Rectangle;
    std::string profile; // the name cboProf shows
    std::string b, h, d; // the trial boxes, in "0"
};
DetailSection detail_section(const Model& m);

// Leaving a trial box (Width, Height or Diameter): the size is stored as for
// the main window's box, whose text is `main_text`; a size at or below 0 fails
// with that box's message and keeps the beam at the gate.
struct TrialCommit {
    std::string text;      // what the trial box shows
    std::string main_text; // what the main window's box shows
    std::optional<Message> failure;
};
TrialCommit commit_trial_size(Model& m, Box box, std::string_view text);

// The sizes the trial boxes opened on or last took. Closing the window on a
// refused size puts that size back, so that the beam is the one its results
// were calculated for; the text the main window's box then shows.
struct TrialSizes {
    float b = 0, h = 0, d = 0;
};
TrialSizes trial_sizes(const Model& m);
std::string restore_trial_size(Model& m, Box box, const TrialSizes& taken);

std::vector<Caption> detailed_result_captions(const std::string& language);

} // namespace kvelder
