#pragma once

#include "model/model.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

enum class DataFile { Material, Profile, Setup };

std::string_view file_name(DataFile file);

// What went wrong with one data file. A missing or empty file is replaced by
// the shipped copy; dropped rows and unusable values are reported, and the
// file is used as it is.
struct DataFileNote {
    enum class Kind { Missing, NoRows, RowsDropped, UnusableValues };
    DataFile file;
    std::filesystem::path folder;
    Kind kind;
    int rows = 0;                      // rows dropped
    std::vector<std::string> unusable; // "row: field"
};

// The folder of the user's data files. On Windows the fixed folder of the
// installation; elsewhere the per-user data folder.
std::filesystem::path user_data_dir();

// Writes the shipped copy of every data file that `folder` lacks, so that the
// setup dialog has a file to rewrite. Creates the folder. Nothing is overwritten.
void fill_data_dir(const std::filesystem::path& folder);

// Reads the setup file and both catalogues of `folder` into the model; a file
// that is missing, unreadable or holds no data row gives way to its shipped copy.
std::vector<DataFileNote> ReadDataFiles(Model& m, const std::filesystem::path& folder);

} // namespace kvelder
