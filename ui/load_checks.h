#pragma once

#include "model/model.h"
#include "ui/messages.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kvelder {

enum class LoadGroupId { G, Q1, Q2 };
enum class LoadTable { Uniform, Trapezoid, Point, Moment };

LoadGroup& group_of(Model& m, LoadGroupId id);
const LoadGroup& group_of(const Model& m, LoadGroupId id);

// Codes of failures that have no number of their own.
constexpr int kSpanNotPositive = 102; // a span number of 0 or less
constexpr int kNotANumber = -1;       // a box whose text is no number

// The first load row that fails its check: the row of the table (1-based), the
// box of the row (0 the span, then the values in stored order) and the code.
struct LoadRowFailure {
    LoadGroupId group;
    LoadTable table;
    int row;
    int box;
    int code;

    friend bool operator==(const LoadRowFailure&, const LoadRowFailure&) = default;
};

// The message of a failure in a language, where the program has one.
std::optional<Message> failure_message(const std::string& language, const LoadRowFailure& failure);

// Checks the stored rows of one table in row order, each against the rows
// before it, with the codes in the order of the group.
std::optional<LoadRowFailure> check_load_table(const Model& m, LoadGroupId id, LoadTable table);

// The texts of one load dialog: four frames of rows, each row its boxes (span
// first). A row whose span box is empty is no row.
using RowTexts = std::array<std::string, 5>;
struct LoadDialogTexts {
    std::array<std::vector<RowTexts>, 4> frames; // uniform, trapezoid, point, moment
};

// Reads the boxes of a dialog into the group's tables, frame by frame, packing
// the rows, and checks each row as it is stored. The first failure ends the
// reading: that row is stored, the frames after it are left as they were.
// Converted boxes are rewritten with the machine's decimal separator.
std::optional<LoadRowFailure> ReadRows(Model& m, LoadGroupId id, LoadDialogTexts& texts);

// Fits the rows of a dialog to new span lengths: a point, moment or trapezoid
// that starts at or beyond the end of its span loses its span number (and so
// drops out at the next reading); a trapezoid that runs past the end ends there.
// Rows on spans the beam does not have are left to the reading's checks.
void ClipLoadsToSpans(const Model& m, LoadDialogTexts& texts);

} // namespace kvelder
