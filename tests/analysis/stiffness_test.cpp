// Numbering, restraints, the member stiffness and the band solver.

#include "analysis/numbering.h"
#include "analysis/stiffness.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kvelder::test {
namespace {

std::unique_ptr<Model> numbered(std::initializer_list<float> spans, char left, char right)
{
    auto m = make_beam(spans, left, right);
    member_ends(*m);
    restraint_table(*m);
    return m;
}

TEST(Restraints, CantileverHoldsBothFreedomsOfItsWall)
{
    auto m = numbered({3.0F}, kBuiltIn, kFree);
    EXPECT_EQ(m->nsup, 1);
    EXPECT_EQ(m->nrestr, 2);
    EXPECT_EQ(m->restr(1, 1), 1);
    EXPECT_EQ(m->restr(2, 1), 1);
    EXPECT_EQ(m->restr(2, 2), 2);
    EXPECT_TRUE(restraints_sufficient(*m));
}

TEST(Restraints, TwoFreeEndsOnTwoSpansAreUnstable)
{
    auto m = numbered({3.0F, 3.0F}, kFree, kFree);
    EXPECT_EQ(m->nsup, 1);
    EXPECT_EQ(m->sup_node(1), 2);
    EXPECT_EQ(m->nrestr, 1);
    EXPECT_FALSE(restraints_sufficient(*m));
}

TEST(Restraints, OneSimpleSupportWithAFreeEndIsRefused)
{
    EXPECT_FALSE(restraints_sufficient(*numbered({3.0F}, kSimple, kFree)));
    EXPECT_TRUE(restraints_sufficient(*numbered({3.0F}, kSimple, kSimple)));
}

TEST(Restraints, SimpleSpanHoldsTheVerticalFreedomAtEachEnd)
{
    auto m = numbered({3.0F}, kSimple, kSimple);
    EXPECT_EQ(m->nsup, 2);
    EXPECT_EQ(m->sup_node(1), 1);
    EXPECT_EQ(m->sup_node(2), 2);
    EXPECT_EQ(m->restr(1, 1), 1);
    EXPECT_EQ(m->restr(2, 1), 1);
    EXPECT_EQ(m->restr(1, 2), 2);
    EXPECT_EQ(m->restr(2, 2), 1);
}

TEST(Restraints, InnerNodesAreSimpleWhateverTheirKindSays)
{
    auto m = make_beam({3.0F, 3.0F, 3.0F});
    m->support_kind(2) = kBuiltIn;
    m->support_kind(3) = kFree;
    member_ends(*m);
    restraint_table(*m);
    EXPECT_EQ(m->nsup, 4);
    EXPECT_EQ(m->nrestr, 4);
}

TEST(Restraints, FiveBuiltInSpansFillTheLargestBand)
{
    auto m = make_beam({2.0F, 3.0F, 4.0F, 3.0F, 2.0F}, kBuiltIn, kBuiltIn);
    assemble_and_factorise(*m);
    EXPECT_EQ(m->nrestr, 8);
    EXPECT_EQ(m->neq, 12);
    EXPECT_EQ(m->nband, 4);
    EXPECT_EQ(m->nodeA(5), 5);
    EXPECT_EQ(m->nodeB(5), 6);
    EXPECT_EQ(m->K_orig(4 * 11 + 1), 1.0); // the last diagonal, a restrained rotation
}

TEST(MemberStiffness, RigidBodyMotionsCostNoForce)
{
    const float L = 3.7F;
    const MemberStiffness s = member_stiffness(L, 1.1e7, 4.2e-4);
    const double translation[4] = {1, 0, 1, 0};
    const double rotation[4] = {0, 1, L, 1}; // rotation about A: v grows with x
    for (int r = 0; r < 4; ++r) {
        double ft = 0, fr = 0;
        for (int c = 0; c < 4; ++c) {
            EXPECT_DOUBLE_EQ(s.k[r][c], s.k[c][r]);
            ft += s.k[r][c] * translation[c];
            fr += s.k[r][c] * rotation[c];
        }
        EXPECT_NEAR(ft, 0, 1e-6 * s.k[0][0]);
        EXPECT_NEAR(fr, 0, 1e-6 * s.k[0][0] * L);
    }
}

TEST(MemberStiffness, EndMomentOfAProppedMemberIsFourEIOverL)
{
    const double E = 1.0e7, I = 2.0e-4;
    const MemberStiffness s = member_stiffness(2.0F, E, I);
    EXPECT_DOUBLE_EQ(s.k[1][1], 4 * E * I / 2.0);
    EXPECT_DOUBLE_EQ(s.k[1][3], 2 * E * I / 2.0);
    EXPECT_DOUBLE_EQ(s.k[0][0], 12 * E * I / 8.0);
}

// Full matrix-vector product of the assembled band (upper half stored).
std::vector<double> band_times(const Model& m, const std::vector<double>& x)
{
    const int n = m.neq, b = m.nband;
    std::vector<double> y(static_cast<std::size_t>(n), 0.0);
    for (int r = 1; r <= n; ++r) {
        for (int s = r; s <= std::min(n, r + b - 1); ++s) {
            const double k = m.K_orig(b * (r - 1) + (s - r) + 1);
            y[r - 1] += k * x[s - 1];
            if (s != r) {
                y[s - 1] += k * x[r - 1];
            }
        }
    }
    return y;
}

class BandSolver : public ::testing::TestWithParam<std::tuple<char, char, int>> {};

TEST_P(BandSolver, SolutionReproducesTheLoadsAndHoldsTheRestraints)
{
    const auto [left, right, spans] = GetParam();
    auto m = make_beam({4.0F}, left, right);
    m->nf = static_cast<std::int16_t>(spans);
    m->nnodes = static_cast<std::int16_t>(spans + 1);
    for (int i = 1; i <= spans; ++i) {
        m->ffl_s(i) = 2.0F + 0.7F * static_cast<float>(i);
        m->support_kind(i + 1) = kSimple;
    }
    m->support_kind(m->nnodes) = right;
    m->E_kNm2 = 1.3e7;
    for (int i = 1; i <= spans; ++i) {
        m->I_span_m4(i) = 7.75e-4;
    }
    assemble_and_factorise(*m);

    std::mt19937 rng(7);
    std::uniform_real_distribution<double> load(-50, 50);
    std::vector<double> F(static_cast<std::size_t>(m->neq));
    for (int e = 1; e <= m->neq; ++e) {
        m->F_load(e) = F[e - 1] = load(rng);
    }
    for (int r = 1; r <= m->nrestr; ++r) {
        F[2 * (m->restr(1, r) - 1) + m->restr(2, r) - 1] = 0;
    }
    solve_load_case(*m);

    std::vector<double> d(static_cast<std::size_t>(m->neq));
    for (int e = 1; e <= m->neq; ++e) {
        d[e - 1] = m->D_disp(e);
    }
    const auto back = band_times(*m, d);
    for (int e = 1; e <= m->neq; ++e) {
        EXPECT_NEAR(back[e - 1], F[e - 1], 1e-9 * 50) << "equation " << e;
    }
    for (int r = 1; r <= m->nrestr; ++r) {
        EXPECT_EQ(m->D_disp(2 * (m->restr(1, r) - 1) + m->restr(2, r)), 0.0) << "restraint " << r;
    }
}

INSTANTIATE_TEST_SUITE_P(EndsAndSpans, BandSolver,
                         ::testing::Values(std::tuple{kSimple, kSimple, 1}, std::tuple{kBuiltIn, kFree, 1},
                                           std::tuple{kFree, kBuiltIn, 2}, std::tuple{kSimple, kFree, 3},
                                           std::tuple{kBuiltIn, kBuiltIn, 4}, std::tuple{kFree, kSimple, 5},
                                           std::tuple{kBuiltIn, kSimple, 5}));

TEST(BandSolver, ZeroLoadsGiveZeroDisplacements)
{
    auto m = make_beam({3.0F, 5.0F});
    m->E_kNm2 = 1.0e7;
    m->I_span_m4(1) = m->I_span_m4(2) = 1e-4;
    assemble_and_factorise(*m);
    solve_load_case(*m);
    for (int e = 1; e <= m->neq; ++e) {
        EXPECT_EQ(m->D_disp(e), 0.0);
    }
}

TEST(BandSolver, BothEndsBuiltInOnOneSpanHoldsEveryFreedom)
{
    auto m = make_beam({3.0F}, kBuiltIn, kBuiltIn);
    m->E_kNm2 = 1.0e7;
    m->I_span_m4(1) = 1e-4;
    assemble_and_factorise(*m);
    for (int e = 1; e <= 4; ++e) {
        m->F_load(e) = 10.0 * e;
    }
    solve_load_case(*m);
    for (int e = 1; e <= 4; ++e) {
        EXPECT_EQ(m->D_disp(e), 0.0);
    }
}

} // namespace
} // namespace kvelder::test
