// Random beams: the band solver reproduces the loads it is given, and for every
// load case the supports carry the loads.

#include "analysis/load_drivers.h"
#include "analysis/numbering.h"
#include "analysis/points.h"
#include "analysis/recovery.h"
#include "analysis/stiffness.h"
#include "combination/runner.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace kvelder::test {
namespace {

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
