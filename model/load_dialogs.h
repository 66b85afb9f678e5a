#pragma once

#include "model/load_rows.h"

#include <array>
#include <string>
#include <vector>

namespace kvelder {

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

// The texts of one load dialog: four frames of rows, each row its boxes (span
// first). A row whose span box is empty is no row.
using RowTexts = std::array<std::string, 5>;
struct LoadDialogTexts {
    std::array<std::vector<RowTexts>, 4> frames; // uniform, trapezoid, point, moment

    friend bool operator==(const LoadDialogTexts&, const LoadDialogTexts&) = default;
};

// The rows of the three load dialogs (G, Q1, Q2).
using LoadDialogs = std::array<LoadDialogTexts, 3>;

} // namespace kvelder
