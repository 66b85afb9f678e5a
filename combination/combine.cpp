#include "combination/combine.h"

namespace kvelder {

float force_factor(const Model& m, LoadCase c)
{
    const bool a = m.comb_rule == "610a";
    switch (c) {
    case LoadCase::Egen:
        return a ? m.gamma_G_a : m.gamma_G_b;
    case LoadCase::Nytt:
        return a ? m.gamma_Q1_a : m.gamma_Q1_b;
    case LoadCase::Nytt_2:
        return a ? m.gamma_Q2_a : m.gamma_Q2_b;
    }
    return 0;
}

float deflection_factor(const Model& m, LoadCase c)
{
    switch (c) {
    case LoadCase::Egen:
        return m.creep_G;
    case LoadCase::Nytt:
        return m.creep_Q1;
    case LoadCase::Nytt_2:
        return m.creep_Q2;
    }
    return 0;
}

void combine_span(Model& m, const CaseView& k, LoadCase c, int i)
{
    const double g = force_factor(m, c);
    const double creep = deflection_factor(m, c);
    const bool fresh = c == LoadCase::Egen;

    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        const double w = k.W_tot(i, j);
        const double V = g * k.SF_tot(i, 2 * j - 1);
        // The analysis has sagging positive; results have hogging positive.
        const double M = -g * k.SF_tot(i, 2 * j);
        if (fresh) {
            m.C_Winst(i, j) = f32(w);
            m.C_W(i, j) = f32(creep * w);
            m.C_V(i, j) = f32(V);
            m.C_M(i, j) = f32(M);
        } else {
            m.C_Winst(i, j) = f32(m.C_Winst(i, j) + w);
            m.C_W(i, j) = f32(m.C_W(i, j) + creep * w);
            m.C_V(i, j) = f32(m.C_V(i, j) + V);
            m.C_M(i, j) = f32(m.C_M(i, j) + M);
        }
    }
}

void combine_reactions(Model& m, const CaseView& k, LoadCase c)
{
    const double g = force_factor(m, c);
    for (int n = 1; n <= m.nsup; ++n) {
        m.C_R(n) = f32(m.C_R(n) + g * k.react_V(n));
        m.C_MR(n) = f32(m.C_MR(n) + g * k.react_M(n));
    }
}

} // namespace kvelder
