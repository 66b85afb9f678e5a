#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"
#include "ui/input_checks.h"

#include <optional>
#include <string_view>

namespace kvelder {

// What each control of the main window and its dialogs does to the beam when
// the user acts on it, and the message it raises. The caller recalculates
// afterwards, as the control's handler does; the window and kvelder-cli both
// change the beam through these and nothing else.

// --- Beam type, profile, material (cboProfType, cboProf, cboMat) -------------

// A family of the list: 0 timber, 1 laminated, 2 kerto, 3 k_bjelke. Kerto and
// k_bjelke are free rectangles and not made for service class 3, which falls
// back to 2. The profile list then holds the new family: a selection it does
// not hold falls to its middle, and the section takes the selected profile's
// width and height, as a choice in that list would. An index that no list
// holds changes nothing, here and in the two choices below.
void choose_family(Model& m, int family);

// A row of the family's profile list: its width and height become the section's.
void choose_profile(Model& m, int index);

// A row of the material catalogue; the strengths follow it in every recalculation.
void choose_material(Model& m, int row);

// --- Section (optStandard, optRect, optCircle) -------------------------------

enum class SectionOption { Standard, Rectangle, Circle };

// Kerto and k_bjelke offer only the free rectangle.
bool section_option_enabled(const Model& m, SectionOption option);
// A catalogue profile (sizes from the profile list), a free rectangle, or a
// circle, which has no lateral buckling check.
//
// A new number of spans, a new end support and the circle set the buckling
// data of every span back to its length and a factor of 0.9.
void choose_section_option(Model& m, SectionOption option);

// txt_b1, txt_h1, txt_d: the size is stored as typed; the message of one that fails.
std::optional<Message> set_section_size(Model& m, Box box, float value);

// Txt_kc90, Txt_opp_L of one node (1 .. nnodes).
//
// Spans, nodes, options and list positions the window does not offer change
// nothing, in every rule here.
std::optional<Message> set_bearing(Model& m, int node, Box box, float value);

// --- Spans and supports (Optfelt, Txtfelt, optSuppLeft, optSuppRight) ---------

// A new number of spans: the span boxes beyond it empty, both end supports
// simple again, and the load rows on spans that are gone dropped from the
// dialogs and the beam; one span has no patterns of Q1. The message of the
// span check, since a span that is new has no length yet. Two simple ends
// always stand.
std::optional<SpanFailure> choose_span_count(Model& m, int nf, LoadDialogs& dialogs);

// The length of span `span` (1-based). When every span has a length, the rows
// of G and Q1 are fitted to the new lengths and all rows are read again. A
// span that had no length when its braces were reset gets them at its length;
// braces set before stay, also beyond a span made shorter.
std::optional<SpanFailure> set_span_length(Model& m, int span, float length, LoadDialogs& dialogs);

enum class BeamEnd { Left, Right };

// An end support 'F', 'R' or 'I'. Point loads standing on a new support, and
// moments on a new built-in end, lose their rows in G and Q1, which are read
// again. The message of a beam that can no longer stand; the caller then does
// not recalculate.
std::optional<Message> choose_support(Model& m, BeamEnd end, char kind, LoadDialogs& dialogs);

// --- Loads and combinations ----------------------------------------------------

// Check_profilvekt: self weight joins G; the grids are rebuilt.
void set_self_weight(Model& m, bool on);

// Opt_loadcomb1, Opt_loadcomb2: 1 the total variable load, 2 the patterns of Q1.
void choose_load_combination(Model& m, int option);

// Opt_610a, Opt_610b: "610a" or "610b".
void choose_comb_rule(Model& m, std::string_view rule);

// --- Lateral buckling (Check_vipping) ------------------------------------------

// A circle has no buckling check. Switched on, a span whose braces were reset
// while it had no length gets them at its length.
bool buckling_check_enabled(const Model& m);
void set_buckling_check(Model& m, bool on);

// Txt_l_stag, Txt_le_fak of span `span` (1 .. nf): the message of a value
// outside its limits, which the beam never takes, so that no result is
// calculated from it; a value that passes is stored.
std::optional<Message> set_l_stag(Model& m, int span, float l_stag);
std::optional<Message> set_lef_factor(Model& m, int span, float factor);
// Opt_angrepspunkt: 0 the load on the top of the beam, 1 at the bottom.
void choose_load_location(Model& m, int location);

// --- Classes (frmClass) ------------------------------------------------------------

// Service class 1..3; kerto and k_bjelke do not offer 3.
bool service_class_enabled(const Model& m, int service_class);
void choose_service_class(Model& m, int service_class);
void choose_duration_class(Model& m, int duration_class);
// Txt_ksy: stored as typed; the message when it is outside 1 .. 1.2.
std::optional<Message> set_ksys(Model& m, float ksys);

// --- Setup (frmSetup) --------------------------------------------------------------

// A row of the setup table: its annex, language and factors become active.
void choose_annex_row(Model& m, int row);
// "Eng" or "Nor".
void choose_language(Model& m, std::string_view language);
// The safety or reliability class of the annex, with its factor kfi.
void choose_safety_class(Model& m, int safety_class);

enum class PsiList { Psi0_Q1, Psi0_Q2, Psi2_Q1, Psi2_Q2 };
// A position in a psi list: psi0 runs 0.2 .. 1.0, psi2 0.0 .. 1.0, in steps of 0.1.
int psi_list_size(PsiList list);
void choose_psi(Model& m, PsiList list, int index);

} // namespace kvelder
