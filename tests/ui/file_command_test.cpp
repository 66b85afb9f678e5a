// The file menu: what open, save and new leave in the session, the recent
// files and on disk.

#include "files/project_file.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/file_command.h"
#include "ui/load_checks.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

using MemoryStore = RecentFilesInMemory;

using Paths = std::vector<std::string>;

Paths paths(const MemoryStore& s)
{
    Paths out;
    for (const std::string& caption : ShowRecentFiles(s)) {
        out.push_back(recent_file_path(caption));
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

TEST(FileCommand, SavingAndOpeningKeepTheRecentFilesAndTheChangeMark)
{
    const fs::path folder = empty_folder("file_command_flow");
    const std::string a = (folder / "a.kvel").string();
    const std::string b = (folder / "b.kvel").string();
    MemoryStore recent;
    recent.keys = {{1, "X"}, {2, "Y"}};

    auto m = example_beam();
    recalculated(*m);
    ProjectSession s;
    mark_unchanged(*m, s);
    EXPECT_FALSE(has_unsaved_changes(*m, s));
    m->G.uni_q(1) = 3.0F;
    recalculated(*m);
    EXPECT_TRUE(has_unsaved_changes(*m, s));

    ASSERT_FALSE(save_file(*m, s, a, true, recent));
    EXPECT_EQ(window_title(*m, s), m->title_suffix + a);
    EXPECT_EQ(s.current_dir, folder);
    EXPECT_EQ(paths(recent), (Paths{a, "X", "Y"}));
    EXPECT_FALSE(has_unsaved_changes(*m, s));
    recalculated(*m); // the run after a save must not ask the question again
    EXPECT_FALSE(has_unsaved_changes(*m, s));

    ASSERT_FALSE(save_file(*m, s, b, true, recent));
    ASSERT_FALSE(save_file(*m, s, s.project_path, false, recent));
    EXPECT_EQ(paths(recent), (Paths{b, a, "X", "Y"}));

    auto opened = example_beam();
    ProjectSession t;
    LoadDialogs dialogs;
    ASSERT_FALSE(open_file(*opened, t, a, dialogs, recent));
    EXPECT_EQ(t.project_path, a);
    EXPECT_EQ(paths(recent), (Paths{a, b, "X", "Y"}));
    recalculated(*opened);
    mark_unchanged(*opened, t);
    EXPECT_FALSE(has_unsaved_changes(*opened, t));
    opened->Q1.uni_q(2) = 6.0F;
    EXPECT_TRUE(has_unsaved_changes(*opened, t));
}

TEST(FileCommand, AFailedOpenChangesNothing)
{
    const fs::path folder = empty_folder("file_command_missing");
    auto m = example_beam();
    recalculated(*m);
    ProjectSession s{"/old/beam.kvel", "/old", {}};
    mark_unchanged(*m, s);
    MemoryStore recent;
    recent.keys = {{1, "/old/beam.kvel"}};
    LoadDialogs dialogs = load_dialogs(*m);

    const Model model_before = *m;
    const ProjectSession session_before = s;
    const LoadDialogs dialogs_before = dialogs;
    const auto message = open_file(*m, s, folder / "gone.kvel", dialogs, recent);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->text, " Can't find file ");
    EXPECT_TRUE(*m == model_before);
    EXPECT_EQ(dialogs, dialogs_before);
    EXPECT_EQ(s.project_path, session_before.project_path);
    EXPECT_EQ(s.current_dir, session_before.current_dir);
    EXPECT_EQ(s.unchanged, session_before.unchanged);
    EXPECT_EQ(paths(recent), (Paths{"/old/beam.kvel"}));
}

TEST(FileCommand, AFailingBoxOrAFailedSaveLeavesFileAndSessionAsTheyWere)
{
    const fs::path folder = empty_folder("file_command_refused");
    const fs::path path = folder / "beam.kvel";
    MemoryStore recent;
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

    const float width = m->section_b;
    m->section_b = 0.0F;
    auto refused = save_file(*m, s, s.project_path, false, recent);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->text, " b =< 0 ");
    as_saved();

    m->section_b = width;
    m->bearing_kc90(m->nnodes) = 0.0F; // the last node's bearing too
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
    MemoryStore recent;

    m->setup.setup_language = "Nor";
    new_file(*m, s, dialogs);
    EXPECT_EQ(s.project_path, "New file");
    m->setup.setup_language = "Eng";
    new_file(*m, s, dialogs);
    EXPECT_EQ(s.project_path, "New File");
    EXPECT_EQ(s.current_dir, folder);

    recalculated(*m);
    ASSERT_FALSE(save_file(*m, s, s.project_path, false, recent));
    EXPECT_TRUE(fs::exists(folder / "New File"));
    EXPECT_EQ(s.project_path, (folder / "New File").string());
    EXPECT_EQ(paths(recent), (Paths{s.project_path}));
}

TEST(FileCommand, NamesFromTheCommandLineTheDialogAndTheMenu)
{
    EXPECT_EQ(command_line_path("\"/home/p/two words.kvel\""), "/home/p/two words.kvel");
    EXPECT_EQ(command_line_path("beam.kvel"), "beam.kvel");
    EXPECT_EQ(command_line_path("\"beam.kvel"), "\"beam.kvel");
    EXPECT_EQ(command_line_path("\""), "\"");

    EXPECT_EQ(with_default_extension("/p/beam"), fs::path("/p/beam.kvel"));
    EXPECT_EQ(with_default_extension("/p/beam.kvel"), fs::path("/p/beam.kvel"));
    EXPECT_EQ(with_default_extension("/p.d/beam"), fs::path("/p.d/beam.kvel"));

    EXPECT_EQ(menu_text("1. /R&D/a&&b.kvel"), "1. /R&&D/a&&&&b.kvel");
}

} // namespace
} // namespace kvelder::test
