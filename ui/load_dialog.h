#pragma once

#include "model/load_dialogs.h"
#include "model/model.h"
#include "ui/box_texts.h"
#include "ui/captions.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The logic of the three load dialogs of G, Q1 and Q2: their controls' names
// and texts, the walk through their boxes with Enter and Tab, and what leaving
// a box, OK and "Remove all loads" do. A frame holds as many rows as its table.

// --- Controls -------------------------------------------------------------------

// frm_B_egenlast, frm_B_nyttelast, frm_B_nyttelast_2.
std::string load_dialog_name(LoadGroupId id);
// Fra_jevn, Fra_trap, Fra_punkt, Fra_mom.
std::string load_frame_name(LoadTable table);
// Box `box` of row `row` (both 0-based; box 0 is the span, the values follow in
// stored order) of a frame: "TxtfeltE_j_0", "TxtQ1N_2_t_3".
std::string load_box_name(LoadGroupId id, LoadTable table, int box, int row);
// Cmdok_e and cmd_e_last_clear for G, Cmdok_n and cmd_n_last_clear for Q1 and Q2.
std::string load_ok_name(LoadGroupId id);
std::string load_clear_name(LoadGroupId id);

// The texts of a dialog in a language; the dialog's title stands under the
// dialog's own name. "Eng" gives English, any other language Norwegian.
std::vector<Caption> load_dialog_captions(const std::string& language, LoadGroupId id);

// --- Enter and Tab ----------------------------------------------------------------

// The modes of the key filter, by the place of a box: the span box of a row, a
// box in the middle, the last box of a row, of the last row of a frame, and the
// span box and the very last box of the last frame.
enum class FocusMode { fb_linje, mb_linje, sb_linje, sb_frame, fb_slast, sb_slast };
enum class FocusTarget { NextInRow, NextRow, NextFrame, OkButton };

// Where the focus goes on Enter or Tab: an empty span box skips the rest of its
// frame, and the last frame ends on OK.
FocusTarget FocusStep(FocusMode mode, bool box_empty);

struct BoxPlace {
    LoadTable table;
    int row; // 0-based
    int box; // 0 the span box

    friend bool operator==(const BoxPlace&, const BoxPlace&) = default;
};
FocusMode focus_mode(const BoxPlace& place);
// The box that Enter leads to; none for the OK button.
std::optional<BoxPlace> next_box(const BoxPlace& from, bool box_empty);

// --- Boxes and buttons ------------------------------------------------------------

// Leaving a box: a span number is shown with "0" and must be above 0, a value
// with "0.00". An empty box stays empty; a text that is no number stays as
// typed and fails.
BoxCommit commit_load_box(const Model& m, LoadGroupId id, const BoxPlace& place, std::string_view text);

// "Remove all loads": every box empty. The beam takes it on OK.
void ClearRows(LoadDialogTexts& boxes);

// OK: the boxes close their gaps and the group reads them. A failing row
// changes nothing of the beam or of the dialogs' texts; the boxes keep what
// they were read as. Rows that pass become the group's and the dialog's texts.
std::optional<LoadRowFailure> confirm_load_dialog(Model& m, LoadDialogs& dialogs, LoadGroupId id,
                                                  LoadDialogTexts& boxes);

// The row of the dialog (0-based) that holds row `row` (1-based) of the group's
// table: rows without a span number are no rows.
int dialog_row(const LoadDialogTexts& texts, LoadTable table, int row);

} // namespace kvelder
