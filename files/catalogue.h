#pragma once

#include "model/catalogues.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// What a reader noticed in a file that it read all the same.
struct ReadNotes {
    int rows_dropped = 0;              // data rows beyond the table's last row
    std::vector<std::string> unusable; // "row: field" of values outside what the program accepts
};

// The catalogues from their text: 7 head lines, then one line a row; a line is
// a data row when its third column starts with "S", and any other line is
// skipped without using up a row. A column that is missing or no number leaves
// its field at 0. Rows beyond the table are dropped and counted in the notes,
// and values that the program does not accept (a strength, modulus, density or
// size of 0 or less) are named there.
MaterialTable ReadMaterialCatalogue(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes);
ProfileTable ReadProfileCatalogue(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes);

// The fields of a row that no calculation can use (a strength, modulus,
// density or size of 0 or less); none for a sound row.
std::vector<std::string> unusable_fields(const MaterialRow& row);
std::vector<std::string> unusable_fields(const ProfileRow& row);

// The four family lists, rebuilt in table order. An unknown family code drops
// the row from every list.
ProfileFamilies SplitProfileFamilies(const ProfileTable& profiles);

// The rows a table holds (its last row index plus one).
inline int row_count(const MaterialTable& t)
{
    return t.last_row + 1;
}
inline int row_count(const ProfileTable& t)
{
    return t.last_row + 1;
}

} // namespace kvelder
