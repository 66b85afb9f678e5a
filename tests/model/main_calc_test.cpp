// The recalculation as a whole: nothing survives from one run into the next.

#include "model/main_calc.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

std::unique_ptr<Model> busy_beam()
{
    auto m = make_beam({4.0F, 5.5F, 3.0F}, kBuiltIn, kFree);
    m->loadcomb_option = 2;
    m->profile_weight_on = kTrue;
    m->selfweight_q(1) = m->selfweight_q(2) = m->selfweight_q(3) = 0.3F;
    add_uniform(m->G, 2, 1.5F);
    add_trapezoid(m->G, 1, 1.0F, 4.0F, 0.5F, 3.0F);
    add_point(m->Q1, 2, 12.0F, 2.2F);
    add_uniform(m->Q1, 3, 2.0F);
    add_moment(m->Q1, 1, 3.0F, 1.0F);
    add_point(m->Q2, 3, 4.0F, 2.9F);
    return m;
}

TEST(MainCalc, TwoRunsOnTheSameBeamGiveIdenticalTables)
{
    auto m = busy_beam();
    recalculate(*m);
    const auto first = std::make_unique<Model>(*m);
    recalculate(*m);
    EXPECT_TRUE(*m == *first);
}

TEST(MainCalc, AnEarlierBeamLeavesNothingBehind)
{
    auto m = busy_beam();
    recalculate(*m);
    const auto first = std::make_unique<Model>(*m);

    // A heavier beam with more spans, and back.
    auto other = make_beam({6.0F, 6.0F, 6.0F, 6.0F, 6.0F}, kSimple, kSimple);
    other->loadcomb_option = 2;
    for (int i = 1; i <= 5; ++i) {
        add_uniform(other->Q1, i, 50.0F);
    }
    *m = *other;
    recalculate(*m);
    *m = *busy_beam();
    recalculate(*m);

    EXPECT_EQ(m->M_max, first->M_max);
    EXPECT_EQ(m->M_min, first->M_min);
    EXPECT_EQ(m->V_max, first->V_max);
    EXPECT_EQ(m->W_min, first->W_min);
    EXPECT_EQ(m->R_max, first->R_max);
    EXPECT_EQ(m->MR_min, first->MR_min);
}

TEST(MainCalc, FinishesByReleasingTheControlsAndRememberingTheSpans)
{
    auto m = busy_beam();
    m->loading_flag = kTrue;
    m->nf_previous = 1;
    recalculate(*m);
    EXPECT_EQ(m->loading_flag, kFalse);
    EXPECT_EQ(m->nf_previous, 3);
}

#ifndef NDEBUG
TEST(TableDeathTest, AnIndexOutsideATableStopsADebugBuild)
{
    Table<int, 5> t;
    Table2<int, 5, 4> t2;
    EXPECT_DEATH(t(0) = 1, "");
    EXPECT_DEATH(t(6) = 1, "");
    EXPECT_DEATH(t2(5, 5) = 1, "");
}
#endif

} // namespace
} // namespace kvelder::test
