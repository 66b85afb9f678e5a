#include "files/catalogue.h"

#include "files/text_lines.h"
#include "files/text_number.h"

#include <array>
#include <vector>

namespace kvelder {
namespace {

constexpr int kHeadLines = 7;

// Calls `store(row, columns)` for each data row that fits the table, and
// returns the index of the last row kept.
template <typename Store>
std::int16_t read_rows(std::string_view text, int capacity, ReadNotes& notes, Store store)
{
    const std::vector<std::string> lines = split_lines(text);
    int counter = 0;
    for (std::size_t n = kHeadLines; n < lines.size(); ++n) {
        const std::vector<std::string> columns = split_columns(lines[n]);
        if (columns.size() < 3 || columns[2].empty() || columns[2].front() != 'S') {
            continue;
        }
        if (counter < capacity) {
            store(counter, columns);
            ++counter;
        } else {
            ++notes.rows_dropped;
        }
    }
    return static_cast<std::int16_t>(counter - 1);
}

// Column `c` as a number; 0 when it is missing or refused.
float number_at(const std::vector<std::string>& columns, std::size_t c, std::int16_t decimal_comma)
{
    if (c >= columns.size()) {
        return 0.0F;
    }
    return TextToNumber(columns[c], decimal_comma).value.value_or(0.0F);
}

// Names each field that is not above 0.
std::vector<std::string> not_positive(std::initializer_list<std::pair<const char*, float>> fields)
{
    std::vector<std::string> names;
    for (const auto& [name, value] : fields) {
        if (!(value > 0)) {
            names.emplace_back(name);
        }
    }
    return names;
}

void note_unusable(ReadNotes& notes, const std::string& row, const std::vector<std::string>& fields)
{
    for (const std::string& field : fields) {
        notes.unusable.push_back(row + ": " + field);
    }
}

} // namespace

MaterialTable ReadMaterialCatalogue(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes)
{
    MaterialTable table;
    table.last_row = read_rows(text, MaterialTable::kRows, notes, [&](int r, const auto& col) {
        MaterialRow& row = table.rows[static_cast<std::size_t>(r)];
        row.name = col[0];
        row.grade_code = col[1];
        // Column 9 is skipped on purpose: the spare field stays 0.
        const std::array<float*, 8> fields{&row.fmk,    &row.ft0k, &row.fc90k,   &row.fvk,
                                           &row.E0mean, &row.E005, &row.density, &row.s_exponent};
        const std::array<std::size_t, 8> source{3, 4, 5, 6, 7, 8, 10, 11};
        for (std::size_t k = 0; k < fields.size(); ++k) {
            *fields[k] = number_at(col, source[k], decimal_comma);
        }
        note_unusable(notes, row.name, unusable_fields(row));
    });
    return table;
}

ProfileTable ReadProfileCatalogue(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes)
{
    ProfileTable table;
    table.last_row = read_rows(text, ProfileTable::kRows, notes, [&](int r, const auto& col) {
        ProfileRow& row = table.rows[static_cast<std::size_t>(r)];
        row.name = col[0];
        row.family_code = col[1];
        row.b = number_at(col, 3, decimal_comma);
        row.h = number_at(col, 4, decimal_comma);
        note_unusable(notes, row.name, unusable_fields(row));
    });
    return table;
}

std::vector<std::string> unusable_fields(const MaterialRow& row)
{
    return not_positive({{"fm,k", row.fmk},
                         {"fc,90,k", row.fc90k},
                         {"fv,k", row.fvk},
                         {"E0,mean", row.E0mean},
                         {"E0,05", row.E005},
                         {"density", row.density}});
}

std::vector<std::string> unusable_fields(const ProfileRow& row)
{
    return not_positive({{"b", row.b}, {"h", row.h}});
}

ProfileFamilies SplitProfileFamilies(const ProfileTable& profiles)
{
    static const std::array<std::string_view, 4> codes{"T", "L", "Ke", "K"};
    ProfileFamilies families;
    for (int r = 0; r < row_count(profiles); ++r) {
        const ProfileRow& row = profiles.rows[static_cast<std::size_t>(r)];
        for (std::size_t f = 0; f < codes.size(); ++f) {
            if (row.family_code == codes[f]) {
                families.lists[f].push_back(row);
            }
        }
    }
    return families;
}

} // namespace kvelder
