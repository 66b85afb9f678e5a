#include "combination/runner.h"

#include "analysis/load_drivers.h"
#include "analysis/recovery.h"
#include "analysis/stiffness.h"
#include "combination/combine.h"
#include "combination/envelope.h"
#include "combination/patterns.h"

namespace kvelder {
namespace {

void recover_span(Model& m, int i)
{
    member_reactions(m, i);
    member_forces(m, i);
    member_deflections(m, i);
}

void solve_current_case(Model& m)
{
    nodal_load_vector(m);
    solve_load_case(m);
}

// Recovers the solved case and folds it into the combination, without the envelopes.
void combine_whole(Model& m, LoadCase c)
{
    for (int i = 1; i <= m.nf; ++i) {
        recover_span(m, i);
        combine_span(m, c, i);
    }
    combine_reactions(m, c);
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

void run_case(Model& m, LoadCase c, int p, ScratchFiles& trace)
{
    solve_current_case(m);
    for (int i = 1; i <= m.nf; ++i) {
        recover_span(m, i);
        combine_span(m, c, i);
        deflection_envelope(m, i);
        force_envelope(m, i);
    }
    combine_reactions(m, c);
    reaction_envelope(m);

    if (p == 1) {
        trace.write_geometry(m);
    }
    trace.write_results(m, p);
}

void apply_G_and_Q2(Model& m, int p, ScratchFiles& trace)
{
    G_forces(m);
    G_deflections(m);
    run_case(m, LoadCase::Egen, p, trace);
    clear_case(m);
    add_variable_group(m, Q2_forces, Q2_deflections);
    run_case(m, LoadCase::Nytt_2, p, trace);
}

void apply_Q1(Model& m, int p, std::span<const int> spans, ScratchFiles& trace)
{
    for (const int span : spans) {
        Q1_forces(m, span);
        Q1_deflections(m, span);
    }
    run_case(m, LoadCase::Nytt, p, trace);
}

void run_total(Model& m, ScratchFiles& trace)
{
    G_forces(m);
    G_deflections(m);
    solve_current_case(m);
    combine_whole(m, LoadCase::Egen);

    clear_case(m);
    add_variable_group(m, Q1_forces, Q1_deflections);
    solve_current_case(m);
    combine_whole(m, LoadCase::Nytt);

    clear_case(m);
    add_variable_group(m, Q2_forces, Q2_deflections);
    solve_current_case(m);
    combine_whole(m, LoadCase::Nytt_2);

    for (int i = 1; i <= m.nf; ++i) {
        copy_deflection_envelope(m, i);
        copy_force_envelope(m, i);
    }
    copy_reaction_envelope(m);

    // The geometry record takes the pattern count of the run before: it is
    // written before this run sets its own.
    trace.write_geometry(m);
    m.npatterns = 1;
    trace.write_results(m, 1);
}

void run_patterns(Model& m, ScratchFiles& trace)
{
    if (m.nf == 1) {
        run_total(m, trace);
        return;
    }
    m.npatterns = static_cast<std::int16_t>(pattern_count(m.nf));
    for (int p = 1; p <= m.npatterns; ++p) {
        clear_case(m);
        clear_combination(m);
        apply_G_and_Q2(m, p, trace);
        if (p > 1) {
            clear_case(m);
            apply_Q1(m, p, Q1_pattern(m.nf, p), trace);
        }
    }
}

} // namespace kvelder
