#include "files/data_files.h"

#include "files/catalogue.h"
#include "files/setup_file.h"
#include "files/shipped_data.h"
#include "files/text_lines.h"

#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

namespace kvelder {
namespace {

std::string_view shipped(DataFile file)
{
    switch (file) {
    case DataFile::Material:
        return shipped_material_catalogue();
    case DataFile::Profile:
        return shipped_profile_catalogue();
    case DataFile::Setup:
        break;
    }
    return shipped_setup_file();
}

// Parses the text of `folder` or, failing that, the shipped text. `parse`
// returns the number of rows it kept.
template <typename Parse>
void read_one(DataFile file, const std::filesystem::path& folder, std::vector<DataFileNote>& notes,
              Parse parse)
{
    const std::optional<std::string> text = read_text_file(folder / file_name(file));
    ReadNotes read_notes;
    if (!text) {
        notes.push_back({file, folder, DataFileNote::Kind::Missing, 0, {}});
    } else if (parse(*text, read_notes) > 0) {
        if (read_notes.rows_dropped > 0) {
            notes.push_back({file, folder, DataFileNote::Kind::RowsDropped, read_notes.rows_dropped, {}});
        }
        if (!read_notes.unusable.empty()) {
            notes.push_back({file, folder, DataFileNote::Kind::UnusableValues, 0, read_notes.unusable});
        }
        return;
    } else {
        notes.push_back({file, folder, DataFileNote::Kind::NoRows, 0, {}});
    }
    ReadNotes ignored;
    parse(shipped(file), ignored);
}

} // namespace

std::string_view file_name(DataFile file)
{
    switch (file) {
    case DataFile::Material:
        return "EC5Material.csv";
    case DataFile::Profile:
        return "EC5Profile.csv";
    case DataFile::Setup:
        break;
    }
    return "Kveldersetup.csv";
}

std::filesystem::path user_data_dir()
{
#ifdef _WIN32
    return std::filesystem::path("C:\\Programdata\\Morvenda 2020\\Tarsel\\");
#else
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg == '/') {
        return std::filesystem::path(xdg) / "Kvelder";
    }
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home != nullptr ? home : ".") / ".local" / "share" / "Kvelder";
#endif
}

void fill_data_dir(const std::filesystem::path& folder)
{
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    for (DataFile file : {DataFile::Material, DataFile::Profile, DataFile::Setup}) {
        const std::filesystem::path path = folder / file_name(file);
        if (std::filesystem::exists(path, ec)) {
            continue;
        }
        std::ofstream out(path, std::ios::binary);
        out << shipped(file);
    }
}

std::vector<DataFileNote> ReadDataFiles(Model& m, const std::filesystem::path& folder)
{
    std::vector<DataFileNote> notes;
    read_one(DataFile::Setup, folder, notes, [&](std::string_view text, ReadNotes& n) {
        m.setup = ReadSetupFile(text, m.decimal_comma, n);
        return m.setup.setup_last_row + 1;
    });
    read_one(DataFile::Material, folder, notes, [&](std::string_view text, ReadNotes& n) {
        m.material_table = ReadMaterialCatalogue(text, m.decimal_comma, n);
        return row_count(m.material_table);
    });
    read_one(DataFile::Profile, folder, notes, [&](std::string_view text, ReadNotes& n) {
        m.profile_table = ReadProfileCatalogue(text, m.decimal_comma, n);
        return row_count(m.profile_table);
    });
    m.profile_families = SplitProfileFamilies(m.profile_table);
    return notes;
}

} // namespace kvelder
