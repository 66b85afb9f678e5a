// Numbering, restraints, the member stiffness and the band solver.

#include "analysis/numbering.h"
#include "analysis/stiffness.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <random>

namespace kvelder::test {
namespace {

// A beam of `spans` spans of growing length between the given ends.
std::unique_ptr<Model> chain(int spans, char left, char right)
{
    auto m = make_beam({1.0F}, left, right);
    set_span_count(*m, spans);
    for (int i = 1; i <= spans; ++i) {
        m->ffl_s(i) = 2.0F + 0.7F * static_cast<float>(i);
    }
    m->E_kNm2 = 1.3e7;
    m->I_span_m4.fill(7.75e-4);
    return m;
}

struct RestraintCase {
    char left, right;
    int spans, nsup, nrestr;
    bool stable;
};

class Restraints : public ::testing::TestWithParam<RestraintCase> {};

TEST_P(Restraints, CountTheHeldFreedoms)
{
    const RestraintCase c = GetParam();
    auto m = chain(c.spans, c.left, c.right);
    // Inner nodes are simple supports whatever their kind field says.
    if (c.spans > 2) {
        m->support_kind(2) = kBuiltIn;
        m->support_kind(3) = kFree;
    }
    assemble_and_factorise(*m);
    EXPECT_EQ(m->nsup, c.nsup);
    EXPECT_EQ(m->nrestr, c.nrestr);
    EXPECT_EQ(m->neq, 2 * (c.spans + 1));
    EXPECT_EQ(m->nband, 4);
    EXPECT_EQ(restraints_sufficient(*m), c.stable);
}

INSTANTIATE_TEST_SUITE_P(Ends, Restraints,
                         ::testing::Values(RestraintCase{kBuiltIn, kFree, 1, 1, 2, true},
                                           RestraintCase{kSimple, kSimple, 1, 2, 2, true},
                                           RestraintCase{kSimple, kFree, 1, 1, 1, false},
                                           RestraintCase{kFree, kFree, 2, 1, 1, false},
                                           RestraintCase{kBuiltIn, kBuiltIn, 5, 6, 8, true}));

TEST(MemberStiffness, IsSymmetricAndRigidBodyMotionsCostNoForce)
{
    const float L = 3.7F;
    const MemberStiffness s = member_stiffness(L, 1.1e7, 4.2e-4);
    const double translation[4] = {1, 0, 1, 0};
    const double rotation[4] = {0, 1, L, 1}; // about A: v grows with x
    for (int r = 0; r < 4; ++r) {
        double ft = 0, fr = 0;
        for (int c = 0; c < 4; ++c) {
            EXPECT_DOUBLE_EQ(s.k[r][c], s.k[c][r]);
            ft += s.k[r][c] * translation[c];
            fr += s.k[r][c] * rotation[c];
        }
        EXPECT_NEAR(ft, 0, 1e-9 * s.k[0][0]);
        EXPECT_NEAR(fr, 0, 1e-9 * s.k[0][0] * L);
    }
    EXPECT_DOUBLE_EQ(s.k[1][1], 4 * 1.1e7 * 4.2e-4 / L);
}

// Product of the assembled matrix (upper band stored) with a vector.
std::vector<double> band_times(const Model& m, const std::vector<double>& x)
{
    const int n = m.neq, b = m.nband;
    std::vector<double> y(x.size(), 0.0);
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
    auto m = chain(spans, left, right);
    assemble_and_factorise(*m);

    std::mt19937 rng(7);
    std::uniform_real_distribution<double> load(-50, 50);
    std::vector<double> F(static_cast<std::size_t>(m->neq));
    for (int e = 1; e <= m->neq; ++e) {
        m->F_load(e) = F[e - 1] = load(rng);
    }
    for (int r = 1; r <= m->nrestr; ++r) {
        F[2 * (m->restr(1, r) - 1) + m->restr(2, r) - 1] = 0; // what a held freedom carries
    }
    solve_load_case(*m);

    std::vector<double> d(F.size());
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
                         ::testing::Values(std::tuple{kSimple, kSimple, 1}, std::tuple{kBuiltIn, kBuiltIn, 1},
                                           std::tuple{kFree, kBuiltIn, 2}, std::tuple{kSimple, kFree, 3},
                                           std::tuple{kBuiltIn, kBuiltIn, 4}, std::tuple{kFree, kSimple, 5}));

} // namespace
} // namespace kvelder::test
