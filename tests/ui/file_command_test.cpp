// The file menu: what open, save and new leave in the beam, the session, the
// four recent files and on disk, as the window and kvelder-cli do them.

#include "files/path_text.h"
#include "files/project_file.h"
#include "files/recent_files.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/file_command.h"
#include "ui/load_checks.h"
#include "ui/project_actions.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

Paths paths(const RecentFilesInMemory& s)
{
    Paths out;
    for (const std::string& caption : ShowRecentFiles(s)) {
        out.push_back(utf8_text(recent_file_path(caption)));
    }
    return out;
}

std::vector<Message> recalculated(Model& m)
{
    RecordingScreen screen;
    MainCalc(m, screen, scratch_folder());
    return screen.messages;
}

TEST(RecentFiles, AFreshUserHasNoneAndOpeningReordersTheList)
{
    RecentFilesInMemory s;
    EXPECT_TRUE(ShowRecentFiles(s).empty());
    s.keys[2] = "/a.kvel"; // without a first entry the list stays hidden
    EXPECT_TRUE(ShowRecentFiles(s).empty());

    s.keys = {{1, "A"}, {2, "B"}, {3, "C"}, {4, "D"}};
    MoveRecentFile(s, "A");
    EXPECT_EQ(paths(s), (Paths{"A", "B", "C", "D"}));
    MoveRecentFile(s, "C");
    EXPECT_EQ(paths(s), (Paths{"C", "A", "B", "D"}));
    MoveRecentFile(s, "D");
    EXPECT_EQ(paths(s), (Paths{"D", "C", "A", "B"}));
    MoveRecentFile(s, "E");
    EXPECT_EQ(paths(s), (Paths{"E", "D", "C", "A"}));
    EXPECT_EQ(s.keys.size(), 4U); // the fourth drops out, no fifth key

    // Names beyond the code page come back from their captions letter for letter.
    const std::string loft = "bjelke p\u00e5 loftet.kvel", euro = "B\u201312 \u20ac.kvel";
    RecentFilesInMemory named;
    named.keys = {{1, path_from_utf8(loft)}, {2, path_from_utf8(euro)}};
    MoveRecentFile(named, path_from_utf8("\u03a9-bjelke.kvel"));
    MoveRecentFile(named, path_from_utf8(euro));
    EXPECT_EQ(paths(named), (Paths{euro, "\u03a9-bjelke.kvel", loft}));
}

fs::path empty_folder(const std::string& name)
{
    const fs::path folder = scratch_folder() / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

TEST(FileCommand, SaveAndOpenTakeThePathItsFolderAndMoveItToTheFront)
{
    const fs::path folder = empty_folder("file_command_flow");
    const fs::path a = folder / "a.kvel";
    RecentFilesInMemory recent;
    auto m = example_beam();
    recalculated(*m);
    ProjectSession s;
    ASSERT_FALSE(save_file(*m, s, a, true, recent));
    EXPECT_EQ(s.current_dir, folder);
    recalculated(*m); // the run after a save must not ask the question again
    EXPECT_FALSE(has_unsaved_changes(*m, s));
    ASSERT_FALSE(save_file(*m, s, s.project_path, false, recent));

    auto opened = example_beam();
    ProjectSession t;
    LoadDialogs dialogs;
    ASSERT_FALSE(open_file(*opened, t, a, dialogs, recent));
    EXPECT_EQ(t.current_dir, folder);
    EXPECT_EQ(paths(recent),
              (Paths{utf8_text(a)})); // Save and Open find it listed, and add it no second time
}

TEST(FileCommand, ARefusedOrFailedSaveLeavesFileAndSessionAsTheyWere)
{
    const fs::path folder = empty_folder("file_command_refused");
    const fs::path path = folder / "beam.kvel";
    RecentFilesInMemory recent;
    auto m = example_beam();
    recalculated(*m);
    ProjectSession s;
    ASSERT_FALSE(save_file(*m, s, path, true, recent));
    const std::string on_disk = contents(path);
    const ProjectSession saved = s;
    const Paths listed = paths(recent);
    const auto as_saved = [&] {
        EXPECT_EQ(contents(path), on_disk);
        EXPECT_EQ(s.project_path, saved.project_path);
        EXPECT_EQ(s.current_dir, saved.current_dir);
        EXPECT_EQ(s.unchanged, saved.unchanged);
        EXPECT_EQ(paths(recent), listed);
    };

    m->bearing_kc90(m->nnodes) = 0.0F; // the boxes of the last support refuse too
    EXPECT_TRUE(save_file(*m, s, path, true, recent));
    as_saved();
    m->bearing_kc90(m->nnodes) = 1.0F;
    m->G.uni_q(1) = 3.0F;

    const auto failed = save_file(*m, s, folder / "no such folder" / "beam.kvel", true, recent);
    ASSERT_TRUE(failed);
    EXPECT_NE(failed->text.find("Can't save"), std::string::npos);
    as_saved();
    EXPECT_TRUE(has_unsaved_changes(*m, s));

    // A circle has no width box, whatever width the beam still holds.
    m->section_form = "Tube";
    m->section_b = 0.0F;
    EXPECT_FALSE(save_file(*m, s, s.project_path, false, recent));
    EXPECT_NE(contents(path), on_disk);
}

TEST(FileCommand, ANewProjectIsSavedUnderItsNameInTheCurrentFolder)
{
    const fs::path folder = empty_folder("file_command_new");
    auto m = example_beam();
    ProjectSession s;
    s.current_dir = folder;
    LoadDialogs dialogs;
    RecentFilesInMemory recent;

    m->setup.setup_language = "Nor";
    new_file(*m, s, dialogs);
    EXPECT_EQ(s.project_path, "New file");
    m->setup.setup_language = "Eng";
    new_file(*m, s, dialogs);
    recalculated(*m);
    ASSERT_FALSE(save_file(*m, s, s.project_path, false, recent));
    EXPECT_TRUE(fs::exists(folder / "New File"));
    EXPECT_EQ(s.project_path, folder / "New File");
}

TEST(FileCommand, NamesFromTheCommandLineAndTheSaveDialog)
{
    // Quotes come off only in pairs; the window opens a quoted path with blanks.
    EXPECT_EQ(command_line_path("\"beam.kvel"), "\"beam.kvel");
    EXPECT_EQ(command_line_path("\""), "\"");
    EXPECT_EQ(with_default_extension("/p/beam"), fs::path("/p/beam.kvel"));
    EXPECT_EQ(with_default_extension("/p/beam.kvel"), fs::path("/p/beam.kvel"));
    EXPECT_EQ(with_default_extension("/p.d/beam"), fs::path("/p.d/beam.kvel"));
}

TEST(OpenProject, ABeamThatCannotBeCalculatedStopsAtTheGate)
{
    // Saved while a span box was still marked wrong, or standing on two free ends.
    auto zero_span = example_beam();
    zero_span->ffl_s(2) = 0.0F;
    auto free_ends = example_beam();
    free_ends->nsupLeft_s = free_ends->nsupRight_s = kFree;
    for (Model* saved : {zero_span.get(), free_ends.get()}) {
        const fs::path path = scratch_folder() / "gate.kvel";
        ASSERT_FALSE(save_project(*saved, path));
        auto m = example_beam();
        LoadDialogs dialogs;
        ASSERT_FALSE(open_project(*m, path, dialogs));
        const std::vector<Message> messages = recalculated(*m);
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages[0].code, 500);
    }
}

// A project cut short in its last block fails after the catalogues and the
// setup were read: still nothing of it may reach the beam.
TEST(OpenProject, AFailedOpenChangesNothing)
{
    auto other = example_beam();
    other->nf = 1;
    other->G.uni_q(1) = 7.5F;
    std::vector<std::byte> bytes = project_bytes(*other);
    bytes.resize(bytes.size() - 40);
    const fs::path path = scratch_folder() / "cut.kvel";
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));

    auto m = example_beam();
    m->ffl_s(2) = 0; // flags the checks of a successful open would clear
    m->err_spans = kTrue;
    const auto before = std::make_unique<Model>(*m);
    LoadDialogs dialogs = load_dialogs(*m);
    const LoadDialogs dialogs_before = dialogs;
    const auto failed = open_project(*m, path, dialogs);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->kind, ProjectFailure::Kind::NotAProject);
    EXPECT_TRUE(open_project_bytes(*m, bytes, dialogs).has_value());
    EXPECT_TRUE(*m == *before);
    EXPECT_EQ(dialogs, dialogs_before);
}

// A beam left with no load at all holds every later run at the gate; a new or
// opened beam with loads must not inherit that.
TEST(NewProject, TheExampleBeamCalculatesAfterABeamWithoutLoads)
{
    auto m = example_beam();
    m->G = m->Q1 = m->Q2 = LoadGroup{};
    recalculated(*m);
    ASSERT_EQ(m->err_section, kTrue);
    m->ffl_s(1) = 0;
    m->err_spans = kTrue;

    LoadDialogs dialogs;
    new_project(*m, dialogs);
    EXPECT_EQ(m->loading_flag, kTrue);
    EXPECT_EQ(m->ffl_s(1), 5.0F);
    EXPECT_EQ(dialogs[0].frames[0].size(), 2U); // G's two uniform rows in their boxes
    EXPECT_EQ(dialogs[0].frames[0][1][1], "2.00");
    EXPECT_TRUE(recalculated(*m).empty());
    EXPECT_EQ(m->loading_flag, kFalse);
    EXPECT_GT(m->Uf_mom(1), 0.0F);
}

} // namespace
} // namespace kvelder::test
