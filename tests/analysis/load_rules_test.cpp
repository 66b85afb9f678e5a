// The rules of the load drivers that beam theory alone does not fix: the self
// weight of G, concentrated moments on a node, loads at the very ends, and rows
// that stand on no span of the beam.

#include "analysis/fixed_member.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <vector>

namespace kvelder::test {
namespace {

float total_reaction(const Model& m)
{
    float sum = 0;
    for (int k = 1; k <= m.nsup; ++k) {
        sum += m.C_R(k);
    }
    return sum;
}

struct WeightCase {
    const char* what;
    std::int16_t weight_on;
    std::vector<std::pair<int, float>> G_rows, Q1_rows; // uniform (span, q)
    double total;                                       // spans of 4 and 6 m, weight 0.5 kN/m
};

class SelfWeight : public ::testing::TestWithParam<WeightCase> {};

TEST_P(SelfWeight, GoesWhereTheUniformRowsOfGLetIt)
{
    const WeightCase& c = GetParam();
    auto m = make_beam({4.0F, 6.0F});
    m->profile_weight_on = c.weight_on;
    m->selfweight_q.fill(0.5F);
    for (const auto& [span, q] : c.G_rows) {
        add_uniform(m->G, span, q);
    }
    for (const auto& [span, q] : c.Q1_rows) {
        add_uniform(m->Q1, span, q);
    }
    recalculate(*m);
    EXPECT_NEAR(total_reaction(*m), c.total, 1e-4) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SelfWeight,
    ::testing::Values(
        WeightCase{"fewer rows than spans: every span", kTrue, {{2, 3.0F}}, {}, 0.5 * 10 + 3.0 * 6},
        WeightCase{"no rows: every span", kTrue, {}, {}, 0.5 * 10},
        // With a row for every span the weight rides on the rows: twice on span 1, none on span 2.
        WeightCase{"two rows on span 1", kTrue, {{1, 3.0F}, {1, 1.0F}}, {}, (3.0 + 1.0 + 2 * 0.5) * 4},
        WeightCase{"switched off", kFalse, {{1, 3.0F}}, {}, 12},
        WeightCase{"only G carries it", kTrue, {}, {{1, 3.0F}}, 0.5 * 10 + 12}));

// Support moments of a two-span beam under a nodal moment at node 2.
std::pair<float, float> node_moment_result(std::initializer_list<std::pair<int, float>> rows)
{
    auto m = make_beam({4.0F, 4.0F});
    for (const auto& [span, M] : rows) {
        add_moment(m->G, span, M, span == 1 ? 4.0F : 0.0F);
    }
    recalculate(*m);
    return {m->C_R(1), m->C_M(1, 2)};
}

TEST(NodalMoments, TheLaterRowOnANodeReplacesTheEarlier)
{
    const auto only_second = node_moment_result({{2, 7.0F}});
    const auto both = node_moment_result({{1, 5.0F}, {2, 7.0F}});
    const auto reversed = node_moment_result({{2, 7.0F}, {1, 5.0F}});
    const auto only_first = node_moment_result({{1, 5.0F}});

    EXPECT_NE(only_second.first, 0.0F);
    EXPECT_EQ(both, only_second);
    EXPECT_EQ(reversed, only_first);
}

TEST(NodalMoments, EndMomentOnASimpleSpanEndTurnsTheBeam)
{
    // A clockwise moment on the left node of a simple span: the left support pulls down.
    auto m = make_beam({5.0F});
    add_moment(m->G, 1, 10.0F, 0.0F);
    recalculate(*m);
    EXPECT_NEAR(m->C_R(1), -2.0, 1e-5);
    EXPECT_NEAR(m->C_R(2), 2.0, 1e-5);
}

TEST(EndLoads, PointLoadAtAnEndIsMovedOneMillimetreInForTheForces)
{
    const ShearMoment at_zero = point_load_forces(5.0F, 2.0F, 10.0F, 0.0F);
    const ShearMoment at_one_mm = point_load_forces(5.0F, 2.0F, 10.0F, 0.001F);
    EXPECT_EQ(at_zero.shear, at_one_mm.shear);
    EXPECT_EQ(at_zero.moment, at_one_mm.moment);
    EXPECT_EQ(point_load_deflection(5.0F, 2.0F, 10.0F, 0.0F), 0.0);
    EXPECT_EQ(point_load_deflection(5.0F, 2.0F, 10.0F, 5.0F), 0.0);
    EXPECT_NE(point_load_deflection(5.0F, 2.0F, 10.0F, 0.001F), 0.0);
}

TEST(RowsOffTheBeam, ARowOnASpanThatIsNotThereChangesNothing)
{
    auto reference = make_beam({4.0F, 4.0F});
    add_uniform(reference->G, 1, 2.0F);
    add_uniform(reference->G, 2, 2.0F);
    add_uniform(reference->Q1, 1, 3.0F);
    recalculate(*reference);

    auto m = make_beam({4.0F, 4.0F});
    add_uniform(m->G, 1, 2.0F);
    add_uniform(m->G, 2, 2.0F);
    add_uniform(m->Q1, 1, 3.0F);
    // A row left behind on span 3 of an earlier beam, and one with no span at all.
    add_point(m->G, 3, 50.0F, 1.0F);
    add_trapezoid(m->G, 0, 1.0F, 1.0F, 0.0F, 1.0F);
    add_moment(m->Q1, 7, 5.0F, 1.0F);
    recalculate(*m);

    EXPECT_EQ(m->C_R, reference->C_R);
    EXPECT_EQ(m->M_max, reference->M_max);
    EXPECT_EQ(m->W_min, reference->W_min);
}

} // namespace
} // namespace kvelder::test
