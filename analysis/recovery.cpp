#include "analysis/recovery.h"

#include "analysis/stiffness.h"

#include <array>

namespace kvelder {
namespace {

// The member's four end displacements (v and rotation at A, then at B).
std::array<double, 4> end_displacements(const Model& m, int i)
{
    const int A = m.nodeA(i);
    const int B = m.nodeB(i);
    return {m.D_disp(2 * A - 1), m.D_disp(2 * A), m.D_disp(2 * B - 1), m.D_disp(2 * B)};
}

// End forces f = K d, each kept in single precision.
std::array<float, 4> end_forces(const Model& m, int i)
{
    const auto k = unpack_stiffness(m, i);
    const auto d = end_displacements(m, i);
    std::array<float, 4> f{};
    for (std::size_t r = 0; r < 4; ++r) {
        double s = 0;
        for (std::size_t c = 0; c < 4; ++c) {
            s += k[r][c] * d[c];
        }
        f[r] = f32(s);
    }
    return f;
}

} // namespace

void member_forces(Model& m, int i)
{
    const auto f = end_forces(m, i);
    m.SF_end(i, 1) = f[0];
    m.SF_end(i, 2) = -f[1];
    m.SF_end(i, 3) = -f[2];
    m.SF_end(i, 4) = f[3];
    for (int r = 1; r <= 4; ++r) {
        m.SF_tot(i, r) = m.SF_fix(i, r) + m.SF_end(i, r);
    }

    const double L = m.ffl_s(i);
    const double V1 = m.SF_end(i, 1);
    const double V2 = m.SF_end(i, 3);
    const double M1 = m.SF_end(i, 2);
    const double M2 = m.SF_end(i, 4);
    for (int j = 3; j <= m.nxtot_s(i); ++j) {
        const double x = m.xl_s(i, j);
        const int rv = 2 * j - 1;
        const int rm = 2 * j;
        // The two end shears agree up to rounding, so this slope is all but zero.
        m.SF_end(i, rv) = f32(V1 - (V2 - V1) / L * x);
        m.SF_end(i, rm) = f32(M1 + (M2 - M1) / L * x);
        m.SF_tot(i, rv) = m.SF_fix(i, rv) + m.SF_end(i, rv);
        m.SF_tot(i, rm) = m.SF_fix(i, rm) + m.SF_end(i, rm);
    }
}

void member_reactions(Model& m, int i)
{
    const auto f = end_forces(m, i);
    const int A = m.nodeA(i);
    const int B = m.nodeB(i);
    for (int k = 1; k <= m.nsup; ++k) {
        if (m.sup_node(k) == A) {
            m.react_V(k) = f32(static_cast<double>(m.react_V(k)) + f[0] + m.SF_fix(i, 1));
            m.react_M(k) = f32(static_cast<double>(m.react_M(k)) + f[1] - m.SF_fix(i, 2));
        }
        if (m.sup_node(k) == B) {
            m.react_V(k) = f32(static_cast<double>(m.react_V(k)) + f[2] - m.SF_fix(i, 3));
            m.react_M(k) = f32(static_cast<double>(m.react_M(k)) + f[3] + m.SF_fix(i, 4));
        }
    }
}

DeflectionShapes::DeflectionShapes(const Model& m)
    : m_shapes(std::make_unique_for_overwrite<std::array<double, 4>[]>(
          static_cast<std::size_t>(kMaxSpans * kMaxPoints)))
{
    for (int i = 1; i <= m.nf; ++i) {
        const double L = m.ffl_s(i);
        for (int j = 3; j <= m.nxtot_s(i); ++j) {
            const double x = m.xl_s(i, j);
            const double x2 = x * x;
            const double x3 = x2 * x;
            const double L2 = L * L;
            m_shapes[index(i, j)] = {x2 / L2, 3 - 2 * x / L, x3 / L2 - x2 / L, x3 / L2 - 2 * x2 / L + x};
        }
    }
}

void member_deflections(Model& m, int i, const DeflectionShapes& shapes)
{
    const auto [vA, tA, vB, tB] = end_displacements(m, i);
    if (m.nsupLeft_s == kFree && i == 1) {
        m.W_tot(1, 1) = vA * 1000;
    }
    if (m.nsupRight_s == kFree && i == m.nf) {
        m.W_tot(i, 2) = vB * 1000;
    }

    const double EI = m.E_kNm2 * m.I_span_m4(i);
    for (int j = 3; j <= m.nxtot_s(i); ++j) {
        const auto& [p, q, r, s] = shapes.at(i, j);
        m.W_nod(i, j) = vA + p * (vB - vA) * q + tB * r + tA * s;
        m.W_tot(i, j) = 1000 * (m.W_nod(i, j) - m.W_fix(i, j) / EI);
    }
}

void member_deflections(Model& m, int i)
{
    member_deflections(m, i, DeflectionShapes(m));
}

} // namespace kvelder
