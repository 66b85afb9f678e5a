#pragma once

#include "files/catalogue.h"
#include "files/replace_file.h"
#include "model/catalogues.h"
#include "model/model.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The program's name, first in every window title.
inline constexpr std::string_view kProductTitle = "Kvelder";

// The setup file from its text: two free lines, the language line, the line of
// the selected row, two free lines, then one national annex a line.
FileDatabase ReadSetupFile(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes);

// The text of the setup file; head lines and labels are kept as they were read.
std::string SetupFileText(const FileDatabase& db, std::int16_t decimal_comma);

// Writes the setup file in one step: a new file replaces the old one only when
// it is complete. Why it could not be written, if it could not; the old file then stands.
std::optional<ReplaceFailure> WriteSetupFile(const FileDatabase& db, std::int16_t decimal_comma,
                                             const std::filesystem::path& path);

// The fields of an annex row that no calculation can use: a partial factor or
// kcr of 0.1 or less, a class or psi position outside its list.
std::vector<std::string> unusable_fields(const SetupRow& row);

// From the setup in the model to the language, the annex, the title and the
// active factors. A selected row that the table does not hold falls back to row 0.
void ApplySetupRow(Model& m);

// From the active factors back to the selected row of the setup in the model.
void StoreSetupRow(Model& m);
// The same into another copy of the setup.
void StoreSetupRow(const Model& m, FileDatabase& db);

} // namespace kvelder
