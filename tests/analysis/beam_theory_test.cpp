// The analysis against beam theory: shear, moment, reactions and deflection of
// single spans and continuous beams whose answers are known in closed form or
// follow from statics alone.

#include "tests/support/beams.h"
#include "tests/support/simple_span.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

// Results are single precision; the held-member routines round every
// intermediate to 32 bits, which costs a few units in the sixth digit.
constexpr double kForceTol = 1e-5;
// Deflections of exact formulas carry the same rounding.
constexpr double kDeflectionTol = 1e-5;
// A line load's deflection is summed over 20 strips (a midpoint rule), good to
// about 0.1 % of the largest value.
constexpr double kStripTol = 2e-3;

using Profile = std::function<double(double)>;

// Compares one result table of span i at every calculation point with `expected`,
// within `tol` of the largest expected magnitude.
void expect_profile(const Model& m, int i, const Table2<float, kMaxSpans, kMaxPoints>& table,
                    const Profile& expected, double tol, const char* what)
{
    double scale = 0;
    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        scale = std::max(scale, std::fabs(expected(m.xl_s(i, j))));
    }
    ASSERT_GT(scale, 0) << what;
    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        const double x = m.xl_s(i, j);
        EXPECT_NEAR(table(i, j), expected(x), tol * scale) << what << " of span " << i << " at x = " << x;
    }
}

// Shear, moment (results are hogging positive) and deflection of span i.
void expect_span(const Model& m, int i, const Profile& V, const Profile& M, const Profile& W,
                 double w_tol = kDeflectionTol)
{
    expect_profile(m, i, m.C_V, V, kForceTol, "shear");
    expect_profile(
        m, i, m.C_M, [&](double x) { return -M(x); }, kForceTol, "moment");
    expect_profile(m, i, m.C_W, W, w_tol, "deflection");
}

void expect_simple_span(const Model& m, const SimpleSpan& ref, double w_tol = kDeflectionTol)
{
    expect_span(
        m, 1, [&](double x) { return ref.shear(x); }, [&](double x) { return ref.moment_at(x); },
        [&](double x) { return ref.deflection_mm(x); }, w_tol);
    const double scale = std::max(1.0, std::fabs(ref.total_load()));
    EXPECT_NEAR(m.C_R(1), ref.reaction_left(), kForceTol * scale);
    EXPECT_NEAR(m.C_R(2), ref.reaction_right(), kForceTol * scale);
}

// One load row on span 1: uniform q = v1; trapezoid v1 to v2 from a to b; point P = v1 at a;
// moment M = v1 at a.
struct SpanLoad {
    char kind;
    LoadGroup Model::*group;
    float v1, v2 = 0, a = 0, b = 0;
};

struct SimpleCase {
    const char* name;
    float L;
    double w_tol;
    std::vector<SpanLoad> loads;
};

class SimplySupportedSpan : public ::testing::TestWithParam<SimpleCase> {};

// The same loads go to the program and to the reference.
TEST_P(SimplySupportedSpan, AgreesWithStaticsAndTheIntegratedCurvature)
{
    const SimpleCase& c = GetParam();
    auto m = make_beam({c.L});
    SimpleSpan ref(c.L, kEI);
    for (const SpanLoad& l : c.loads) {
        LoadGroup& g = (*m).*l.group;
        switch (l.kind) {
        case 'u':
            add_uniform(g, 1, l.v1);
            ref.line(0, c.L, l.v1, l.v1);
            break;
        case 't':
            add_trapezoid(g, 1, l.v1, l.v2, l.a, l.b);
            ref.line(l.a, l.b, l.v1, l.v2);
            break;
        case 'p':
            add_point(g, 1, l.v1, l.a);
            ref.point(l.v1, l.a);
            break;
        default:
            add_moment(g, 1, l.v1, l.a);
            ref.moment(l.v1, l.a);
            break;
        }
    }
    recalculate(*m);
    expect_simple_span(*m, ref, c.w_tol);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Loads, SimplySupportedSpan, ::testing::Values(
    SimpleCase{"uniform", 5.0F, kDeflectionTol, {{'u', &Model::G, 4.0F}}},
    SimpleCase{"point", 5.0F, kDeflectionTol, {{'p', &Model::G, 10.0F, 0, 1.5F}}},
    SimpleCase{"partial_trapezoid", 5.0F, kStripTol, {{'t', &Model::G, 2.0F, 6.0F, 1.0F, 3.5F}}},
    SimpleCase{"moment", 5.0F, kDeflectionTol, {{'m', &Model::G, 8.0F, 0, 2.0F}}},
    SimpleCase{"every_kind_in_three_groups", 6.0F, kStripTol,
               {{'u', &Model::G, 1.5F}, {'p', &Model::Q1, 12.0F, 0, 4.2F},
                {'t', &Model::Q2, 3.0F, 1.0F, 0.0F, 2.0F}, {'m', &Model::Q2, -5.0F, 0, 3.3F}}}),
    [](const auto& param_info) { return std::string(param_info.param.name); });
// clang-format on

TEST(ContinuousBeam, TwoEqualSpansUnderUniformLoad)
{
    const double L = 4, q = 6;
    auto m = make_beam({4.0F, 4.0F});
    add_uniform(m->G, 1, 6.0F);
    add_uniform(m->G, 2, 6.0F);
    recalculate(*m);

    EXPECT_NEAR(m->C_R(1), 3 * q * L / 8, 1e-4);
    EXPECT_NEAR(m->C_R(2), 10 * q * L / 8, 1e-4);
    EXPECT_NEAR(m->C_R(3), 3 * q * L / 8, 1e-4);
    // Hogging over the middle support, on both sides of it.
    EXPECT_NEAR(m->C_M(1, 2), q * L * L / 8, 1e-4);
    EXPECT_NEAR(m->C_M(2, 1), q * L * L / 8, 1e-4);
    // Span 1 is a simple span under q with the support moment at its right end.
    expect_span(
        *m, 1, [&](double x) { return 3 * q * L / 8 - q * x; },
        [&](double x) { return 3 * q * L / 8 * x - q * x * x / 2; },
        [&](double x) { return -1000 * q * x * (L * L * L - 3 * L * x * x + 2 * x * x * x) / (48 * kEI); });
}

TEST(ContinuousBeam, ThreeEqualSpansUnderUniformLoad)
{
    const double L = 5, q = 2;
    auto m = make_beam({5.0F, 5.0F, 5.0F});
    for (int i = 1; i <= 3; ++i) {
        add_uniform(m->G, i, 2.0F);
    }
    recalculate(*m);

    const double expected[] = {0.4, 1.1, 1.1, 0.4};
    for (int k = 1; k <= 4; ++k) {
        EXPECT_NEAR(m->C_R(k), expected[k - 1] * q * L, 1e-4) << "support " << k;
    }
    EXPECT_NEAR(m->C_M(1, 2), 0.1 * q * L * L, 1e-4);
    EXPECT_NEAR(m->C_M(3, 1), 0.1 * q * L * L, 1e-4);
    // The middle span: support moments -qL^2/10 at both ends.
    expect_span(
        *m, 2, [&](double x) { return q * (L / 2 - x); },
        [&](double x) { return q * x * (L - x) / 2 - 0.1 * q * L * L; },
        [&](double x) {
            return -1000 * q * x * (L * L * L - 2 * L * x * x + x * x * x) / (24 * kEI) +
                   1000 * 0.1 * q * L * L * x * (L - x) / (2 * kEI);
        });
}

TEST(ContinuousBeam, OverhangBeyondTheLastSupport)
{
    // Span 1 from 0 to 4 between supports, span 2 an overhang of 1.5 with a tip load.
    auto m = make_beam({4.0F, 1.5F}, kSimple, kFree);
    add_point(m->G, 2, 10.0F, 1.5F - 0.001F);
    recalculate(*m);

    const double a = 1.499; // the load, 1 mm from the free end
    EXPECT_NEAR(m->C_R(1), -10 * a / 4, 1e-4);
    EXPECT_NEAR(m->C_R(2), 10 + 10 * a / 4, 1e-4);
    EXPECT_NEAR(m->C_M(1, 2), 10 * a, 1e-4);
    // Tip: rotation over the support from span 1 plus the cantilever's own bending.
    const double theta = 10 * a * 4 / (3 * kEI);
    const double tip = -(theta * 1.5 + 10 * a * a * (3 * 1.5 - a) / (6 * kEI));
    EXPECT_NEAR(m->C_W(2, 2), 1000 * tip, 1e-5 * std::fabs(1000 * tip));
}

TEST(BuiltInEnds, ProppedCantileverUnderUniformLoad)
{
    const double L = 5, q = 3;
    auto m = make_beam({5.0F}, kBuiltIn, kSimple);
    add_uniform(m->G, 1, 3.0F);
    recalculate(*m);

    EXPECT_NEAR(m->C_R(1), 5 * q * L / 8, 1e-4);
    EXPECT_NEAR(m->C_R(2), 3 * q * L / 8, 1e-4);
    EXPECT_NEAR(m->C_MR(1), q * L * L / 8, 1e-4);
    expect_span(
        *m, 1, [&](double x) { return 5 * q * L / 8 - q * x; },
        [&](double x) { return -q * L * L / 8 + 5 * q * L / 8 * x - q * x * x / 2; },
        [&](double x) { return -1000 * q * x * x * (3 * L * L - 5 * L * x + 2 * x * x) / (48 * kEI); });
}

TEST(BuiltInEnds, FixedFixedSpanUnderUniformLoad)
{
    const double L = 6, q = 5;
    auto m = make_beam({6.0F}, kBuiltIn, kBuiltIn);
    add_uniform(m->G, 1, 5.0F);
    recalculate(*m);

    EXPECT_NEAR(m->C_R(1), q * L / 2, 1e-4);
    EXPECT_NEAR(m->C_R(2), q * L / 2, 1e-4);
    // The walls turn the beam ends against the load: anticlockwise on the left.
    EXPECT_NEAR(m->C_MR(1), q * L * L / 12, 1e-4);
    EXPECT_NEAR(m->C_MR(2), -q * L * L / 12, 1e-4);
    expect_span(
        *m, 1, [&](double x) { return q * (L / 2 - x); },
        [&](double x) { return q * x * (L - x) / 2 - q * L * L / 12; },
        [&](double x) { return -1000 * q * x * x * (L - x) * (L - x) / (24 * kEI); });
}

TEST(BuiltInEnds, CantileverBuiltInOnTheLeft)
{
    const double L = 3, q = 2, P = 5, a = 2;
    auto m = make_beam({3.0F}, kBuiltIn, kFree);
    add_uniform(m->G, 1, 2.0F);
    add_point(m->Q1, 1, 5.0F, 2.0F);
    recalculate(*m);

    EXPECT_EQ(m->nsup, 1);
    EXPECT_NEAR(m->C_R(1), q * L + P, 1e-4);
    EXPECT_NEAR(m->C_MR(1), q * L * L / 2 + P * a, 1e-4);
    expect_span(
        *m, 1, [&](double x) { return q * (L - x) + (x < a - 1e-5 ? P : 0); },
        [&](double x) { return -q * (L - x) * (L - x) / 2 - (x < a ? P * (a - x) : 0); },
        [&](double x) {
            const double wq = q * x * x * (6 * L * L - 4 * L * x + x * x) / 24;
            const double wp = x < a ? P * x * x * (3 * a - x) / 6 : P * a * a * (3 * x - a) / 6;
            return -1000 * (wq + wp) / kEI;
        });
    // The free end is the one end point with a deflection of its own.
    EXPECT_LT(m->C_W(1, 2), 0.0F);
    EXPECT_EQ(m->C_W(1, 1), 0.0F);
}

TEST(BuiltInEnds, CantileverBuiltInOnTheRight)
{
    const double L = 2.5, q = 4;
    auto m = make_beam({2.5F}, kFree, kBuiltIn);
    add_uniform(m->G, 1, 4.0F);
    recalculate(*m);

    EXPECT_EQ(m->nsup, 1);
    EXPECT_EQ(m->sup_node(1), 2);
    EXPECT_NEAR(m->C_R(1), q * L, 1e-4);
    EXPECT_NEAR(m->C_MR(1), -q * L * L / 2, 1e-4);
    expect_span(
        *m, 1, [&](double x) { return -q * x; }, [&](double x) { return -q * x * x / 2; },
        [&](double x) {
            const double s = L - x; // distance from the wall
            return -1000 * q * s * s * (6 * L * L - 4 * L * s + s * s) / (24 * kEI);
        });
    EXPECT_NEAR(m->C_W(1, 1), -1000 * q * L * L * L * L / (8 * kEI), 1e-6);
    EXPECT_EQ(m->C_W(1, 2), 0.0F);
}

} // namespace
} // namespace kvelder::test
