// The file menu: what open, save and new leave in the session, the recent
// files and on disk.

#include "files/path_text.h"
#include "files/project_file.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/file_command.h"
#include "ui/load_checks.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

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

void recalculated(Model& m)
{
    RecordingScreen screen;
    MainCalc(m, screen, scratch_folder());
}

fs::path empty_folder(const std::string& name)
{
    const fs::path folder = scratch_folder() / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

std::string contents(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
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

} // namespace
} // namespace kvelder::test
