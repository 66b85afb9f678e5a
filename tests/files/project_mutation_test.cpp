// Thousands of damaged versions of real project files: each one opens or is
// refused, a refused one changes nothing, and an opened one recalculates.

#include "files/project_file.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "tests/support/damaged_projects.h"
#include "ui/input_checks.h"

#include <gtest/gtest.h>

#include <random>

namespace kvelder::test {
namespace {

TEST(ProjectMutation, EveryDamagedFileOpensOrChangesNothing)
{
    const auto base = example_beam();
    const std::vector<Bytes> seeds = seed_projects();
    std::mt19937 rng(20261122);
    auto m = std::make_unique<Model>();
    int opened = 0, refused = 0;
    for (int trial = 0; trial < 2000; ++trial) {
        const Bytes damaged = damage(seeds[static_cast<std::size_t>(trial) % seeds.size()], rng);
        *m = *base;
        LoadDialogs dialogs;
        const auto why = ReadProjectBytes(*m, damaged, dialogs);
        if (why) {
            ++refused;
            ASSERT_FALSE(why->empty());
            ASSERT_TRUE(*m == *base) << "trial " << trial << ": refused (" << *why
                                     << ") but changed the model";
            continue;
        }
        ++opened;
        // What the window does next: the checks of the boxes, then the recalculation.
        check_all_boxes(*m);
        RecordingScreen screen;
        MainCalc(*m, screen, scratch_folder());
        ASSERT_EQ(m->nnodes, m->nf + 1) << "trial " << trial;
    }
    // Both outcomes occur often enough for the test to mean something.
    EXPECT_GT(opened, 400);
    EXPECT_GT(refused, 400);
}

} // namespace
} // namespace kvelder::test
