// The analysis against beam theory: shear, moment, reactions and deflection of
// single spans and continuous beams whose answers are known in closed form or
// follow from statics alone.

#include "tests/support/beams.h"
#include "tests/support/simple_span.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

// Results are single precision; the held-member routines round every
// intermediate to 32 bits, which costs a few units in the sixth digit.
constexpr double kForceTol = 1e-5;
// A line load's deflection is summed over 20 strips (a midpoint rule), good to
// about 0.1 % of the largest value.
constexpr double kStripTol = 2e-3;

// Compares one result table of span 1 at every calculation point with `expected`,
// within `tol` of the largest expected magnitude.
template <typename Profile>
void expect_profile(const Model& m, const Table2<float, kMaxSpans, kMaxPoints>& table, Profile expected,
                    double tol, const char* what)
{
    double scale = 0;
    for (int j = 1; j <= m.nxtot_s(1); ++j) {
        scale = std::max(scale, std::fabs(expected(m.xl_s(1, j))));
    }
    ASSERT_GT(scale, 0) << what;
    for (int j = 1; j <= m.nxtot_s(1); ++j) {
        const double x = m.xl_s(1, j);
        EXPECT_NEAR(table(1, j), expected(x), tol * scale) << what << " at x = " << x;
    }
}

// Every kind of load row in all three groups on one simply supported span; the
// reference shares no formula with the program.
TEST(SimpleSpan, EveryKindOfLoadAgreesWithStaticsAndTheIntegratedCurvature)
{
    const float L = 6.0F;
    auto m = make_beam({L});
    SimpleSpan ref(L, kEI);
    add_uniform(m->G, 1, 1.5F);
    ref.line(0, L, 1.5, 1.5);
    add_point(m->Q1, 1, 12.0F, 4.2F);
    ref.point(12.0, 4.2F);
    add_trapezoid(m->Q2, 1, 3.0F, 1.0F, 0.0F, 2.0F);
    ref.line(0, 2, 3, 1);
    add_moment(m->Q2, 1, -5.0F, 3.3F);
    ref.moment(-5.0, 3.3F);
    recalculate(*m);

    expect_profile(
        *m, m->C_V, [&](double x) { return ref.shear(x); }, kForceTol, "shear");
    // Results take hogging as positive.
    expect_profile(
        *m, m->C_M, [&](double x) { return -ref.moment_at(x); }, kForceTol, "moment");
    expect_profile(
        *m, m->C_W, [&](double x) { return ref.deflection_mm(x); }, kStripTol, "deflection");
    EXPECT_NEAR(m->C_R(1), ref.reaction_left(), kForceTol * ref.total_load());
    EXPECT_NEAR(m->C_R(2), ref.reaction_right(), kForceTol * ref.total_load());
}

// A beam under q on every span, with its reactions in qL (L the first span),
// the support moments of built-in ends and the hogging moment over node 2 in qL^2,
// and the deflection at one point in qL^4 / EI.
struct KnownBeam {
    const char* name;
    std::vector<float> spans;
    char left, right;
    std::vector<double> R, MR;
    double hogging;
    int span, point; // point 1 is x = 0, 2 is x = L, 27 is mid-span
    double w;
};

class TextbookBeam : public ::testing::TestWithParam<KnownBeam> {};

TEST_P(TextbookBeam, HasItsReactionsMomentsAndDeflection)
{
    const KnownBeam& c = GetParam();
    const double q = 2.5;
    auto m = make_beam({1.0F}, c.left, c.right);
    set_span_count(*m, static_cast<int>(c.spans.size()));
    for (int i = 1; i <= m->nf; ++i) {
        m->ffl_s(i) = c.spans[static_cast<std::size_t>(i - 1)];
        add_uniform(m->G, i, static_cast<float>(q));
    }
    recalculate(*m);

    const double L = c.spans[0];
    ASSERT_EQ(m->nsup, static_cast<int>(c.R.size()));
    for (int k = 1; k <= m->nsup; ++k) {
        EXPECT_NEAR(m->C_R(k), c.R[static_cast<std::size_t>(k - 1)] * q * L, kForceTol * q * L)
            << "support " << k;
        EXPECT_NEAR(m->C_MR(k), c.MR[static_cast<std::size_t>(k - 1)] * q * L * L, kForceTol * q * L * L)
            << "support " << k;
    }
    if (m->nf > 1) { // over node 2, from both sides
        EXPECT_NEAR(m->C_M(1, 2), c.hogging * q * L * L, kForceTol * q * L * L);
        EXPECT_NEAR(m->C_M(2, 1), c.hogging * q * L * L, kForceTol * q * L * L);
    }
    const double w = 1000 * c.w * q * std::pow(L, 4) / kEI;
    EXPECT_NEAR(m->C_W(c.span, c.point), w, 1e-5 * std::fabs(w));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Beams, TextbookBeam, ::testing::Values(
    KnownBeam{"two_equal_spans", {4, 4}, kSimple, kSimple, {0.375, 1.25, 0.375}, {0, 0, 0}, 0.125, 1, 27, -1.0 / 192},
    KnownBeam{"three_equal_spans", {5, 5, 5}, kSimple, kSimple, {0.4, 1.1, 1.1, 0.4}, {0, 0, 0, 0}, 0.1, 2, 27,
              -1.0 / 1920},
    // Span 1 from 0 to L = 4 between supports, span 2 an overhang of c = 1.5: its tip
    // rises by the turn over the support, (L^3 / 24 - c^2 L / 6) q / EI, times c,
    // less its own bending, c^4 q / 8 EI.
    KnownBeam{"overhang", {4, 1.5F}, kSimple, kFree, {1.71875 / 4, 3.78125 / 4}, {0, 0}, 1.125 / 16, 2, 2,
              (1.5 * (4.0 * 4 * 4 / 24 - 1.5 * 1.5 * 4 / 6) - std::pow(1.5, 4) / 8) / 256},
    KnownBeam{"propped_cantilever", {5}, kBuiltIn, kSimple, {0.625, 0.375}, {0.125, 0}, 0, 1, 27, -1.0 / 192},
    // The walls turn the beam ends against the load: anticlockwise on the left.
    KnownBeam{"built_in_both_ends", {6}, kBuiltIn, kBuiltIn, {0.5, 0.5}, {1.0 / 12, -1.0 / 12}, 0, 1, 27,
              -1.0 / 384},
    // A free end is the one end point with a deflection of its own.
    KnownBeam{"cantilever_built_in_left", {3}, kBuiltIn, kFree, {1}, {0.5}, 0, 1, 2, -1.0 / 8},
    KnownBeam{"cantilever_built_in_right", {2.5F}, kFree, kBuiltIn, {1}, {-0.5}, 0, 1, 1, -1.0 / 8}),
    [](const auto& param_info) { return std::string(param_info.param.name); });
// clang-format on

} // namespace
} // namespace kvelder::test
