// Calculation points: the regular division and the points of concentrated
// loads, thinned and sorted.

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

TEST(Grid, RegularPointsAndTwoForEachConcentratedLoadOfGAndQ1)
{
    auto m = make_beam({5.0F, 4.0F, 2.0F});
    add_point(m->G, 1, 10.0F, 1.23F);
    add_moment(m->Q1, 2, 2.0F, 3.33F);
    // On a regular point (10 dx) only a - 0.001 is new; a second load at 1.23 adds nothing.
    add_point(m->Q1, 1, 1.0F, 1.0F);
    add_moment(m->G, 1, 4.0F, 1.23F);
    // A point 1 mm left of the load would lie before the span: it drops out.
    add_point(m->G, 2, 1.0F, 0.0005F);
    // Q2 keeps lists of its own but adds no point; a trapezoid adds none either.
    add_point(m->Q2, 3, 7.0F, 0.77F);
    add_moment(m->Q2, 3, 7.0F, 0.55F);
    add_trapezoid(m->Q1, 3, 1.0F, 2.0F, 0.5F, 1.5F);
    build_calculation_grids(*m);

    EXPECT_EQ(m->nxtot_s(1), 51 + 2 + 1);
    EXPECT_EQ(m->nxtot_s(2), 51 + 2 + 1);
    ASSERT_EQ(m->nxtot_s(3), 51);
    EXPECT_EQ(m->Q2_points.pt_count(3), 2);
    EXPECT_EQ(m->Q2_points.mom_count(3), 2);
    const auto x1 = interior(*m, 1);
    for (const float at : {1.23F, 1.229F, 1.0F, 0.999F}) {
        EXPECT_EQ(count_near(x1, at), 1) << at;
    }
    const auto x2 = interior(*m, 2);
    EXPECT_EQ(count_near(x2, 3.329F), 1);
    EXPECT_GT(x2.front(), 0.0F);

    EXPECT_EQ(m->xl_s(3, 1), 0.0F);
    EXPECT_EQ(m->xl_s(3, 2), 2.0F);
    const auto x3 = interior(*m, 3);
    EXPECT_NEAR(x3.front(), 2.0 / 50, 1e-6);
    EXPECT_NEAR(x3.back(), 49 * 2.0 / 50, 1e-5);
    EXPECT_EQ(m->nxtot10_s(3), 11);
    EXPECT_NEAR(m->xl10_s(3, 11), 9 * 2.0 / 10, 1e-5);
    // The coarse grid takes the load points as they come, unsorted and unthinned.
    ASSERT_EQ(m->nxtot10_s(1), 11 + 6);
    EXPECT_FLOAT_EQ(m->xl10_s(1, 12), 1.229F);
    EXPECT_FLOAT_EQ(m->xl10_s(1, 15), 1.0F);

    // Rebuilt without the concentrated loads, the grids keep no trace of them.
    m->G.pt_n = m->G.mom_n = m->Q1.pt_n = m->Q1.mom_n = 0;
    build_calculation_grids(*m);
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(m->nxtot_s(i), 51);
        EXPECT_EQ(m->nxtot10_s(i), 11);
    }
}

} // namespace
} // namespace kvelder::test
