// The analysis against beam theory: shear, moment, reactions and deflection of
// single spans and continuous beams whose answers are known in closed form or
// follow from statics alone; the calculation points; and the rules of the load
// drivers that beam theory alone does not fix: the self weight of G,
// concentrated moments on a node, loads at the very ends, and rows that stand on
// no span of the beam. Random beams: the band solver reproduces the loads it is
// given, and for every load case the supports carry the loads.

#include "analysis/fixed_member.h"
#include "analysis/load_drivers.h"
#include "analysis/numbering.h"
#include "analysis/points.h"
#include "analysis/recovery.h"
#include "analysis/stiffness.h"
#include "combination/runner.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
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

// An independent reference for a simply supported span: reactions, shear and
// moment from statics alone, and the deflection by numerical double integration
// of M / EI (the midpoint rule on 4000 steps: a jump of the moment diagram costs
// a few 1e-4 relative at most). It shares no formula with the program. Loads act
// downward when positive, moments are positive clockwise; moment is sagging
// positive and deflection up positive, in mm. A section at the very position of
// a concentrated load (within 1e-5) counts as right of it.
class SimpleSpan {
public:
    SimpleSpan(double L, double EI) : m_L(L), m_EI(EI) {}

    void line(double a, double b, double q1, double q2) { m_lines.push_back({a, b, q1, q2}); }
    void point(double P, double a) { m_points.push_back({P, a}); }
    void moment(double M, double a) { m_moments.push_back({M, a}); }

    double total_load() const
    {
        double sum = line_load_up_to(m_L);
        for (const auto& [P, a] : m_points) {
            sum += P;
        }
        return sum;
    }
    double reaction_left() const // moments about the right support
    {
        double sum = line_moment_about(m_L);
        for (const auto& [P, a] : m_points) {
            sum += P * (m_L - a);
        }
        for (const auto& [M, a] : m_moments) {
            sum -= M;
        }
        return sum / m_L;
    }
    double reaction_right() const { return total_load() - reaction_left(); }

    double shear(double x) const
    {
        double v = reaction_left() - line_load_up_to(x);
        for (const auto& [P, a] : m_points) {
            v -= a <= x + 1e-5 ? P : 0;
        }
        return v;
    }
    double moment_at(double x) const
    {
        double m = reaction_left() * x - line_moment_about(x);
        for (const auto& [P, a] : m_points) {
            m -= a <= x + 1e-5 ? P * (x - a) : 0;
        }
        for (const auto& [M, a] : m_moments) {
            m += a <= x + 1e-5 ? M : 0;
        }
        return m;
    }
    double deflection_mm(double x) const // w'' = M / EI with w(0) = w(L) = 0
    {
        return 1000 * (-curvature_integral(m_L) / m_L * x + curvature_integral(x)) / m_EI;
    }

private:
    struct Line {
        double a, b, q1, q2;
    };
    // The load of the line loads between 0 and x, and their moment about x.
    double line_load_up_to(double x) const
    {
        double sum = 0;
        for (const Line& l : m_lines) {
            const double end = std::min(x, l.b);
            sum += end <= l.a ? 0 : (2 * l.q1 + (l.q2 - l.q1) * (end - l.a) / (l.b - l.a)) / 2 * (end - l.a);
        }
        return sum;
    }
    double line_moment_about(double x) const
    {
        double sum = 0;
        for (const Line& l : m_lines) {
            const double U = std::min(x, l.b) - l.a, s = (l.q2 - l.q1) / (l.b - l.a), d = x - l.a;
            sum += U <= 0 ? 0 : l.q1 * (d * U - U * U / 2) + s * (d * U * U / 2 - U * U * U / 3);
        }
        return sum;
    }
    double curvature_integral(double x) const // of (x - t) M(t) dt from 0 to x
    {
        const int steps = 4000;
        const double h = x / steps;
        double sum = 0;
        for (int k = 0; k < steps; ++k) {
            sum += (x - (k + 0.5) * h) * moment_at((k + 0.5) * h);
        }
        return sum * h;
    }

    double m_L;
    double m_EI;
    std::vector<Line> m_lines;
    std::vector<std::pair<double, double>> m_points, m_moments; // (P or M, a)
};

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

struct Resultant {
    double force = 0;  // downward
    double moment = 0; // clockwise about node 1
    double scale = 0;  // sum of magnitudes, for the tolerance
};

class RandomBeam {
public:
    explicit RandomBeam(unsigned seed) : m_rng(seed) {}

    std::unique_ptr<Model> make()
    {
        const char ends[] = {kFree, kSimple, kBuiltIn};
        std::unique_ptr<Model> m;
        do {
            m = make_beam({1.0F}, ends[pick(0, 2)], ends[pick(0, 2)]);
            set_span_count(*m, pick(1, 5));
            for (int i = 1; i <= m->nf; ++i) {
                m->ffl_s(i) = real(0.8F, 8.0F);
            }
            restraint_table(*m);
        } while (!restraints_sufficient(*m));
        for (LoadGroup* g : {&m->G, &m->Q1, &m->Q2}) {
            fill(*m, *g);
        }
        return m;
    }

private:
    int pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }
    float real(float lo, float hi) { return std::uniform_real_distribution<float>(lo, hi)(m_rng); }

    void fill(const Model& m, LoadGroup& g)
    {
        for (int k = pick(0, LoadGroup::kUniRows); k > 0; --k) {
            add_uniform(g, pick(1, m.nf), real(-5, 20));
        }
        for (int k = pick(0, LoadGroup::kTrapRows); k > 0; --k) {
            const int span = pick(1, m.nf);
            const float L = m.ffl_s(span);
            const float a = real(0, 0.6F * L);
            const float sign = pick(0, 1) ? 1.0F : -1.0F;
            add_trapezoid(g, span, sign * real(0.1F, 10), sign * real(0.1F, 10), a, real(a + 0.05F * L, L));
        }
        for (int k = pick(0, LoadGroup::kPointRows); k > 0; --k) {
            const int span = pick(1, m.nf);
            add_point(g, span, real(-10, 40), real(0.01F, 0.99F) * m.ffl_s(span));
        }
        for (int k = pick(0, LoadGroup::kMomentRows); k > 0; --k) {
            const int span = pick(1, m.nf);
            add_moment(g, span, real(-15, 15), real(0.05F, 0.95F) * m.ffl_s(span));
        }
    }

    std::mt19937 m_rng;
};

double node_position(const Model& m, int node)
{
    double x = 0;
    for (int i = 1; i < node; ++i) {
        x += m.ffl_s(i);
    }
    return x;
}

// What the load rows of a group put on the beam, self weight not included.
Resultant resultant(const Model& m, const LoadGroup& g)
{
    Resultant r;
    auto add = [&](double F, double x) {
        r.force += F;
        r.moment += F * x;
        r.scale += std::fabs(F) * (1 + x);
    };
    for (int k = 1; k <= g.uni_n; ++k) {
        const double L = m.ffl_s(g.uni_span(k));
        add(g.uni_q(k) * L, node_position(m, g.uni_span(k)) + L / 2);
    }
    for (int k = 1; k <= g.trap_n; ++k) {
        const double a = g.trap_a(k), b = g.trap_b(k), q1 = g.trap_q1(k), q2 = g.trap_q2(k);
        const double F = (q1 + q2) / 2 * (b - a);
        const double centroid = a + (b - a) * (q1 + 2 * q2) / (3 * (q1 + q2));
        add(F, node_position(m, g.trap_span(k)) + centroid);
    }
    for (int k = 1; k <= g.pt_n; ++k) {
        add(g.pt_P(k), node_position(m, g.pt_span(k)) + g.pt_a(k));
    }
    for (int k = 1; k <= g.mom_n; ++k) {
        r.moment += g.mom_M(k);
        r.scale += std::fabs(g.mom_M(k));
    }
    return r;
}

// Solves one load case that the drivers have loaded and sums the support reactions.
Resultant solved_reactions(Model& m)
{
    nodal_load_vector(m);
    solve_load_case(m);
    for (int i = 1; i <= m.nf; ++i) {
        member_reactions(m, i);
    }
    Resultant r;
    for (int k = 1; k <= m.nsup; ++k) {
        r.force += m.react_V(k);
        // react_M turns the beam anticlockwise; an upward force at x turns it anticlockwise too.
        r.moment += m.react_V(k) * node_position(m, m.sup_node(k)) + m.react_M(k);
    }
    return r;
}

// Random loads on every freedom: the displacements give them back through the
// assembled matrix (its upper band stored), and the held freedoms stay put.
void expect_solved(Model& m, unsigned seed)
{
    std::mt19937 rng(seed);
    std::uniform_real_distribution<double> load(-50, 50);
    std::vector<double> F(m.neq + 1);
    for (int e = 1; e <= m.neq; ++e) {
        m.F_load(e) = F[e] = load(rng);
    }
    const auto held = [&m](int r) { return 2 * (m.restr(1, r) - 1) + m.restr(2, r); };
    for (int r = 1; r <= m.nrestr; ++r) {
        F[held(r)] = 0; // what a held freedom carries
    }
    solve_load_case(m);
    const int n = m.neq, b = m.nband;
    for (int r = 1; r <= n; ++r) {
        for (int s = r; s <= std::min(n, r + b - 1); ++s) {
            const double k = m.K_orig(b * (r - 1) + (s - r) + 1);
            F[r] -= k * m.D_disp(s);
            F[s] -= s != r ? k * m.D_disp(r) : 0;
        }
    }
    for (int e = 1; e <= n; ++e) {
        EXPECT_NEAR(F[e], 0, 1e-9 * 50) << "equation " << e << ", seed " << seed;
    }
    for (int r = 1; r <= m.nrestr; ++r) {
        EXPECT_EQ(m.D_disp(held(r)), 0.0) << "restraint " << r << ", seed " << seed;
    }
}

void expect_balanced(const Resultant& loads, const Resultant& supports, const char* what, unsigned seed)
{
    // Single precision over a few dozen additions of forces and moments.
    const double tol = 2e-5 * (loads.scale + 1);
    EXPECT_NEAR(supports.force, loads.force, tol) << what << ", seed " << seed;
    EXPECT_NEAR(supports.moment, loads.moment, tol) << what << ", seed " << seed;
}

TEST(RandomBeams, TheSolverReproducesItsLoadsAndTheSupportsCarryEveryLoadCase)
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        RandomBeam random(seed);
        auto m = random.make();
        m->E_kNm2 = 1.1e7;
        m->I_span_m4.fill(5e-4);
        build_calculation_grids(*m);
        assemble_and_factorise(*m);
        expect_solved(*m, seed);

        clear_case(*m);
        G_forces(*m);
        expect_balanced(resultant(*m, m->G), solved_reactions(*m), "G", seed);

        clear_case(*m);
        for (int i = 1; i <= m->nf; ++i) {
            Q1_forces(*m, i);
        }
        expect_balanced(resultant(*m, m->Q1), solved_reactions(*m), "Q1", seed);

        clear_case(*m);
        for (int i = 1; i <= m->nf; ++i) {
            Q2_forces(*m, i);
        }
        expect_balanced(resultant(*m, m->Q2), solved_reactions(*m), "Q2", seed);
    }
}

} // namespace
} // namespace kvelder::test
