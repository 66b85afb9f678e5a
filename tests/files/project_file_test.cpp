// Saving and opening projects: what comes back, what the reader deliberately
// does not restore, and damaged files that must leave everything as it was.

#include "files/project_file.h"
#include "files/project_layout.h"
#include "files/start_values.h"
#include "tests/support/beams.h"
#include "ui/messages.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::byte>;

fs::path project_folder()
{
    const fs::path folder = scratch_folder() / "projects";
    fs::create_directories(folder);
    return folder;
}

Bytes file_bytes(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    const std::string s((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    Bytes b(s.size());
    std::memcpy(b.data(), s.data(), s.size());
    return b;
}

void write_bytes(const fs::path& path, const Bytes& b)
{
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
}

// A fresh program that opens `path`.
std::unique_ptr<Model> opened(const fs::path& path, LoadDialogs& dialogs)
{
    auto m = example_beam();
    const auto failed = ReadProject(*m, path, dialogs);
    EXPECT_FALSE(failed) << (failed ? failed->detail : "");
    return m;
}

std::unique_ptr<Model> opened(const fs::path& path)
{
    LoadDialogs dialogs;
    return opened(path, dialogs);
}

// The fields a beam description also holds come back through kvelder-cli's
// save and dump (CliProject); here what only the window and its dialogs keep.
TEST(ProjectFile, TheBeamComesBackAsItWasSaved)
{
    auto saved = loaded_beam();
    const fs::path path = project_folder() / "loaded.kvel";
    ASSERT_FALSE(WriteProject(*saved, path));

    auto m = example_beam();
    m->support_kind.fill(kBuiltIn); // whatever the beam before had at its nodes
    LoadDialogs dialogs;
    ASSERT_FALSE(ReadProject(*m, path, dialogs));
    EXPECT_EQ(m->support_kind(1), kBuiltIn);
    EXPECT_EQ(m->support_kind(2), kSimple);
    EXPECT_EQ(m->support_kind(3), kSimple);
    EXPECT_EQ(m->support_kind(4), kFree);
    EXPECT_EQ(m->Q1.uni_n, 1);
    EXPECT_EQ(m->Q1.uni_q(1), 4.0F);
    EXPECT_EQ(m->Q1.uni_q(2), 4.0F); // rows above the count keep what the model held
    EXPECT_EQ(m->Q1.mom_M, saved->Q1.mom_M);
    EXPECT_EQ(m->Q2.trap_b, saved->Q2.trap_b);
    EXPECT_EQ(m->Q2.mom_n, 1);
    EXPECT_EQ(m->loading_flag, kTrue); // the recalculation that follows clears it

    // The dialogs show the file's rows in their formats.
    ASSERT_EQ(dialogs[0].frames[0].size(), 2U);
    EXPECT_EQ(dialogs[0].frames[0][1][0], "3");
    EXPECT_EQ(dialogs[0].frames[0][1][1], "1.50");
    EXPECT_EQ(dialogs[0].frames[1][0][4], "3.50");
    EXPECT_EQ(dialogs[1].frames[3][0][1], "-3.00");
    EXPECT_EQ(dialogs[2].frames[2][0][0], "2");
}

TEST(ProjectFile, TheReaderKeepsItsOldDecisions)
{
    auto saved = loaded_beam();
    saved->bearing_length.fill(150.0F);
    saved->bearing_kc90.fill(1.75F);
    saved->gamma_Q1_a = 1.05F, saved->gamma_Q1_b = 1.5F;
    saved->gamma_Q2_a = 0.98F, saved->gamma_Q2_b = 1.4F;
    saved->creep_Q1 = 1.3F;
    saved->vipping_off = kTrue;
    const fs::path path = project_folder() / "decisions.kvel";
    ASSERT_FALSE(WriteProject(*saved, path));

    auto m = example_beam();
    m->Q1.mom_span(1) = 9; // what the program held before
    m->Q2.mom_span(1) = 8;
    m->gamma_Q1_b = 0.5F;
    m->vipping_off = kFalse;
    m->l_stag(1) = 1.75F;
    m->lef_factor(2) = 1.5F;
    LoadDialogs dialogs;
    ASSERT_FALSE(ReadProject(*m, path, dialogs));

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
    EXPECT_EQ(m->Q1.pt_span(1), 3);
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

TEST(ProjectFile, SectionsFromTheFileAndNotFromTheDataFolder)
{
    // A catalogue section comes from the catalogue the file carries.
    auto saved = example_beam();
    saved->profile_table.rows[0].b = 77.0F; // as if the catalogue had said so at saving
    for (ProfileRow& row : saved->profile_table.rows) {
        if (row.family_code == "L") {
            row.h = 999.0F;
        }
    }
    const fs::path path = project_folder() / "own_catalogue.kvel";
    ASSERT_FALSE(WriteProject(*saved, path));
    const auto m = opened(path);
    EXPECT_EQ(m->section_h, 999.0F);
    EXPECT_EQ(m->profile_families.of(1).at(52).h, 999.0F);
    EXPECT_EQ(m->section_form, "Firk");

    // A circle opens as a circle, and a catalogue section never does, whatever
    // the beam before it.
    auto tube = example_beam();
    tube->standard_section = kFalse;
    tube->section_form = "Tube";
    const fs::path tube_path = project_folder() / "tube.kvel";
    ASSERT_FALSE(WriteProject(*tube, tube_path));
    const auto t = opened(tube_path);
    EXPECT_EQ(t->section_form, "Tube");
    EXPECT_EQ(t->standard_section, kFalse);
    auto circle_before = example_beam();
    circle_before->section_form = "Tube";
    LoadDialogs dialogs;
    ASSERT_FALSE(ReadProject(*circle_before, path, dialogs));
    EXPECT_EQ(circle_before->section_form, "Firk");
}

TEST(ProjectFile, OneSpanHasNoInteriorNode)
{
    const fs::path path = project_folder() / "one_span.kvel";
    ASSERT_FALSE(WriteProject(*cantilever(6.0F), path));
    const auto m = opened(path);
    EXPECT_EQ(m->nf, 1);
    EXPECT_EQ(m->nnodes, 2);
    EXPECT_EQ(m->nsup, 2);
}

TEST(ProjectFile, SavingTwiceGivesTheSameBytesAndReplacesTheFileWhole)
{
    auto m = loaded_beam();
    m->psi0_1_index = 3;
    const fs::path path = project_folder() / "twice.kvel";
    write_bytes(path, Bytes(40000, std::byte{0x5A})); // a longer file was there before
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(m->setup.setup_table[0].psi0_1_index, 3); // the active factors go into the setup row
    const Bytes first = file_bytes(path);
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(file_bytes(path), first);
    EXPECT_EQ(first, project_bytes(*m)); // no tail of the old file
    EXPECT_FALSE(fs::exists(path.string() + ".new"));

    // The old file is replaced, never written over: a second name for it still
    // shows the old bytes.
    const fs::path old_name = project_folder() / "twice_old.kvel";
    fs::remove(old_name);
    fs::create_hard_link(path, old_name);
    m->G.uni_q(1) = 9.5F;
    ASSERT_FALSE(WriteProject(*m, path));
    EXPECT_EQ(file_bytes(old_name), first);
    EXPECT_NE(file_bytes(path), first);
}

TEST(ProjectFile, AFailedSaveChangesNothing)
{
    auto m = loaded_beam();
    m->psi0_1_index = 4;
    const Model before = *m;

    const auto no_folder = WriteProject(*m, project_folder() / "missing" / "x.kvel");
    ASSERT_TRUE(no_folder);
    EXPECT_EQ(no_folder->kind, ProjectFailure::Kind::Unwritable);
    EXPECT_TRUE(*m == before);

    const fs::path folder_in_the_way = project_folder() / "taken.kvel";
    fs::create_directories(folder_in_the_way / "inside");
    ASSERT_TRUE(WriteProject(*m, folder_in_the_way));
    EXPECT_TRUE(fs::is_directory(folder_in_the_way / "inside"));
    EXPECT_TRUE(*m == before);

    m->prosjekt_s.assign(70000, 'x');
    const auto too_long = WriteProject(*m, project_folder() / "long.kvel");
    ASSERT_TRUE(too_long);
    EXPECT_EQ(too_long->kind, ProjectFailure::Kind::TooLong);
    EXPECT_FALSE(fs::exists(project_folder() / "long.kvel"));
    EXPECT_EQ(project_message("Eng", *too_long).text,
              "Can't save " + (project_folder() / "long.kvel").string() +
                  ": a text of the project record is longer than a project file can hold.");
}

TEST(ProjectFile, BytesAfterTheLastBlockAreIgnored)
{
    auto saved = loaded_beam();
    Bytes b = project_bytes(*saved);
    b.insert(b.end(), 3000, std::byte{0xEE}); // the tail an older save left behind
    const fs::path path = project_folder() / "tail.kvel";
    write_bytes(path, b);
    const auto m = opened(path);
    EXPECT_EQ(m->G, saved->G);
}

TEST(ProjectFile, SpareTextsAreSkippedWhateverTheyHold)
{
    auto saved = loaded_beam();
    Bytes b = project_bytes(*saved);
    ASSERT_EQ(b[5], std::byte{0}); // the setup's spare text follows the language "Eng"
    const Bytes spare = {std::byte{3}, std::byte{0}, std::byte{'a'}, std::byte{'b'}, std::byte{'c'}};
    b.erase(b.begin() + 5, b.begin() + 7);
    b.insert(b.begin() + 5, spare.begin(), spare.end());
    auto m = example_beam();
    LoadDialogs dialogs;
    const auto why = ReadProjectBytes(*m, b, dialogs);
    ASSERT_FALSE(why) << *why;
    EXPECT_EQ(m->G, saved->G);
    EXPECT_EQ(m->setup.setup_table, saved->setup.setup_table);
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
        good = project_bytes(*loaded_beam());
    }

    // Opens `bytes` as a file; the failure, after checking that nothing changed.
    ProjectFailure open_damaged(const Bytes& bytes)
    {
        const fs::path path = project_folder() / "damaged.kvel";
        write_bytes(path, bytes);
        const auto failed = ReadProject(*m, path, dialogs);
        EXPECT_TRUE(failed);
        EXPECT_TRUE(*m == *before);
        EXPECT_EQ(dialogs[1].frames, dialogs_before[1].frames);
        return failed.value_or(ProjectFailure{ProjectFailure::Kind::Unreadable, {}, {}});
    }

    // The offset of a field in the record of `good`, as laid out by hand
    // for empty texts and one-letter supports.
    std::size_t record(std::size_t offset) const { return good.size() - 2450 + offset; }

    void put_i16(Bytes& b, std::size_t at, std::int16_t v)
    {
        b[at] = static_cast<std::byte>(v & 0xFF);
        b[at + 1] = static_cast<std::byte>((v >> 8) & 0xFF);
    }

    std::unique_ptr<Model> m;
    std::unique_ptr<Model> before;
    LoadDialogs dialogs;
    LoadDialogs dialogs_before;
    Bytes good;
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

TEST_F(DamagedProject, EveryTruncationIsRefusedAsNoProject)
{
    // Every length short of the whole record: the cut falls in every block.
    for (std::size_t length = 0; length < good.size(); length += (length < 600 ? 1 : 37)) {
        const Bytes cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length));
        LoadDialogs d;
        const auto why = ReadProjectBytes(*m, cut, d);
        ASSERT_TRUE(why) << "length " << length;
        ASSERT_TRUE(*m == *before) << "length " << length;
    }
    const ProjectFailure f = open_damaged(Bytes(good.begin(), good.end() - 1));
    EXPECT_EQ(f.kind, ProjectFailure::Kind::NotAProject);
    EXPECT_EQ(project_message("Eng", f).text, "Input file not compatible with Ferrelt Version  1.3.0");
    EXPECT_NE(f.detail.find("the project record"), std::string::npos) << f.detail;
}

TEST_F(DamagedProject, CountsAndChoicesBeyondTheirBoundsAreRefused)
{
    struct Case {
        const char* what;
        std::size_t offset;
        std::int16_t value;
    };
    const Case cases[] = {
        {"nf 0", 4, 0},
        {"nf 6", 4, 6},
        {"loadcomb_option 3", 430, 3},
        {"self weight 1", 436, 1},
        {"G_uni_n 6", 610, 6},
        {"G_trap_n 11", 832, 11},
        {"Q1_mom_n 7", 1680, 7},
        {"Q2_uni_n -1", 1718, -1},
        {"Q2_mom_n 7", 2102, 7},
        {"standard_section 2", 2214, 2},
        {"duration_class 0", 2228, 0},
        {"service_class 4", 2230, 4},
        {"vipping_off 5", 2422, 5},
    };
    for (const Case& c : cases) {
        Bytes b = good;
        put_i16(b, record(c.offset), c.value);
        EXPECT_EQ(open_damaged(b).kind, ProjectFailure::Kind::NotAProject) << c.what;
    }

    for (const std::size_t letter : {record(52), record(55)}) {
        Bytes support = good;
        support[letter] = std::byte{'X'};
        EXPECT_EQ(open_damaged(support).kind, ProjectFailure::Kind::NotAProject);
    }
    Bytes rule = good;
    rule[record(435)] = std::byte{'c'};
    EXPECT_EQ(open_damaged(rule).kind, ProjectFailure::Kind::NotAProject);
    Bytes form = good;
    form[record(2236)] = std::byte{'f'};
    EXPECT_EQ(open_damaged(form).kind, ProjectFailure::Kind::NotAProject);
    Bytes long_support = good;
    put_i16(long_support, record(50), 3000); // a count that runs far past its field
    EXPECT_EQ(open_damaged(long_support).kind, ProjectFailure::Kind::NotAProject);
    Bytes nan = good;
    for (std::size_t k = 0; k < 4; ++k) {
        nan[record(6 + 4 + k)] = std::byte{0xFF}; // ffl_s(1)
    }
    EXPECT_NE(open_damaged(nan).detail.find("no number"), std::string::npos);
    Bytes infinite = good;
    for (const auto& [k, v] : {std::pair{0, 0x00}, {1, 0x00}, {2, 0x80}, {3, 0x7F}}) {
        infinite[record(2232 + static_cast<std::size_t>(k))] = std::byte(v); // ksys
    }
    EXPECT_EQ(open_damaged(infinite).kind, ProjectFailure::Kind::NotAProject);
    Bytes far_span = good;
    for (const auto& [k, v] : {std::pair{0, 0x00}, {1, 0x40}, {2, 0x1C}, {3, 0x47}}) {
        far_span[record(522 + 4 + static_cast<std::size_t>(k))] = std::byte(v); // G_uni_span(1) = 40000
    }
    EXPECT_EQ(open_damaged(far_span).kind, ProjectFailure::Kind::NotAProject);
}

TEST_F(DamagedProject, SelectionsOutsideTheirCataloguesAreRefused)
{
    ProjectFile f = decode_project(good);
    f.material_row = static_cast<std::int16_t>(f.materials.last_row + 1);
    EXPECT_EQ(open_damaged(encode_project(f)).kind, ProjectFailure::Kind::NotAProject);
    f = decode_project(good);
    f.prof_index = static_cast<std::int16_t>(f.profiles.last_row + 1);
    EXPECT_EQ(open_damaged(encode_project(f)).kind, ProjectFailure::Kind::NotAProject);
    f = decode_project(good);
    f.prof_type_index = 4;
    EXPECT_EQ(open_damaged(encode_project(f)).kind, ProjectFailure::Kind::NotAProject);

    // The rows in use must hold numbers a calculation can use; other rows need not.
    f = decode_project(good);
    f.materials.rows[static_cast<std::size_t>(f.material_row)].fvk = 0.0F;
    EXPECT_NE(open_damaged(encode_project(f)).detail.find("no usable fv,k"), std::string::npos);
    f = decode_project(good);
    f.setup.setup_table[static_cast<std::size_t>(f.setup.setup_row)].gamma_lam = 0.0F;
    EXPECT_NE(open_damaged(encode_project(f)).detail.find("gamma_M laminated"), std::string::npos);
    f = decode_project(good);
    f.materials.rows[0].fmk = 0.0F;
    f.setup.setup_table[10].kcr_timb = 0.0F;
    LoadDialogs d;
    EXPECT_FALSE(ReadProjectBytes(*m, encode_project(f), d));
}

TEST(ProjectFile, CountsOfRowsBeyondATableStopAtTheTable)
{
    // The reader of the setup file counted a twelfth annex it did not keep, and
    // saved that count; opening such a file must not reach past the table.
    ProjectFile f = decode_project(project_bytes(*example_beam()));
    f.setup.setup_last_row = 11;
    f.setup.setup_row = 11;
    f.materials.last_row = 150;
    const Bytes b = encode_project(f);
    auto m = example_beam();
    LoadDialogs dialogs;
    ASSERT_FALSE(ReadProjectBytes(*m, b, dialogs));
    EXPECT_EQ(m->setup.setup_last_row, FileDatabase::kRows - 1);
    EXPECT_EQ(m->material_table.last_row, MaterialTable::kRows - 1);
    EXPECT_EQ(m->setup.setup_row, 0); // a row the table does not hold falls back to the first
    EXPECT_EQ(m->annex, "Nor");
}

} // namespace
} // namespace kvelder::test
