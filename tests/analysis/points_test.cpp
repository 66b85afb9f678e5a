// Calculation points: the regular division, the points of concentrated loads,
// thinning and sorting.

#include "analysis/points.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kvelder::test {
namespace {

std::vector<float> interior(const Model& m, int span)
{
    std::vector<float> x;
    for (int j = 3; j <= m.nxtot_s(span); ++j) {
        x.push_back(m.xl_s(span, j));
    }
    EXPECT_TRUE(std::is_sorted(x.begin(), x.end())) << "span " << span;
    return x;
}

int count_near(const std::vector<float>& x, float value)
{
    return static_cast<int>(
        std::count_if(x.begin(), x.end(), [&](float v) { return std::fabs(v - value) < 1e-5F; }));
}

TEST(Grid, SpanWithoutConcentratedLoadsKeepsItsRegularPoints)
{
    auto m = make_beam({5.0F, 2.0F});
    add_uniform(m->G, 1, 3.0F);
    add_trapezoid(m->Q1, 2, 1.0F, 2.0F, 0.5F, 1.5F);
    build_calculation_grids(*m);

    for (int i = 1; i <= 2; ++i) {
        const float L = m->ffl_s(i);
        ASSERT_EQ(m->nxtot_s(i), 51);
        EXPECT_EQ(m->xl_s(i, 1), 0.0F);
        EXPECT_EQ(m->xl_s(i, 2), L);
        const auto x = interior(*m, i);
        EXPECT_NEAR(x.front(), L / 50, 1e-6);
        EXPECT_NEAR(x.back(), 49 * L / 50, 1e-5);
        EXPECT_EQ(m->nxtot10_s(i), 11);
        EXPECT_NEAR(m->xl10_s(i, 11), 9 * L / 10, 1e-5);
    }
}

TEST(Grid, ConcentratedLoadsOfGAndQ1AddTheirPositionAndOneJustLeftOfIt)
{
    auto m = make_beam({5.0F, 4.0F});
    add_point(m->G, 1, 10.0F, 1.23F);
    add_moment(m->Q1, 2, 2.0F, 3.33F);
    // On a regular point (10 dx) only a - 0.001 is new; a second load at 1.23 adds nothing.
    add_point(m->Q1, 1, 1.0F, 1.0F);
    add_moment(m->G, 1, 4.0F, 1.23F);
    build_calculation_grids(*m);

    EXPECT_EQ(m->nxtot_s(1), 51 + 2 + 1);
    EXPECT_EQ(m->nxtot_s(2), 51 + 2);
    const auto x1 = interior(*m, 1);
    for (const float at : {1.23F, 1.229F, 1.0F, 0.999F}) {
        EXPECT_EQ(count_near(x1, at), 1) << at;
    }
    EXPECT_EQ(count_near(interior(*m, 2), 3.329F), 1);
}

TEST(Grid, LoadsOfQ2AddNoPointThoughTheirListsAreFilled)
{
    auto m = make_beam({4.0F, 4.0F});
    add_point(m->Q2, 1, 7.0F, 2.77F);
    add_moment(m->Q2, 2, 7.0F, 0.55F);
    build_calculation_grids(*m);

    EXPECT_EQ(m->nxtot_s(1), 51);
    EXPECT_EQ(m->nxtot_s(2), 51);
    EXPECT_EQ(m->Q2_points.pt_count(1), 2);
    EXPECT_EQ(m->Q2_points.mom_count(2), 2);
}

TEST(Grid, CoarseGridTakesTheLoadPointsUnsortedAndUnthinned)
{
    auto m = make_beam({5.0F});
    add_point(m->G, 1, 10.0F, 1.23F);
    add_point(m->G, 1, 10.0F, 1.0F);
    build_calculation_grids(*m);
    ASSERT_EQ(m->nxtot10_s(1), 15);
    EXPECT_FLOAT_EQ(m->xl10_s(1, 12), 1.229F);
    EXPECT_FLOAT_EQ(m->xl10_s(1, 15), 1.0F);
}

TEST(Grid, PointsBelowZeroDropOut)
{
    auto m = make_beam({5.0F});
    add_point(m->G, 1, 10.0F, 0.0005F);
    build_calculation_grids(*m);
    EXPECT_EQ(m->nxtot_s(1), 52);
    EXPECT_GT(interior(*m, 1).front(), 0.0F);
}

TEST(Grid, RebuildingAfterALoadIsRemovedLeavesNoTrace)
{
    auto m = make_beam({5.0F, 5.0F});
    add_point(m->G, 2, 10.0F, 1.23F);
    add_moment(m->Q1, 1, 3.0F, 4.44F);
    build_calculation_grids(*m);
    ASSERT_EQ(m->nxtot_s(2), 53);

    m->G.pt_n = 0;
    m->Q1.mom_n = 0;
    build_calculation_grids(*m);
    EXPECT_EQ(m->nxtot_s(1), 51);
    EXPECT_EQ(m->nxtot_s(2), 51);
    EXPECT_EQ(m->nxtot10_s(2), 11);
}

TEST(NormaliseGrid, ThinsPointsWithinATenthOfAMillimetreAndSorts)
{
    auto m = make_beam({1.0F});
    GridCounts counts;
    GridPositions x;
    counts(1) = 7;
    const float raw[] = {0, 1, 0.5F, 0.25F, 0.50009F, 0.75F, 0.2502F};
    for (int k = 0; k < 7; ++k) {
        x(1, 1 + k) = raw[k];
    }
    normalise_grid(*m, counts, 4, x);

    ASSERT_EQ(counts(1), 6);
    const float expected[] = {0.25F, 0.2502F, 0.5F, 0.75F};
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(x(1, 3 + k), expected[k]);
    }
}

} // namespace
} // namespace kvelder::test
