// The catalogues and the setup file: what the readers make of a file, what
// they do with a missing one, and the data we ship.

#include "files/catalogue.h"
#include "files/data_files.h"
#include "files/path_text.h"
#include "files/program_folders.h"
#include "files/setup_file.h"
#include "files/shipped_data.h"
#include "files/start_values.h"
#include "files/text_lines.h"
#include "tests/support/beams.h"
#include "ui/messages.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

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
    EXPECT_EQ(m.psi0_2, f32(0.6));
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

} // namespace
} // namespace kvelder::test
