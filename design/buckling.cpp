#include "design/buckling.h"

#include <cmath>
#include <limits>

namespace kvelder {

void Calc_leff(Model& m)
{
    const double h_m = m.section_h / 1000.0;
    for (int i = 1; i <= m.nf; ++i) {
        float l = f32(static_cast<double>(m.l_stag(i)) * m.lef_factor(i));
        l = m.load_location == 0 ? f32(l + 2 * h_m) : f32(l - 0.5 * h_m);
        m.l_eff(i) = l;
    }
    Calc_k_crit(m);
}

void Calc_k_crit(Model& m)
{
    const double b = m.section_b;
    const double h = m.section_h;
    for (int i = 1; i <= m.nf; ++i) {
        // A length of nothing cannot buckle: the limit of a vanishing length is
        // an infinite critical stress, and so k_crit = 1.
        m.sigma_m_crit(i) = m.l_eff(i) > 0 ? f32(0.78 * std::pow(b, 2) / (h * m.l_eff(i) * 1000) * m.E0_05)
                                           : std::numeric_limits<float>::infinity();
        const float lambda = f32(std::pow(static_cast<double>(m.fmk) / m.sigma_m_crit(i), 0.5));
        m.lambda_rel_m(i) = lambda;
        if (lambda <= 0.75F) {
            m.k_crit(i) = 1;
        } else if (lambda < 1.4F) {
            m.k_crit(i) = f32(1.56 - 0.75 * lambda);
        } else {
            m.k_crit(i) = f32(1 / std::pow(static_cast<double>(lambda), 2));
        }
    }
}

void Check_lateral_buckling(Model& m)
{
    if (m.vipping_off != 0) {
        return;
    }
    m.Uf_ltb_st.fill(0);
    for (int i = 1; i <= kMaxSpans; ++i) {
        m.Uf_ltb(i) = 0;
    }
    const auto stress = [&m](float moment) { return f32(std::abs(moment) * 1000000.0 / m.Wyy); };
    for (int i = 1; i <= m.nf; ++i) {
        const double capacity = static_cast<double>(m.fmd) * m.k_crit(i);
        // A free end makes the span a cantilever: its support end is checked too.
        const bool free_left = m.support_kind(1) == kFree && i == 1;
        const bool free_right = m.support_kind(m.nf + 1) == kFree && i == m.nf;
        if (free_left || free_right) {
            const int j = free_left ? 2 : 1;
            m.M_ltb(i) = std::abs(m.M_max(i, j));
            m.sigma_ltb_st(i, j) = stress(m.M_max(i, j));
            m.Uf_ltb(i) = f32(m.sigma_ltb_st(i, j) / capacity);
            m.sigma_ltb(i) = m.sigma_ltb_st(i, j);
        }
        for (int j = 3; j <= m.nxtot_s(i); ++j) {
            const float moment = m.M_min(i, j);
            if (std::abs(moment) < 0.0001F) {
                m.Uf_ltb_st(i, j) = 0;
                m.sigma_ltb_st(i, j) = 0;
            } else {
                m.sigma_ltb_st(i, j) = stress(moment);
                m.Uf_ltb_st(i, j) = f32(m.sigma_ltb_st(i, j) / capacity);
            }
            // Equal usage factors move the station on: the last of them counts.
            if (m.Uf_ltb(i) <= m.Uf_ltb_st(i, j)) {
                m.M_ltb(i) = std::abs(moment);
                m.Uf_ltb(i) = m.Uf_ltb_st(i, j);
                m.sigma_ltb(i) = m.sigma_ltb_st(i, j);
            }
        }
    }
}

} // namespace kvelder
