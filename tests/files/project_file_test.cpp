// The catalogues and the setup file: what the readers make of a file, what
// they do with a missing one, and the data we ship. Project files: their bytes
// field by field against offsets worked out by hand from the layout of the
// format, what comes back on opening, what the reader deliberately does not
// restore, and damaged files that must leave everything as it was.

#include "files/catalogue.h"
#include "files/code_page.h"
#include "files/data_files.h"
#include "files/path_text.h"
#include "files/program_folders.h"
#include "files/project_file.h"
#include "files/project_layout.h"
#include "files/setup_file.h"
#include "files/shipped_data.h"
#include "files/start_values.h"
#include "files/text_lines.h"
#include "tests/support/beams.h"
#include "ui/messages.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <limits>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::byte>;

const std::string kSevenHeadLines = "h1\nh2\nh3\nh4\nh5\nh6\nName;Code;S;fm\n";

TEST(Catalogue, KeepsOnlyDataRowsWithoutAGapAndDropsWhatTheTableCannotHold)
{
    // Either separator reads on either machine; a short row keeps zeros.
    const std::string text = kSevenHeadLines + "C24;EN 338;S;24;14.5;2.5;4;11000;7400;350;420;0\r\n"
                                               "Glulam;;H;\n"
                                               "a comment\n"
                                               "GL30c;EN 14080;S;30;19,5;2,5;3,5;13000;10800;390;430;0\n"
                                               "X;;S;24;14.5;2.5;3.5\n";
    ReadNotes notes;
    const MaterialTable t = ReadMaterialCatalogue(text, 1, notes);
    ASSERT_EQ(t.last_row, 2);
    EXPECT_EQ(t.rows[1].name, "GL30c");
    EXPECT_EQ(t.rows[1].fvk, 3.5F);
    EXPECT_EQ(t.rows[1].E0mean, 13000.0F);
    EXPECT_EQ(t.rows[1].E005, 10800.0F);
    EXPECT_EQ(t.rows[1].spare, 0.0F); // column 9 is never read
    EXPECT_EQ(t.rows[1].density, 430.0F);
    EXPECT_EQ(t.rows[2].fvk, 3.5F);
    EXPECT_EQ(t.rows[2].E0mean, 0.0F);
    EXPECT_EQ(notes.rows_dropped, 0);

    std::string profiles = kSevenHeadLines;
    for (int r = 0; r < ProfileTable::kRows + 3; ++r) {
        profiles += 'P';
        profiles += std::to_string(r) + ";L;S;90;" + std::to_string(90 + r) + "\n";
    }
    const ProfileTable p = ReadProfileCatalogue(profiles, 0, notes);
    EXPECT_EQ(p.last_row, ProfileTable::kRows - 1);
    EXPECT_EQ(notes.rows_dropped, 3);
    EXPECT_EQ(p.rows[400].name, "P400");
}

TEST(DataFiles, ValuesNoCalculationCanUseAreNamedAndTheFileIsKept)
{
    const std::filesystem::path folder = scratch_folder() / "data_unusable";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "EC5Material.csv")
        << kSevenHeadLines << "C24;;S;24;14.5;2.5;0;11000;7400;350;420;0\n";
    std::ofstream(folder / "Kveldersetup.csv") << "1\n2\nL;Eng\nR;0\n5\n6\n"
                                                  "Nor;;0.1;1.15;1.2;1.2;0.67;0.67;1;1;False;2;9;5;3;3;\n";
    Model m;
    const std::vector<DataFileNote> notes = ReadDataFiles(m, folder);
    ASSERT_EQ(notes.size(), 3U); // the profile catalogue is missing
    EXPECT_EQ(notes[0].unusable, (std::vector<std::string>{"Nor: gamma_M timber", "Nor: psi0 of Q1"}));
    EXPECT_EQ(notes[1].unusable, (std::vector<std::string>{"C24: fv,k"}));
    EXPECT_EQ(m.material_table.rows[0].name, "C24"); // kept as it is
    EXPECT_NE(data_file_message("Eng", notes[1]).text.find("C24: fv,k"), std::string::npos);
}

TEST(DataFiles, AMissingOrEmptyFileGivesWayToTheShippedCopy)
{
    const std::filesystem::path folder = scratch_folder() / "data_missing";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "EC5Profile.csv") << "only\nhead\nlines\n";
    Model m;
    const std::vector<DataFileNote> notes = ReadDataFiles(m, folder);
    ASSERT_EQ(notes.size(), 3U);
    EXPECT_EQ(notes[0].file, DataFile::Setup);
    EXPECT_EQ(notes[0].kind, DataFileNote::Kind::Missing);
    EXPECT_EQ(notes[0].folder, folder);
    EXPECT_EQ(notes[2].kind, DataFileNote::Kind::NoRows);
    ReadNotes ignored;
    EXPECT_EQ(m.material_table, ReadMaterialCatalogue(shipped_material_catalogue(), 0, ignored));
    EXPECT_EQ(m.setup.setup_table[0].annex, "Nor");
    EXPECT_EQ(m.profile_families.of(1).size(), SplitProfileFamilies(m.profile_table).of(1).size());
}

TEST(DataFiles, AShortCatalogueStartsTheExampleBeamOnRowsItHas)
{
    const std::filesystem::path folder = scratch_folder() / "data_short";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "EC5Material.csv")
        << kSevenHeadLines << "C24;;S;24;14.5;2.5;4;11000;7400;350;420;0\n";
    std::ofstream(folder / "EC5Profile.csv")
        << kSevenHeadLines << "a;L;S;90;180\nb;L;S;90;225\nc;L;S;90;270\n";
    Model m;
    start_up(m, folder, kPointMachine);
    EXPECT_EQ(m.material_row, 0);
    EXPECT_EQ(m.prof_index, 2); // the middle of three, rounded half to even
    EXPECT_EQ(m.section_h, 270.0F);
}

TEST(DataFiles, AFolderIsFilledWithTheShippedFilesOnlyWhereItLacksThem)
{
    const std::filesystem::path folder = scratch_folder() / "data_fill";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "Kveldersetup.csv") << "mine";
    fill_data_dir(folder);
    EXPECT_EQ(read_text_file(folder / "Kveldersetup.csv"), "mine");
    EXPECT_EQ(read_text_file(folder / "EC5Material.csv"), std::string(shipped_material_catalogue()));
}

// An installed program finds its data in <prefix>/share/kvelder beside
// <prefix>/bin; one run from its build tree has none there.
TEST(DataFiles, TheInstalledFolderLiesBesideTheProgramsFolder)
{
    const fs::path prefix = scratch_folder() / path_from_utf8("installert \u03a9");
    fs::remove_all(prefix);
    fs::create_directories(prefix / "bin");
    EXPECT_FALSE(installed_data_dir(prefix / "bin"));
    fill_data_dir(prefix / "share" / "kvelder");
    EXPECT_EQ(installed_data_dir(prefix / "bin"), prefix / "share" / "kvelder");

    const std::optional<fs::path> exe = executable_path();
    ASSERT_TRUE(exe);
    EXPECT_EQ(exe->stem(), "files_tests");
}

TEST(ShippedData, HoldsTheClassesOfTheStandards)
{
    Model m;
    ASSERT_TRUE(ReadDataFiles(m, source_data_dir()).empty()); // every value usable
    std::set<std::string> names;
    for (int r = 0; r <= m.material_table.last_row; ++r) {
        const MaterialRow& row = m.material_table.rows[static_cast<std::size_t>(r)];
        names.insert(row.name);
        EXPECT_LT(row.E005, row.E0mean) << row.name;
        EXPECT_GT(row.density, 300) << row.name;
    }
    for (const char* name : {"C14", "C24", "C50", "GL20h", "GL22h", "GL32h", "GL20c", "GL32c", "D18", "D80",
                             "LVL 48 P", "LVL 36 C"}) {
        EXPECT_EQ(names.count(name), 1U) << name;
    }
    EXPECT_GT(m.material_table.rows[40].s_exponent, 0);

    for (int family = 0; family < 4; ++family) {
        EXPECT_FALSE(m.profile_families.of(family).empty()) << family;
    }

    std::vector<std::string> annexes;
    for (int r = 0; r <= m.setup.setup_last_row; ++r) {
        annexes.push_back(m.setup.setup_table[static_cast<std::size_t>(r)].annex);
    }
    EXPECT_EQ(annexes, (std::vector<std::string>{"Nor", "Swe", "Euc"}));
    EXPECT_EQ(m.setup.setup_table[2].gamma_timb, 1.3F);
}

TEST(SetupFile, ReadsEitherSeparatorAndWritesItsHeadLinesBack)
{
    const std::string text = "free 1\nfree 2\nLanguage;Nor\nRow;1\nfree 5\nfree 6\n"
                             "Nor;NA;1,25;1,15;1,2;1,2;0,67;0,67;1;1;True;1;5;4;3;2;\n"
                             "Swe;;1.3;1.25;1.2;1.2;0.67;0.67;1;1;False;3;0;1;0;10;\n";
    ReadNotes notes;
    const FileDatabase db = ReadSetupFile(text, 0, notes);
    EXPECT_EQ(db.setup_language, "Nor");
    EXPECT_EQ(db.setup_row, 1);
    EXPECT_EQ(db.setup_last_row, 1);
    EXPECT_EQ(db.setup_table[0].gamma_timb, 1.25F);
    EXPECT_EQ(db.setup_table[0].kcr_exposed, kTrue);
    EXPECT_EQ(db.setup_table[1].psi2_2_index, 10);

    for (std::int16_t machine : {0, 1}) {
        ReadNotes again;
        EXPECT_EQ(ReadSetupFile(SetupFileText(db, machine), machine, again), db);
    }
    const std::string written = SetupFileText(db, 1);
    EXPECT_EQ(written.substr(0, written.find("Nor;NA")),
              "free 1\r\nfree 2\r\nLanguage;Nor\r\nRow;1\r\nfree 5\r\nfree 6\r\n");
    EXPECT_NE(written.find("1,25;"), std::string::npos);
}

TEST(SetupRow, BecomesTheActiveFactorsAndGoesBack)
{
    Model m;
    ReadNotes notes;
    m.setup = ReadSetupFile("1\n2\nL;Eng\nR;0\n5\n6\n"
                            "Nor;NA;1.25;1.15;1.2;1.2;0.67;0.67;1;1;True;1;5;4;3;2;\n"
                            "Swe;;1.3;1.25;1.2;1.2;0.5;0.6;1;1;True;3;0;1;0;10;\n",
                            0, notes);
    ApplySetupRow(m);
    EXPECT_EQ(m.title_suffix, "Kvelder + NA: ");
    EXPECT_EQ(m.kcr_exposed, kFalse); // taken only in Sweden
    EXPECT_EQ(m.psi0_1, f32(0.7));
    EXPECT_EQ(m.psi2_1, f32(0.3));
    EXPECT_EQ(m.psi2_2, f32(0.2));
    StoreSetupRow(m);
    EXPECT_EQ(m.setup.setup_table[0].kcr_exposed, kTrue);

    m.setup.setup_row = 1;
    ApplySetupRow(m);
    EXPECT_EQ(m.title_suffix, "Kvelder: ");
    EXPECT_EQ(m.kcr_exposed, kTrue);
    EXPECT_EQ(m.psi0_1, f32(0.2));
    EXPECT_EQ(m.psi2_2, 1.0F);

    m.gamma_lam = 1.4F;
    m.safety_class = 2;
    StoreSetupRow(m);
    EXPECT_EQ(m.setup.setup_table[1].gamma_lam, 1.4F);
    EXPECT_EQ(m.setup.setup_table[1].safety_class, 2);

    m.setup.setup_row = 7; // beyond the rows read
    ApplySetupRow(m);
    EXPECT_EQ(m.setup.setup_row, 0);
    EXPECT_EQ(m.annex, "Nor");
}

fs::path project_folder()
{
    const fs::path folder = scratch_folder() / "projects";
    fs::create_directories(folder);
    return folder;
}

std::int16_t i16_at(const Bytes& b, std::size_t at)
{
    return static_cast<std::int16_t>(std::to_integer<int>(b.at(at)) |
                                     (std::to_integer<int>(b.at(at + 1)) << 8));
}

float f32_at(const Bytes& b, std::size_t at)
{
    std::uint32_t v = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        v |= std::to_integer<std::uint32_t>(b.at(at + k)) << (8 * k);
    }
    return std::bit_cast<float>(v);
}

std::string text_at(const Bytes& b, std::size_t at, std::size_t length)
{
    std::string s(length, '\0');
    std::memcpy(s.data(), b.data() + at, length);
    return s;
}

TEST(ProjectLayout, BlocksOfEmptyTextsHaveTheirLengthsAndCatalogueAndSelectionFieldsTheirOffsets)
{
    ProjectFile f; // every text empty: blocks of fixed length
    f.setup.setup_language.clear();
    f.setup.setup_row = 2;
    f.setup.setup_last_row = 3;
    f.setup.setup_table[0].gamma_timb = 1.25F;
    f.setup.setup_table[0].psi2_2_index = 7;
    f.setup.setup_table[1].kcr_timb = 0.67F;
    f.materials.rows[1].fmk = 24.0F;
    f.materials.rows[1].s_exponent = 0.15F;
    f.materials.last_row = 41;
    f.material_row = 24;
    f.prof_type_index = 1;
    f.prof_index = 52;
    f.profiles.last_row = 399;
    f.profiles.rows[0].b = 140.0F;
    f.profiles.rows[2].h = 405.0F;
    const Bytes b = encode_project(f);

    // setup 8 + 6 x 2 + 11 x (4 + 32 + 12) = 548; materials 101 x (6 + 36) = 4242;
    // selections 4 + 6; profiles 401 x (6 + 8) = 5614; record 2448.
    EXPECT_EQ(b.size(), 548U + 4242U + 4U + 6U + 5614U + 2448U);
    EXPECT_EQ(i16_at(b, 4), 2);                      // setup_row, after the language and the spare text
    EXPECT_EQ(i16_at(b, 6), 3);                      // setup_last_row
    EXPECT_EQ(f32_at(b, 20 + 4), 1.25F);             // annex 0: two empty texts, then gamma_timb
    EXPECT_EQ(i16_at(b, 20 + 4 + 32 + 10), 7);       // annex 0, its sixth integer
    EXPECT_EQ(f32_at(b, 68 + 4 + 16), 0.67F);        // annex 1, its fifth float
    EXPECT_EQ(f32_at(b, 548 + 42 + 6), 24.0F);       // material row 1, fmk
    EXPECT_EQ(f32_at(b, 548 + 42 + 6 + 32), 0.15F);  // material row 1, s_exponent
    EXPECT_EQ(i16_at(b, 4790), 24);                  // material_row
    EXPECT_EQ(i16_at(b, 4792), 41);                  // last material row
    EXPECT_EQ(i16_at(b, 4794), 1);                   // prof_type_index
    EXPECT_EQ(i16_at(b, 4796), 52);                  // prof_index
    EXPECT_EQ(i16_at(b, 4798), 399);                 // last profile row
    EXPECT_EQ(f32_at(b, 4800 + 6), 140.0F);          // profile row 0, b
    EXPECT_EQ(f32_at(b, 4800 + 28 + 6 + 4), 405.0F); // profile row 2, h
}

// Offsets in the record are those of a beam with empty project texts and
// one-letter end supports, worked out from the field list of the format. G
// stands for the layout of every load group with spans as floats; Q2 keeps its
// spans as integers in fewer uniform and moment slots.
TEST(ProjectLayout, RecordFieldsOfABeamWithLoadsInEveryTable)
{
    auto m = loaded_beam();
    m->prosjekt_s = "\u00c5lesund"; // 7 bytes in the file
    m->id_s = "B\u20131";           // en dash, one byte: 0x96
    m->creep_G = 1.6F, m->gamma_G_a = 1.35F, m->gamma_G_b = 1.2F;
    m->creep_Q1 = 1.18F, m->gamma_Q1_a = 1.05F, m->gamma_Q1_b = 1.5F;
    m->creep_Q2 = 1.21F, m->gamma_Q2_a = 0.98F, m->gamma_Q2_b = 1.4F;
    m->bearing_length(6) = 120.0F;
    m->bearing_kc90(2) = 1.5F;
    m->ffl_s(4) = 7.0F; // left from a beam of more spans
    Bytes b = project_bytes(*m);
    const std::size_t start = b.size() - (2448 + 7 + 3 + 2);
    const std::size_t record = start + 7 + 3; // the offsets behind the two texts

    EXPECT_EQ(i16_at(b, start), 7);
    EXPECT_EQ(text_at(b, start + 2, 7), "\xc5lesund");
    EXPECT_EQ(i16_at(b, start + 9), 3);
    EXPECT_EQ(text_at(b, start + 11, 3), "B\x96"
                                         "1");
    EXPECT_EQ(text_at(b, record + 52, 1), "I"); // the supports, one letter each
    EXPECT_EQ(text_at(b, record + 55, 1), "F");
    for (std::size_t k = 56; k < 430; ++k) {
        ASSERT_EQ(b[record + k], std::byte{0}) << "reserved byte " << k;
    }
    EXPECT_EQ(text_at(b, record + 432, 4), "610b");
    EXPECT_EQ(text_at(b, record + 2204, 10), "lam_bjelke");
    EXPECT_EQ(text_at(b, record + 2236, 4), "Firk");
    EXPECT_EQ(record + 2450, b.size());
    // Fields by name, offset in the record (slot k of a table at its start + 4 k
    // floats or + 2 k integers) and value.
    // clang-format off
    const std::tuple<const char*, std::size_t, int> ints[] = {
        {"nf", 4, 3}, {"loadcomb_option", 430, 2}, {"profile_weight_on", 436, -1}, {"G_uni_n", 610, 2},
        {"G_trap_n", 832, 1}, {"G_mom_n", 1100, 1}, {"Q1_mom_n", 1680, 1}, {"Q2_uni_span(1)", 1682 + 2, 3},
        {"Q2_uni_n", 1718, 1}, {"Q2_mom_span(1)", 2032 + 2, 1}, {"Q2_mom_n", 2102, 1},
        {"spare text 1", 2104, 0}, {"spare text 2", 2106, 0}, {"standard_section", 2214, -1},
        {"duration_class", 2228, 3}, {"service_class", 2230, 1}, {"vipping_off", 2422, 0}};
    const std::tuple<const char*, std::size_t, float> floats[] = {
        {"ffl_s slot 0", 6, 0.0F}, {"ffl_s(3)", 6 + 3 * 4, 6.0F}, {"ffl_s(4) above nf", 6 + 4 * 4, 0.0F},
        {"creep_G", 486, 1.6F}, {"gamma_Q1_a", 502, 1.05F}, {"gamma_Q2_b", 518, 1.4F},
        {"G_uni_span(2)", 522 + 8, 3.0F}, {"G_uni_q(2)", 566 + 8, 1.5F}, {"G_trap_b(1)", 788 + 4, 3.5F},
        {"G_trap_span(1)", 612 + 4, 2.0F}, {"G_pt_P(1)", 878 + 4, 10.0F}, {"G_mom_M(1)", 1012 + 4, 5.0F},
        {"Q1_trap_q1(1)", 1236 + 4, 3.0F}, {"Q1_mom_M(1)", 1592 + 4, -3.0F}, {"Q2_uni_q(1)", 1694 + 4, 0.75F},
        {"Q2_mom_M(1)", 2046 + 4, 1.25F}, {"Q2_mom_a(1)", 2074 + 4, 3.0F}, {"section_b", 2216, m->section_b},
        {"section_h", 2220, m->section_h}, {"section_d", 2224, 400.0F}, {"ksys", 2232, 1.0F},
        {"bearing_length(6)", 2240 + 6 * 4, 120.0F}, {"bearing_kc90(2)", 2284 + 2 * 4, 1.5F},
        {"l_stag(2)", 2328 + 2 * 4, 2.5F}, {"lef_factor(3)", 2372 + 3 * 4, 0.8F},
        {"load_location", 2418, 1.0F}};
    // clang-format on
    for (const auto& [name, at, value] : ints) {
        EXPECT_EQ(i16_at(b, record + at), value) << name;
    }
    for (const auto& [name, at, value] : floats) {
        EXPECT_EQ(f32_at(b, record + at), value) << name;
    }

    // The buckling data are written only while the check is on.
    m->vipping_off = kTrue;
    b = project_bytes(*m);
    for (std::size_t k = 2328; k < 2422; ++k) {
        ASSERT_EQ(b[record + k], std::byte{0}) << "byte " << k << " of the record";
    }
    EXPECT_EQ(i16_at(b, record + 2422), -1);
}

TEST(CodePage, TextsOutsideWindows1252)
{
    EXPECT_EQ(to_windows_1252("\u20ac \u0160 \u0178"), "\x80 \x8a \x9f");
    EXPECT_EQ(to_windows_1252("\u4e2d \U0001F600"), "? ?"); // not in the code page
    EXPECT_EQ(to_windows_1252("gr\xf8nn"), "gr\xf8nn");     // already a Windows-1252 byte
    EXPECT_EQ(to_windows_1252("\xc0\xaf"), "\xc0\xaf");     // an overlong form is no character
    for (int byte = 1; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        ASSERT_EQ(to_windows_1252(from_windows_1252(one)), one) << "byte " << byte;
    }
}

// The fields a beam description also holds come back through kvelder-cli's
// save and dump (CliProject); here what only the window and its dialogs keep,
// the section from the file's own catalogue, and what the reader deliberately
// leaves as the program held it.
TEST(ProjectFile, TheBeamComesBackAsItWasSavedAndTheReaderKeepsItsOldDecisions)
{
    auto saved = loaded_beam();
    saved->bearing_length.fill(150.0F);
    saved->bearing_kc90.fill(1.75F);
    saved->gamma_Q1_a = 1.05F, saved->gamma_Q1_b = 1.5F;
    saved->gamma_Q2_a = 0.98F, saved->gamma_Q2_b = 1.4F;
    saved->creep_Q1 = 1.3F;
    saved->vipping_off = kTrue;
    for (ProfileRow& row : saved->profile_table.rows) {
        if (row.family_code == "L") {
            row.h = 999.0F; // as if the catalogue had said so at saving
        }
    }
    // A spare text holds whatever an earlier version put there: it is skipped.
    Bytes b = project_bytes(*saved);
    ASSERT_EQ(b[5], std::byte{0}); // the setup's spare text follows the language "Eng"
    const Bytes spare = {std::byte{3}, std::byte{0}, std::byte{'a'}, std::byte{'b'}, std::byte{'c'}};
    b.erase(b.begin() + 5, b.begin() + 7);
    b.insert(b.begin() + 5, spare.begin(), spare.end());

    auto m = example_beam(); // what the program held before
    m->support_kind.fill(kBuiltIn);
    m->Q1.mom_span(1) = 9;
    m->Q2.mom_span(1) = 8;
    m->gamma_Q1_b = 0.5F;
    m->vipping_off = kFalse;
    m->l_stag(1) = 1.75F;
    m->lef_factor(2) = 1.5F;
    m->section_form = "Tube";
    LoadDialogs dialogs;
    const auto why = ReadProjectBytes(*m, b, dialogs);
    ASSERT_FALSE(why) << *why;
    EXPECT_EQ(m->setup.setup_table[1], saved->setup.setup_table[1]);
    EXPECT_EQ(m->support_kind(1), kBuiltIn);
    EXPECT_EQ(m->support_kind(3), kSimple);
    EXPECT_EQ(m->support_kind(4), kFree);
    EXPECT_EQ(m->Q1.uni_n, 1);
    EXPECT_EQ(m->Q1.uni_q(1), 4.0F);
    EXPECT_EQ(m->Q1.uni_q(2), 4.0F); // rows above the count keep what the model held
    EXPECT_EQ(m->Q1.mom_M, saved->Q1.mom_M);
    EXPECT_EQ(m->Q2.trap_b, saved->Q2.trap_b);
    EXPECT_EQ(m->Q2.mom_n, 1);
    EXPECT_EQ(m->loading_flag, kTrue); // the recalculation that follows clears it
    // A catalogue section is a rectangle from the file's own catalogue.
    EXPECT_EQ(m->section_h, 999.0F);
    EXPECT_EQ(m->profile_families.of(1).at(52).h, 999.0F);
    EXPECT_EQ(m->section_form, "Firk");

    // The dialogs show the file's rows in their formats.
    ASSERT_EQ(dialogs[0].frames[0].size(), 2U);
    EXPECT_EQ(dialogs[0].frames[0][1][0], "3");
    EXPECT_EQ(dialogs[0].frames[0][1][1], "1.50");
    EXPECT_EQ(dialogs[0].frames[1][0][4], "3.50");
    EXPECT_EQ(dialogs[1].frames[3][0][1], "-3.00");
    EXPECT_EQ(dialogs[2].frames[2][0][0], "2");
    // A comma machine shows them with its separator.
    auto on_comma = example_beam(kCommaMachine);
    LoadDialogs shown;
    ASSERT_FALSE(ReadProjectBytes(*on_comma, b, shown));
    EXPECT_EQ(shown[0].frames[0][1][1], "1,50");
    EXPECT_EQ(shown[1].frames[3][0][1], "-3,00");

    // Bearing data stay those of the beam before.
    EXPECT_EQ(m->bearing_length(2), 90.0F);
    EXPECT_EQ(m->bearing_kc90(1), 1.0F);
    // Moment rows of Q1 and Q2 keep the model's span numbers; their dialogs
    // show the file's. The point rows are unharmed.
    EXPECT_EQ(m->Q1.mom_span(1), 9);
    EXPECT_EQ(m->Q2.mom_span(1), 8);
    EXPECT_EQ(m->G.mom_span(1), 3);
    EXPECT_EQ(dialogs[1].frames[3].at(0)[0], "2");
    EXPECT_EQ(dialogs[2].frames[3].at(0)[0], "1");
    EXPECT_EQ(m->Q1.pt_span(2), 1);
    // Both factor fields of Q1 and Q2 land in gamma_a, the latter last.
    EXPECT_EQ(m->creep_Q1, 1.3F);
    EXPECT_EQ(m->gamma_Q1_a, 1.5F);
    EXPECT_EQ(m->gamma_Q1_b, 0.5F);
    EXPECT_EQ(m->gamma_Q2_a, 1.4F);
    // With the buckling check off, its data stay those in memory.
    EXPECT_EQ(m->vipping_off, kTrue);
    EXPECT_EQ(m->l_stag(1), 1.75F);
    EXPECT_EQ(m->lef_factor(2), 1.5F);
}

TEST(ProjectFile, ASaveReplacesTheFileWholeOrChangesNothing)
{
    auto m = loaded_beam();
    m->psi0_1_index = 3;
    const Model before = *m;
    const auto no_folder = WriteProject(*m, project_folder() / "missing" / "x.kvel");
    ASSERT_TRUE(no_folder);
    EXPECT_EQ(no_folder->kind, ProjectFailure::Kind::Unwritable);
    const fs::path folder_in_the_way = project_folder() / "taken.kvel";
    fs::create_directories(folder_in_the_way / "inside");
    ASSERT_TRUE(WriteProject(*m, folder_in_the_way));
    EXPECT_TRUE(fs::is_directory(folder_in_the_way / "inside"));
    EXPECT_TRUE(*m == before);

    const fs::path path = project_folder() / "twice.kvel";
    std::ofstream(path) << std::string(40000, 'Z'); // a longer file was there before
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(m->setup.setup_table[0].psi0_1_index, 3); // the active factors go into the setup row
    const std::string first = contents(path);
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(contents(path), first);
    EXPECT_EQ(first, text_at(project_bytes(*m), 0, project_bytes(*m).size())); // no tail of the old file
    EXPECT_FALSE(fs::exists(fs::path(path) += ".new"));

    // The old file is replaced, never written over: a second name for it still
    // shows the old bytes.
    const fs::path old_name = project_folder() / "twice_old.kvel";
    fs::remove(old_name);
    fs::create_hard_link(path, old_name);
    m->G.uni_q(1) = 9.5F;
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(contents(old_name), first);
    EXPECT_NE(contents(path), first);

    // A read-only project is refused before anything is written, by its own
    // mark: Linux would rename over it, and root could write it anyway.
    const std::string replaced = contents(path);
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    m->G.uni_q(1) = 7.5F;
    const auto read_only = WriteProject(*m, path);
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
    ASSERT_TRUE(read_only);
    EXPECT_EQ(read_only->kind, ProjectFailure::Kind::ReadOnly);
    EXPECT_EQ(contents(path), replaced);
    EXPECT_FALSE(fs::exists(fs::path(path) += ".new"));
    EXPECT_EQ(project_message("Eng", *read_only).text,
              "Can't save " + utf8_text(path) + ": the file is read-only. The file on disk is unchanged.");
    EXPECT_EQ(project_message("Nor", *read_only).text,
              "Kan ikke lagre " + utf8_text(path) +
                  ": filen er skrivebeskyttet. Filen p\u00e5 disken er uendret.");

    m->prosjekt_s.assign(70000, 'x');
    const auto too_long = WriteProject(*m, project_folder() / "long.kvel");
    ASSERT_TRUE(too_long);
    EXPECT_FALSE(fs::exists(project_folder() / "long.kvel"));
    EXPECT_EQ(project_message("Eng", *too_long).text,
              "Can't save " + utf8_text(project_folder() / "long.kvel") +
                  ": a text of the project record is longer than a project file can hold.");
}

TEST(ProjectFile, NamesBeyondTheCodePageAreSavedAndOpenedUnderTheirOwnLetters)
{
    const fs::path folder = project_folder() / "names";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const std::vector<std::string> names{"bjelke p\u00e5 loftet.kvel", "B\u201312 \u20ac.kvel",
                                         "\u03a9-bjelke.kvel"};
    auto m = loaded_beam();
    for (const std::string& name : names) {
        m->G.uni_q(1) += 1.0F;
        ASSERT_FALSE(WriteProject(*m, folder / path_from_utf8(name))) << name;
        auto opened = example_beam();
        LoadDialogs dialogs;
        ASSERT_FALSE(ReadProject(*opened, folder / path_from_utf8(name), dialogs)) << name;
        EXPECT_EQ(opened->G.uni_q(1), m->G.uni_q(1)) << name; // each name its own file
    }
    std::set<std::string> listed;
    for (const auto& entry : fs::directory_iterator(folder)) {
        listed.insert(utf8_text(entry.path().filename()));
    }
    EXPECT_EQ(listed, std::set<std::string>(names.begin(), names.end()));
}

// --- Damaged and missing files --------------------------------------------------

class DamagedProject : public ::testing::Test {
protected:
    void SetUp() override
    {
        m = example_beam();
        m->loading_flag = kFalse;
        before = std::make_unique<Model>(*m);
        dialogs[1].frames[0].push_back({"1", "4.00"});
        dialogs_before = dialogs;
    }

    // The good file changed by `edit`, which opening must refuse without changing anything.
    void expect_refused(const char* what, const std::function<void(ProjectFile&)>& edit)
    {
        ProjectFile f = good;
        edit(f);
        EXPECT_TRUE(ReadProjectBytes(*m, encode_project(f), dialogs)) << what;
        EXPECT_TRUE(*m == *before) << what;
        EXPECT_EQ(dialogs[1].frames, dialogs_before[1].frames) << what;
    }

    std::unique_ptr<Model> m;
    std::unique_ptr<Model> before;
    LoadDialogs dialogs;
    LoadDialogs dialogs_before;
    const ProjectFile good = decode_project(project_bytes(*loaded_beam()));
};

TEST_F(DamagedProject, MissingFileAndMissingFolderHaveTheirOldWords)
{
    LoadDialogs d;
    const auto no_file = ReadProject(*m, project_folder() / "nowhere.kvel", d);
    ASSERT_TRUE(no_file);
    EXPECT_EQ(project_message("Nor", *no_file).text, " Can't find file ");
    const auto no_path = ReadProject(*m, project_folder() / "no_such_folder" / "a.kvel", d);
    ASSERT_TRUE(no_path);
    EXPECT_EQ(project_message("Eng", *no_path).text, " Path not found ");
    const auto folder = ReadProject(*m, project_folder(), d);
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->kind, ProjectFailure::Kind::Unreadable);
    EXPECT_TRUE(*m == *before);
}

TEST_F(DamagedProject, ChoicesCountsAndNumbersBeyondWhatTheProgramTakesAreRefused)
{
    expect_refused("nf 0", [](ProjectFile& f) { f.record.nf = 0; });
    expect_refused("nf 6", [](ProjectFile& f) { f.record.nf = 6; });
    expect_refused("left support", [](ProjectFile& f) { f.record.nsupLeft_s = "X"; });
    expect_refused("right support", [](ProjectFile& f) { f.record.nsupRight_s = std::string(3000, 'F'); });
    expect_refused("loadcomb_option 3", [](ProjectFile& f) { f.record.loadcomb_option = 3; });
    expect_refused("comb_rule", [](ProjectFile& f) { f.record.comb_rule = "610c"; });
    expect_refused("self weight 1", [](ProjectFile& f) { f.record.profile_weight_on = 1; });
    expect_refused("G_uni_n 6", [](ProjectFile& f) { f.record.G.uni_n = 6; });
    expect_refused("G_trap_n 11", [](ProjectFile& f) { f.record.G.trap_n = 11; });
    expect_refused("Q1_mom_n 7", [](ProjectFile& f) { f.record.Q1.mom_n = 7; });
    expect_refused("Q2_uni_n -1", [](ProjectFile& f) { f.record.Q2.uni_n = -1; });
    expect_refused("G_uni_span 40000", [](ProjectFile& f) { f.record.G.uni_span[1] = 40000.0F; });
    expect_refused("standard_section 2", [](ProjectFile& f) { f.record.standard_section = 2; });
    expect_refused("duration_class 0", [](ProjectFile& f) { f.record.duration_class = 0; });
    expect_refused("service_class 4", [](ProjectFile& f) { f.record.service_class = 4; });
    expect_refused("section_form", [](ProjectFile& f) { f.record.section_form = "firk"; });
    expect_refused("vipping_off 5", [](ProjectFile& f) { f.record.vipping_off = 5; });
    expect_refused("ffl_s NaN",
                   [](ProjectFile& f) { f.record.ffl_s[1] = std::numeric_limits<float>::quiet_NaN(); });
    expect_refused("ksys infinite",
                   [](ProjectFile& f) { f.record.ksys = std::numeric_limits<float>::infinity(); });
    expect_refused("material row", [](ProjectFile& f) {
        f.material_row = static_cast<std::int16_t>(f.materials.last_row + 1);
    });
    expect_refused("profile row", [](ProjectFile& f) {
        f.prof_index =
            static_cast<std::int16_t>(SplitProfileFamilies(f.profiles).of(f.prof_type_index).size());
    });
    expect_refused("profile family 4", [](ProjectFile& f) { f.prof_type_index = 4; });
    // The rows in use must hold numbers a calculation can use.
    expect_refused("material fvk 0", [](ProjectFile& f) {
        f.materials.rows[static_cast<std::size_t>(f.material_row)].fvk = 0.0F;
    });
    expect_refused("annex gamma_M 0", [](ProjectFile& f) {
        f.setup.setup_table[static_cast<std::size_t>(f.setup.setup_row)].gamma_lam = 0.0F;
    });
}

TEST_F(DamagedProject, RowsOutOfUseNeedNoNumbersAndCountsBeyondATableStopAtIt)
{
    ProjectFile f = good;
    f.materials.rows[0].fmk = 0.0F;
    f.setup.setup_table[10].kcr_timb = 0.0F;
    LoadDialogs d;
    EXPECT_FALSE(ReadProjectBytes(*m, encode_project(f), d));

    // The reader of the setup file counted a twelfth annex it did not keep, and
    // saved that count; opening such a file must not reach past the table.
    f = good;
    f.setup.setup_last_row = 11;
    f.setup.setup_row = 11;
    f.materials.last_row = 150;
    ASSERT_FALSE(ReadProjectBytes(*m, encode_project(f), d));
    EXPECT_EQ(m->setup.setup_last_row, FileDatabase::kRows - 1);
    EXPECT_EQ(m->material_table.last_row, MaterialTable::kRows - 1);
    EXPECT_EQ(m->setup.setup_row, 0); // a row the table does not hold falls back to the first
    EXPECT_EQ(m->annex, "Nor");
}

} // namespace
} // namespace kvelder::test
