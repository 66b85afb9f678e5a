#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"
#include "ui/input_checks.h"

#include <optional>
#include <string>
#include <string_view>

namespace kvelder {

// What leaving a number box of the main window does: the text is converted,
// stored, shown again in the box's format and checked. A text that is no
// number at all stands for 0, and so fails the check of every box that has one.

// The text a box shows for the value the beam holds: spans "0.000", b and h
// "0", d, kc90, the bearing length and ksys "0.00". `node` is the support of the
// bearing boxes.
std::string box_text(const Model& m, Box box, int node = 0);
std::string span_text(const Model& m, int span);

struct BoxCommit {
    std::string text;               // what the box shows now
    std::optional<Message> failure; // the box's message; the box turns green
};

// txt_b1, txt_h1, txt_d, Txt_kc90 and Txt_opp_L of support `node`, and the
// classes dialog's Txt_ksy.
BoxCommit commit_box(Model& m, Box box, std::string_view text, int node = 0);

struct SpanCommit {
    std::string text;
    std::optional<SpanFailure> failure; // the first span without a length takes the focus
};

// Txtfelt of span `span` (1-based): the length, then the check of every span,
// and the loads of G and Q1 fitted to the new lengths.
SpanCommit commit_span(Model& m, int span, std::string_view text, LoadDialogs& dialogs);

} // namespace kvelder
