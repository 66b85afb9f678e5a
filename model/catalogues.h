#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace kvelder {

// One strength class of the material catalogue. Strengths and moduli in MPa,
// density in kg/m3; `spare` is never read from the file and stays 0.
struct MaterialRow {
    std::string name;
    std::string grade_code;
    std::string spare_text;
    float fmk = 0, ft0k = 0, fc90k = 0, fvk = 0, E0mean = 0, E005 = 0, spare = 0, density = 0, s_exponent = 0;

    friend bool operator==(const MaterialRow&, const MaterialRow&) = default;
};

// One standard cross-section; b and h in mm. family_code is "T", "L", "Ke" or "K".
struct ProfileRow {
    std::string name;
    std::string family_code;
    std::string spare_text;
    float b = 0, h = 0;

    friend bool operator==(const ProfileRow&, const ProfileRow&) = default;
};

// The catalogues as read: fixed row tables, 0-based, and the index of the last
// row read (-1 when none). The last-row index may count rows beyond the table,
// which were dropped.
struct MaterialTable {
    static constexpr int kRows = 101;
    std::array<MaterialRow, kRows> rows{};
    std::int16_t last_row = -1;

    friend bool operator==(const MaterialTable&, const MaterialTable&) = default;
};

struct ProfileTable {
    static constexpr int kRows = 401;
    std::array<ProfileRow, kRows> rows{};
    std::int16_t last_row = -1;

    friend bool operator==(const ProfileTable&, const ProfileTable&) = default;
};

// The profile rows of the four families, in catalogue order: timber, laminated,
// kerto, k_bjelke.
struct ProfileFamilies {
    std::array<std::vector<ProfileRow>, 4> lists;

    const std::vector<ProfileRow>& of(int family) const { return lists.at(static_cast<std::size_t>(family)); }
    friend bool operator==(const ProfileFamilies&, const ProfileFamilies&) = default;
};

// One national annex of the setup file.
struct SetupRow {
    std::string annex;
    std::string annex_title;
    float gamma_timb = 0, gamma_lam = 0, gamma_kerto = 0, gamma_k_bjelke = 0;
    float kcr_timb = 0, kcr_lam = 0, kcr_kerto = 0, kcr_k_bjelke = 0;
    std::int16_t kcr_exposed = 0;
    std::int16_t safety_class = 0;
    std::int16_t psi0_1_index = 0, psi0_2_index = 0, psi2_1_index = 0, psi2_2_index = 0;

    friend bool operator==(const SetupRow&, const SetupRow&) = default;
};

// The setup file in memory: its head lines, the language, the selected annex row
// and up to eleven annex rows.
struct FileDatabase {
    static constexpr int kRows = 11;
    std::string setup_language = "Eng";
    std::string spare_text;
    std::int16_t setup_row = 0;
    std::int16_t setup_last_row = -1;
    std::array<std::string, 6> setup_header_line{};
    std::array<SetupRow, kRows> setup_table{};

    // The last row in use, never past the table; -1 for none.
    int last_row() const { return setup_last_row < kRows ? setup_last_row : kRows - 1; }

    friend bool operator==(const FileDatabase&, const FileDatabase&) = default;
};

} // namespace kvelder
