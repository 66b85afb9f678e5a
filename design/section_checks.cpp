#include "design/section_checks.h"

#include "design/buckling.h"

#include <cmath>

namespace kvelder {
namespace {

struct Governing {
    float uf = 0, stress = 0, force = 0, x = 0;
};

using StationTable = Table2<float, kMaxSpans, kMaxPoints>;

// How an envelope value becomes a stress: |value x factor| x scale / section,
// in MPa, against `strength`. Values below `cut` count as nought.
struct StressRule {
    float cut;
    double factor;
    double scale;
    double section;
    double strength;
};

// The station of the largest usage factor along span i; the first of equal ones.
Governing largest(Model& m, int i, const StationTable& envelope, const StressRule& rule,
                  StationTable& stress_st, StationTable& uf_st)
{
    Governing g;
    for (int j = 1; j <= m.nxtot_s(i); ++j) {
        const float f = envelope(i, j);
        if (std::abs(f) < rule.cut) {
            uf_st(i, j) = 0;
            stress_st(i, j) = 0;
        } else {
            stress_st(i, j) = f32(std::abs(f * rule.factor) * rule.scale / rule.section);
            uf_st(i, j) = f32(stress_st(i, j) / rule.strength);
        }
        if (g.uf < uf_st(i, j)) {
            g = {uf_st(i, j), stress_st(i, j), f, m.xl_s(i, j)};
        }
    }
    return g;
}

// The worse of the two signs; on a tie the positive one stands.
const Governing& worse(const Governing& pos, const Governing& neg)
{
    return neg.uf > pos.uf ? neg : pos;
}

} // namespace

void Control_sections(Model& m)
{
    for (int i = 1; i <= kMaxSpans; ++i) {
        m.Uf_pos(i) = m.Uf_neg(i) = m.M_pos(i) = m.M_neg(i) = 0;
        m.x_pos(i) = m.x_neg(i) = m.sigma_pos(i) = m.sigma_neg(i) = 0;
        m.Uf_tau_pos(i) = m.Uf_tau_neg(i) = m.V_pos(i) = m.V_neg(i) = 0;
        m.tau_pos(i) = m.tau_neg(i) = m.xt_pos(i) = m.xt_neg(i) = 0;
    }
    const StressRule bending{0.0001F, 1.0, 1000000.0, m.Wyy, m.fmd};
    for (int i = 1; i <= m.nf; ++i) {
        const Governing pos = largest(m, i, m.M_max, bending, m.sigma_st, m.Uf_sigma_st);
        const Governing neg = largest(m, i, m.M_min, bending, m.sigma_st, m.Uf_sigma_st);
        m.Uf_pos(i) = pos.uf, m.sigma_pos(i) = pos.stress, m.M_pos(i) = std::abs(pos.force),
        m.x_pos(i) = pos.x;
        m.Uf_neg(i) = neg.uf, m.sigma_neg(i) = neg.stress, m.M_neg(i) = std::abs(neg.force),
        m.x_neg(i) = neg.x;
        const Governing& gov = worse(pos, neg);
        m.Uf_mom(i) = gov.uf, m.M_gov(i) = std::abs(gov.force), m.x_mom(i) = gov.x;
    }
    // 1.5 V / A: the peak shear stress of a rectangle, and 3 V / A for a circle's half area.
    const StressRule shear{0.00001F, 1.5, 1000.0, m.Azz, m.fvd};
    for (int i = 1; i <= m.nf; ++i) {
        const Governing pos = largest(m, i, m.V_max, shear, m.tau_st, m.Uf_tau_st);
        const Governing neg = largest(m, i, m.V_min, shear, m.tau_st, m.Uf_tau_st);
        m.Uf_tau_pos(i) = pos.uf, m.tau_pos(i) = pos.stress, m.V_pos(i) = pos.force, m.xt_pos(i) = pos.x;
        m.Uf_tau_neg(i) = neg.uf, m.tau_neg(i) = neg.stress, m.V_neg(i) = neg.force, m.xt_neg(i) = neg.x;
        const Governing& gov = worse(pos, neg);
        m.Uf_tau(i) = gov.uf, m.tau_gov(i) = gov.stress, m.V_gov(i) = gov.force, m.xt_gov(i) = gov.x;
    }
    Check_lateral_buckling(m);
}

int reaction_index(const Model& m, int node)
{
    return m.nsupLeft_s == kFree ? node - 1 : node;
}

char bearing_kind(const Model& m, int node)
{
    if (node == 1 && (m.nsupLeft_s == kFree || m.nsupLeft_s == kBuiltIn)) {
        return m.nsupLeft_s;
    }
    if (node == m.nnodes && (m.nsupRight_s == kFree || m.nsupRight_s == kBuiltIn)) {
        return m.nsupRight_s;
    }
    return kSimple;
}

void Control_support(Model& m)
{
    for (int i = 1; i <= m.nnodes; ++i) {
        if (bearing_kind(m, i) != kSimple) {
            continue;
        }
        const float R = m.R_max(reaction_index(m, i));
        // A node without pressure keeps a small stress rather than an exact nought.
        m.sigma_c90(i) =
            R > 0.001F ? f32(R * 1000.0 / (static_cast<double>(m.section_b) * m.bearing_length(i))) : 0.001F;
        m.Uf_c90(i) = f32(m.sigma_c90(i) / (static_cast<double>(m.fc90d) * m.bearing_kc90(i)));
    }
}

} // namespace kvelder
