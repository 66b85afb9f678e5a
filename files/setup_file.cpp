#include "files/setup_file.h"

#include "design/factors.h"
#include "files/replace_file.h"
#include "files/text_lines.h"
#include "files/text_number.h"

#include <algorithm>
#include <charconv>
#include <span>
#include <system_error>

namespace kvelder {
namespace {

constexpr int kHeadLines = 6;

std::string column(const std::vector<std::string>& columns, std::size_t c)
{
    return c < columns.size() ? columns[c] : std::string();
}

float number(const std::vector<std::string>& columns, std::size_t c, std::int16_t decimal_comma)
{
    return TextToNumber(column(columns, c), decimal_comma).value.value_or(0.0F);
}

std::int16_t whole(const std::vector<std::string>& columns, std::size_t c, std::int16_t decimal_comma)
{
    return TextToInt16(column(columns, c), decimal_comma).value.value_or(0);
}

// A boolean as the file writes it ("True", "False") or as a number.
std::int16_t boolean(const std::vector<std::string>& columns, std::size_t c, std::int16_t decimal_comma)
{
    const std::string text = column(columns, c);
    std::string lower;
    std::transform(text.begin(), text.end(), std::back_inserter(lower),
                   [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    lower.erase(0, std::min(lower.find_first_not_of(' '), lower.size()));
    if (lower.rfind("true", 0) == 0) {
        return kTrue;
    }
    if (lower.rfind("false", 0) == 0) {
        return kFalse;
    }
    return flag_of(TextToNumber(text, decimal_comma).value.value_or(0.0F) != 0.0F);
}

std::string float_text(float v, std::int16_t decimal_comma)
{
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, v).ptr;
    std::string text(buffer, end);
    if (decimal_comma != 0) {
        std::replace(text.begin(), text.end(), '.', ',');
    }
    return text;
}

// Names the values of an annex row that the setup dialog would refuse: factors
// of 0.1 or less, classes and psi positions its lists do not hold.
} // namespace

FileDatabase ReadSetupFile(std::string_view text, std::int16_t decimal_comma, ReadNotes& notes)
{
    FileDatabase db;
    const std::vector<std::string> lines = split_lines(text);
    for (std::size_t n = 0; n < kHeadLines && n < lines.size(); ++n) {
        db.setup_header_line[n] = lines[n];
    }
    const std::vector<std::string> language = split_columns(db.setup_header_line[2]);
    db.setup_header_line[2] = language[0];
    db.setup_language = column(language, 1);
    const std::vector<std::string> row = split_columns(db.setup_header_line[3]);
    db.setup_header_line[3] = row[0];
    db.setup_row = whole(row, 1, decimal_comma);

    int counter = 0;
    for (std::size_t n = kHeadLines; n < lines.size(); ++n) {
        if (lines[n].empty()) {
            continue; // a blank line at the end of the file is no annex
        }
        if (counter >= FileDatabase::kRows) {
            ++notes.rows_dropped;
            continue;
        }
        const std::vector<std::string> c = split_columns(lines[n]);
        SetupRow& r = db.setup_table[static_cast<std::size_t>(counter++)];
        r.annex = column(c, 0);
        r.annex_title = column(c, 1);
        r.gamma_timb = number(c, 2, decimal_comma);
        r.gamma_lam = number(c, 3, decimal_comma);
        r.gamma_kerto = number(c, 4, decimal_comma);
        r.gamma_k_bjelke = number(c, 5, decimal_comma);
        r.kcr_timb = number(c, 6, decimal_comma);
        r.kcr_lam = number(c, 7, decimal_comma);
        r.kcr_kerto = number(c, 8, decimal_comma);
        r.kcr_k_bjelke = number(c, 9, decimal_comma);
        r.kcr_exposed = boolean(c, 10, decimal_comma);
        r.safety_class = whole(c, 11, decimal_comma);
        r.psi0_1_index = whole(c, 12, decimal_comma);
        r.psi0_2_index = whole(c, 13, decimal_comma);
        r.psi2_1_index = whole(c, 14, decimal_comma);
        r.psi2_2_index = whole(c, 15, decimal_comma);
        for (const std::string& field : unusable_fields(r)) {
            notes.unusable.push_back(r.annex + ": " + field);
        }
    }
    db.setup_last_row = static_cast<std::int16_t>(counter - 1);
    return db;
}

std::string SetupFileText(const FileDatabase& db, std::int16_t decimal_comma)
{
    const auto& head = db.setup_header_line;
    std::string out = head[0] + "\r\n" + head[1] + "\r\n";
    out += head[2] + ";" + db.setup_language + "\r\n";
    out += head[3] + ";" + std::to_string(db.setup_row) + "\r\n";
    out += head[4] + "\r\n" + head[5] + "\r\n";
    for (int n = 0; n <= db.setup_last_row; ++n) {
        const SetupRow& r = db.setup_table[static_cast<std::size_t>(n)];
        out += r.annex + ";" + r.annex_title + ";";
        for (float v : {r.gamma_timb, r.gamma_lam, r.gamma_kerto, r.gamma_k_bjelke, r.kcr_timb, r.kcr_lam,
                        r.kcr_kerto, r.kcr_k_bjelke}) {
            out += float_text(v, decimal_comma) + ";";
        }
        out += std::string(is_true(r.kcr_exposed) ? "True" : "False") + ";";
        for (std::int16_t v :
             {r.safety_class, r.psi0_1_index, r.psi0_2_index, r.psi2_1_index, r.psi2_2_index}) {
            out += std::to_string(v) + ";";
        }
        out += "\r\n";
    }
    return out;
}

std::optional<ReplaceFailure> WriteSetupFile(const FileDatabase& db, std::int16_t decimal_comma,
                                             const std::filesystem::path& path)
{
    const std::string text = SetupFileText(db, decimal_comma);
    return replace_file(path, std::as_bytes(std::span(text.data(), text.size())));
}

std::vector<std::string> unusable_fields(const SetupRow& r)
{
    std::vector<std::string> names;
    const std::pair<const char*, float> factors[] = {
        {"gamma_M timber", r.gamma_timb}, {"gamma_M laminated", r.gamma_lam},
        {"gamma_M kerto", r.gamma_kerto}, {"gamma_M k_bjelke", r.gamma_k_bjelke},
        {"kcr timber", r.kcr_timb},       {"kcr laminated", r.kcr_lam},
        {"kcr kerto", r.kcr_kerto},       {"kcr k_bjelke", r.kcr_k_bjelke}};
    for (const auto& [name, value] : factors) {
        if (!(value > 0.1F)) {
            names.emplace_back(name);
        }
    }
    const auto in = [](int v, int low, int high) { return v >= low && v <= high; };
    const std::pair<const char*, bool> choices[] = {{"safety class", in(r.safety_class, 1, 3)},
                                                    {"psi0 of Q1", in(r.psi0_1_index, 0, 8)},
                                                    {"psi0 of Q2", in(r.psi0_2_index, 0, 8)},
                                                    {"psi2 of Q1", in(r.psi2_1_index, 0, 10)},
                                                    {"psi2 of Q2", in(r.psi2_2_index, 0, 10)}};
    for (const auto& [name, ok] : choices) {
        if (!ok) {
            names.emplace_back(name);
        }
    }
    return names;
}

void ApplySetupRow(Model& m)
{
    FileDatabase& db = m.setup;
    m.language = db.setup_language == "Nor" ? "Nor" : "Eng";
    if (db.setup_row < 0 || db.setup_row > db.setup_last_row) {
        db.setup_row = 0;
    }
    const SetupRow& r = db.setup_table[static_cast<std::size_t>(db.setup_row)];
    m.annex = r.annex.substr(0, 3);
    m.annex.resize(3, ' ');
    m.annex_title = r.annex_title;
    m.annex_s = r.annex;
    const std::string title = r.annex_title.empty() ? std::string(kProductTitle)
                                                    : std::string(kProductTitle) + " + " + r.annex_title;
    m.title_suffix = title + ": ";

    m.gamma_timb = r.gamma_timb;
    m.gamma_lam = r.gamma_lam;
    m.gamma_kerto = r.gamma_kerto;
    m.gamma_k_bjelke = r.gamma_k_bjelke;
    m.kcr_timb = r.kcr_timb;
    m.kcr_lam = r.kcr_lam;
    m.kcr_kerto = r.kcr_kerto;
    m.kcr_k_bjelke = r.kcr_k_bjelke;
    m.kcr_exposed = m.annex_s == "Swe" ? r.kcr_exposed : kFalse;
    m.safety_class = r.safety_class;
    m.psi0_1_index = r.psi0_1_index;
    m.psi0_2_index = r.psi0_2_index;
    m.psi2_1_index = r.psi2_1_index;
    m.psi2_2_index = r.psi2_2_index;
    m.psi0_1 = psi0_of(r.psi0_1_index);
    m.psi0_2 = psi0_of(r.psi0_2_index);
    m.psi2_1 = psi2_of(r.psi2_1_index);
    m.psi2_2 = psi2_of(r.psi2_2_index);
}

void StoreSetupRow(Model& m)
{
    StoreSetupRow(m, m.setup);
}

void StoreSetupRow(const Model& m, FileDatabase& db)
{
    db.setup_language = m.language;
    if (db.setup_row < 0 || db.setup_row > db.setup_last_row) {
        return;
    }
    SetupRow& r = db.setup_table[static_cast<std::size_t>(db.setup_row)];
    r.gamma_timb = m.gamma_timb;
    r.gamma_lam = m.gamma_lam;
    r.gamma_kerto = m.gamma_kerto;
    r.gamma_k_bjelke = m.gamma_k_bjelke;
    r.kcr_timb = m.kcr_timb;
    r.kcr_lam = m.kcr_lam;
    r.kcr_kerto = m.kcr_kerto;
    r.kcr_k_bjelke = m.kcr_k_bjelke;
    if (m.annex_s == "Swe") {
        r.kcr_exposed = m.kcr_exposed; // elsewhere the active field is 0 and the file keeps its own
    }
    r.safety_class = m.safety_class;
    r.psi0_1_index = m.psi0_1_index;
    r.psi0_2_index = m.psi0_2_index;
    r.psi2_1_index = m.psi2_1_index;
    r.psi2_2_index = m.psi2_2_index;
}

} // namespace kvelder
