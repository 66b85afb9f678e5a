// The braces and factors of the buckling check: what the window keeps from a
// beam that changed under them, and what it refuses.

#include "tests/support/beams.h"
#include "ui/edits.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(BucklingData, ASpanWithoutLengthGetsItsBracesWithItAndRefusedValuesNeverReachTheBeam)
{
    auto m = example_beam();
    LoadDialogs d = load_dialogs(*m);
    set_buckling_check(*m, true);
    ASSERT_FALSE(set_l_stag(*m, 1, 2.5F));
    EXPECT_FALSE(window_box_failure(*m));

    // A new span has no length when the braces are reset; its length brings them.
    choose_span_count(*m, 3, d);
    set_l_stag(*m, 1, 2.5F);
    set_span_length(*m, 3, 4.0F, d);
    EXPECT_EQ(m->l_stag(3), 4.0F);
    // Braces the engineer set stay, also beyond a span made shorter.
    set_span_length(*m, 1, 2.0F, d);
    EXPECT_EQ(m->l_stag(1), 2.5F);
    EXPECT_EQ(check_buckling_boxes(*m).size(), 1U);

    // Braces reset while a span had no length come with the check.
    set_buckling_check(*m, false);
    m->l_stag(3) = 0;
    set_buckling_check(*m, true);
    EXPECT_EQ(m->l_stag(3), 4.0F);

    // A refused value is not taken: no result is ever calculated from it.
    const auto failure = set_lef_factor(*m, 2, 2.1F);
    ASSERT_TRUE(failure);
    EXPECT_EQ(m->lef_factor(2), 0.9F);
    EXPECT_TRUE(set_l_stag(*m, 2, 0.3F));
    EXPECT_EQ(m->l_stag(2), 5.0F);
    EXPECT_FALSE(window_box_failure(*m));
    choose_load_location(*m, 2); // no option of the dialog
    EXPECT_EQ(m->load_location, 0);
}

} // namespace
} // namespace kvelder::test
