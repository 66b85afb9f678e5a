// The rules of the load drivers that beam theory alone does not fix: the self
// weight of G, concentrated moments on a node, loads at the very ends, and rows
// that stand on no span of the beam.

#include "analysis/fixed_member.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <vector>

namespace kvelder::test {
namespace {

TEST(SelfWeight, GoesWhereTheUniformRowsOfGLetIt)
{
    const struct {
        const char* what;
        std::int16_t weight_on;
        std::vector<std::pair<int, float>> G_rows, Q1_rows; // uniform (span, q)
        double total;                                       // spans of 4 and 6 m, weight 0.5 kN/m
    } cases[] = {
        {"fewer rows than spans: every span", kTrue, {{2, 3.0F}}, {}, 0.5 * 10 + 3.0 * 6},
        // With a row for every span the weight rides on the rows: twice on span 1, none on span 2.
        {"two rows on span 1", kTrue, {{1, 3.0F}, {1, 1.0F}}, {}, (3.0 + 1.0 + 2 * 0.5) * 4},
        {"switched off", kFalse, {{1, 3.0F}}, {}, 12},
        {"only G carries it", kTrue, {}, {{1, 3.0F}}, 0.5 * 10 + 12},
    };
    for (const auto& c : cases) {
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
        EXPECT_NEAR(m->C_R(1) + m->C_R(2) + m->C_R(3), c.total, 1e-4) << c.what;
    }
}

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

TEST(NodalMoments, TurnTheBeamAndTheLaterRowOnANodeReplacesTheEarlier)
{
    const auto only_second = node_moment_result({{2, 7.0F}});
    const auto both = node_moment_result({{1, 5.0F}, {2, 7.0F}});
    const auto reversed = node_moment_result({{2, 7.0F}, {1, 5.0F}});
    const auto only_first = node_moment_result({{1, 5.0F}});

    // A clockwise moment on node 2 goes half into each span: the left support pulls down.
    EXPECT_NEAR(only_second.first, -7.0 / 2 / 4, 1e-5);
    EXPECT_NEAR(only_first.first, -5.0 / 2 / 4, 1e-5);
    EXPECT_EQ(both, only_second);
    EXPECT_EQ(reversed, only_first);
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
    const auto beam = [] {
        auto m = make_beam({4.0F, 4.0F});
        add_uniform(m->G, 1, 2.0F);
        add_uniform(m->G, 2, 2.0F);
        add_uniform(m->Q1, 1, 3.0F);
        return m;
    };
    auto reference = beam();
    recalculate(*reference);
    auto m = beam();
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
