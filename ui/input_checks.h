#pragma once

#include "model/model.h"
#include "ui/messages.h"

#include <optional>
#include <vector>

namespace kvelder {

// The number boxes that a check guards, outside the load dialogs.
enum class Box {
    Width,         // txt_b1
    Height,        // txt_h1
    Diameter,      // txt_d
    Kc90,          // Txt_kc90
    BearingLength, // Txt_opp_L
    Ksys,          // Txt_ksy
    LStag,         // Txt_l_stag, per span
    LefFactor,     // Txt_le_fak, per span
    SetupFactor,   // the gamma_M and kcr boxes of the setup dialog
};

// The message of a box whose value fails its limits, or none when it passes.
// `span` is the span of an l_stag box, whose length is the upper limit.
std::optional<Message> check_box(const Model& m, Box box, float value, int span = 0);

// The first span without a length, whose box takes the focus, and its message.
struct SpanFailure {
    int span;
    Message message;
};

// Spans 1..nf in order: the first that is not longer than 0 sets err_spans and
// fails; otherwise err_spans is cleared.
std::optional<SpanFailure> check_spans(Model& m);

// The restraint table for the end supports as they stand. Too few restraints
// set err_supports and give the message; enough clear it.
std::optional<Message> check_supports(Model& m);

// The first failing value that a box of the main window holds for this beam:
// the sizes of the section form in use and, for a rectangle, the bearing of
// every node. None when all pass; a save is refused until then.
std::optional<Message> window_box_failure(const Model& m);

// Every check that typing the whole beam into the window would run: spans,
// supports, the section boxes of its form, ksys and the bearing boxes of every
// node. The messages of all failures, in that order; none when the beam passes.
std::vector<Message> check_all_boxes(Model& m);

// The buckling boxes of every span while that check is on and every span has
// its length: what typing them would refuse. A beam keeps braces that a span
// made shorter no longer holds, so a project's are not checked.
std::vector<Message> check_buckling_boxes(const Model& m);

} // namespace kvelder
