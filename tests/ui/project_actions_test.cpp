// New, open and save as the window and kvelder-cli do them.

#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/load_checks.h"
#include "ui/project_actions.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

std::vector<Message> recalculated(Model& m)
{
    RecordingScreen screen;
    MainCalc(m, screen, scratch_folder());
    return screen.messages;
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
