#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"

#include <optional>
#include <string>

namespace kvelder {

// The message of a failure in a language, where the program has one.
std::optional<Message> failure_message(const std::string& language, const LoadRowFailure& failure);

// Checks the stored rows of one table in row order, each against the rows
// before it, with the codes in the order of the group.
std::optional<LoadRowFailure> check_load_table(const Model& m, LoadGroupId id, LoadTable table);

// Reads the boxes of a dialog into the group's tables, frame by frame, packing
// the rows, and checks each row as it is stored. The first failure ends the
// reading: that row is stored, the frames after it are left as they were.
// Converted boxes are rewritten with the machine's decimal separator.
std::optional<LoadRowFailure> ReadRows(Model& m, LoadGroupId id, LoadDialogTexts& texts);

// The dialogs are the master of the loads: after a change of their boxes every
// group reads its rows again. Failures are left to the next recalculation.
void read_all_rows(Model& m, LoadDialogs& dialogs);

// The boxes of a dialog for a group's rows: span numbers with "0", values with
// "0.00", as a project fills them.
LoadDialogTexts dialog_texts(const LoadGroup& g, std::int16_t decimal_comma);

// The three dialogs of a beam's groups.
LoadDialogs load_dialogs(const Model& m);

// Closes the gaps of a dialog: rows whose span box is empty go, the others
// keep their order.
void CompactRows(LoadDialogTexts& texts);

// Fits the rows of a dialog to new span lengths: a point, moment or trapezoid
// that starts at or beyond the end of its span loses its span number (and so
// drops out at the next reading); a trapezoid that runs past the end ends there.
// Rows on spans the beam does not have are left to the reading's checks.
void ClipLoadsToSpans(const Model& m, LoadDialogTexts& texts);

} // namespace kvelder
