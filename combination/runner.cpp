#include "combination/runner.h"

#include "analysis/load_drivers.h"
#include "analysis/recovery.h"
#include "analysis/stiffness.h"
#include "combination/combine.h"
#include "combination/envelope.h"
#include "combination/patterns.h"

#include <memory>
#include <vector>

namespace kvelder {
namespace {

// Clears the tables of one load case where this beam's spans and points put
// numbers. The rest of each table stays zero from the clearing at the start of
// the run: no case of the run writes beyond its spans and points.
void clear_used(Model& m)
{
    m.F_load.fill(0);
    m.D_disp.fill(0);
    m.react_V.fill(0);
    m.react_M.fill(0);
    for (int i = 1; i <= m.nf; ++i) {
        const int points = m.nxtot_s(i);
        for (int r = 1; r <= 2 * points; ++r) {
            m.SF_fix(i, r) = 0, m.SF_end(i, r) = 0, m.SF_tot(i, r) = 0;
        }
        for (int j = 1; j <= points; ++j) {
            m.W_fix(i, j) = 0, m.W_nod(i, j) = 0, m.W_tot(i, j) = 0;
        }
    }
}

void recover_span(Model& m, int i, const DeflectionShapes& shapes)
{
    member_reactions(m, i);
    member_forces(m, i);
    member_deflections(m, i, shapes);
}

void solve_current_case(Model& m, const DeflectionShapes& shapes)
{
    nodal_load_vector(m);
    solve_load_case(m);
    for (int i = 1; i <= m.nf; ++i) {
        recover_span(m, i, shapes);
    }
}

// Folds the solved case into the combination, without the envelopes.
void combine_whole(Model& m, LoadCase c)
{
    const CaseView k = current_case(m);
    for (int i = 1; i <= m.nf; ++i) {
        combine_span(m, k, c, i);
    }
    combine_reactions(m, k, c);
}

// Folds a solved case into the combination of a pattern and the envelopes.
void fold_case(Model& m, const CaseView& k, LoadCase c, int pattern, EnvelopeWitness* witness)
{
    for (int i = 1; i <= m.nf; ++i) {
        combine_span(m, k, c, i);
        deflection_envelope(m, i);
        force_envelope(m, i);
    }
    combine_reactions(m, k, c);
    reaction_envelope(m);
    if (witness != nullptr) {
        witness->taken(m, pattern, c);
    }
}

// A solved case kept for the patterns that repeat it.
struct SolvedCase {
    explicit SolvedCase(const Model& m)
        : SF_tot(m.SF_tot), W_tot(m.W_tot), react_V(m.react_V), react_M(m.react_M)
    {
    }
    CaseView view() const { return {SF_tot, W_tot, react_V, react_M}; }

    Table2<float, kMaxSpans, kForceRows> SF_tot;
    Table2<double, kMaxSpans, kMaxPoints> W_tot;
    Table<float, kMaxNodes> react_V;
    Table<float, kMaxNodes> react_M;
};

// The current combination, kept to start patterns from.
struct Combination {
    explicit Combination(const Model& m)
        : C_V(m.C_V), C_M(m.C_M), C_W(m.C_W), C_Winst(m.C_Winst), C_R(m.C_R), C_MR(m.C_MR)
    {
    }
    void restore(Model& m) const
    {
        m.C_V = C_V, m.C_M = C_M, m.C_W = C_W, m.C_Winst = C_Winst, m.C_R = C_R, m.C_MR = C_MR;
    }

    Table2<float, kMaxSpans, kMaxPoints> C_V, C_M, C_W, C_Winst;
    Table<float, kMaxNodes> C_R, C_MR;
};

// What Q1 on one span puts into a load case: its rows of the held-member
// tables, which no other span touches, and the moments it sets on nodes.
struct SpanLoads {
    Table<float, kForceRows> SF_fix;
    Table<double, kMaxPoints> W_fix;
    std::vector<NodeLoad> node_loads;
};

std::vector<SpanLoads> Q1_by_span(Model& m)
{
    std::vector<SpanLoads> spans(static_cast<std::size_t>(m.nf));
    clear_used(m);
    for (int s = 1; s <= m.nf; ++s) {
        SpanLoads& q = spans[static_cast<std::size_t>(s - 1)];
        variable_forces(m, m.Q1, s, q.node_loads);
        Q1_deflections(m, s);
        for (int j = 1; j <= m.nxtot_s(s); ++j) {
            q.SF_fix(2 * j - 1) = m.SF_fix(s, 2 * j - 1);
            q.SF_fix(2 * j) = m.SF_fix(s, 2 * j);
            q.W_fix(j) = m.W_fix(s, j);
        }
    }
    return spans;
}

// Q1 on the spans of a pattern, in the pattern's order, as the drivers would
// build it into freshly cleared case tables.
void put_Q1(Model& m, const std::vector<SpanLoads>& by_span, std::span<const int> spans)
{
    clear_used(m);
    for (const int s : spans) {
        const SpanLoads& q = by_span[static_cast<std::size_t>(s - 1)];
        for (int j = 1; j <= m.nxtot_s(s); ++j) {
            m.SF_fix(s, 2 * j - 1) = q.SF_fix(2 * j - 1);
            m.SF_fix(s, 2 * j) = q.SF_fix(2 * j);
            m.W_fix(s, j) = q.W_fix(j);
        }
        for (const NodeLoad& n : q.node_loads) {
            m.F_load(n.index) = n.value;
        }
    }
}

void add_variable_group(Model& m, void (*forces)(Model&, int), void (*deflections)(Model&, int))
{
    for (int i = 1; i <= m.nf; ++i) {
        forces(m, i);
        deflections(m, i);
    }
}

} // namespace

void clear_case(Model& m)
{
    m.F_load.fill(0);
    m.D_disp.fill(0);
    m.react_V.fill(0);
    m.react_M.fill(0);
    m.SF_fix.fill(0);
    m.SF_end.fill(0);
    m.SF_tot.fill(0);
    m.W_fix.fill(0);
    m.W_nod.fill(0);
    m.W_tot.fill(0);
}

void clear_combination(Model& m)
{
    m.C_V.fill(0);
    m.C_M.fill(0);
    m.C_W.fill(0);
    m.C_R.fill(0);
    m.C_MR.fill(0);
}

void clear_envelopes(Model& m)
{
    for (auto* t : {&m.V_max, &m.V_min, &m.M_max, &m.M_min, &m.W_max, &m.W_min}) {
        t->fill(0);
    }
    for (auto* t : {&m.R_max, &m.R_min, &m.MR_max, &m.MR_min}) {
        t->fill(0);
    }
}

void run_total(Model& m, ScratchFiles& trace, EnvelopeWitness* witness)
{
    const DeflectionShapes shapes(m);
    G_forces(m);
    G_deflections(m);
    solve_current_case(m, shapes);
    combine_whole(m, LoadCase::Egen);

    clear_used(m);
    add_variable_group(m, Q1_forces, Q1_deflections);
    solve_current_case(m, shapes);
    combine_whole(m, LoadCase::Nytt);

    clear_used(m);
    add_variable_group(m, Q2_forces, Q2_deflections);
    solve_current_case(m, shapes);
    combine_whole(m, LoadCase::Nytt_2);

    for (int i = 1; i <= m.nf; ++i) {
        copy_deflection_envelope(m, i);
        copy_force_envelope(m, i);
    }
    copy_reaction_envelope(m);
    if (witness != nullptr) {
        witness->taken(m, 1, LoadCase::Nytt_2);
    }

    // The geometry record takes the pattern count of the run before: it is
    // written before this run sets its own.
    trace.write_geometry(m);
    m.npatterns = 1;
    trace.write_results(m, 1);
}

void run_patterns(Model& m, ScratchFiles& trace, EnvelopeWitness* witness)
{
    if (m.nf == 1) {
        run_total(m, trace, witness);
        return;
    }
    m.npatterns = static_cast<std::int16_t>(pattern_count(m.nf));
    const DeflectionShapes shapes(m);

    // G and Q2 are the same in every pattern, and Q1 on a span is the same in
    // every pattern that loads the span: each is worked out once, in the tables
    // a pattern would build it in, and folded in anew by each pattern.
    clear_used(m);
    G_forces(m);
    G_deflections(m);
    solve_current_case(m, shapes);
    const auto G_case = std::make_unique<SolvedCase>(m);
    clear_used(m);
    add_variable_group(m, Q2_forces, Q2_deflections);
    solve_current_case(m, shapes);
    const auto Q2_case = std::make_unique<SolvedCase>(m);
    const std::vector<SpanLoads> Q1_spans = Q1_by_span(m);

    // Pattern 1 is G and Q2 alone.
    trace.write_geometry(m);
    clear_combination(m);
    fold_case(m, G_case->view(), LoadCase::Egen, 1, witness);
    fold_case(m, Q2_case->view(), LoadCase::Nytt_2, 1, witness);
    trace.write_results(m, 1);

    // Every further pattern folds G and Q2 into the same combination, which
    // the envelopes have taken in already and would take in to no change: it
    // starts from that combination and folds in its Q1.
    const auto G_Q2 = std::make_unique<Combination>(m);
    for (int p = 2; p <= m.npatterns; ++p) {
        G_Q2->restore(m);
        put_Q1(m, Q1_spans, Q1_pattern(m.nf, p));
        solve_current_case(m, shapes);
        fold_case(m, current_case(m), LoadCase::Nytt, p, witness);
        // The combination of the pattern, all of its cases folded in.
        trace.write_results(m, p);
    }
}

} // namespace kvelder
