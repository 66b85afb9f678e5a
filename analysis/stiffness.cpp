#include "analysis/stiffness.h"

#include "analysis/numbering.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kvelder {
namespace {

// Element (r, s), s >= r, of a band matrix stored row by row, b entries a row.
int band_index(int b, int r, int s)
{
    return b * (r - 1) + (s - r) + 1;
}

} // namespace

MemberStiffness member_stiffness(float L, double E, double I)
{
    const double EI = E * I;
    const double L1 = L;
    const double L2 = std::pow(L1, 2.0);
    const double L3 = std::pow(L1, 3.0);

    MemberStiffness s;
    s.packed = {12 * EI / L3, 6 * EI / L2, 4 * EI / L1,  -12 * EI / L3, 6 * EI / L2,
                -6 * EI / L2, 2 * EI / L1, 12 * EI / L3, -6 * EI / L2,  4 * EI / L1};
    const auto& p = s.packed;
    s.k = {{{p[0], p[1], p[3], p[4]},
            {p[1], p[2], p[5], p[6]},
            {p[3], p[5], p[7], p[8]},
            {p[4], p[6], p[8], p[9]}}};
    return s;
}

std::array<std::array<double, 4>, 4> unpack_stiffness(const Model& m, int member)
{
    auto p = [&](int pos) { return m.k_member(member, pos); };
    return {{{p(1), p(2), p(4), p(5)},
             {p(2), p(3), p(6), p(7)},
             {p(4), p(6), p(8), p(9)},
             {p(5), p(7), p(9), p(10)}}};
}

void assemble_band(Model& m)
{
    int widest = 0;
    for (int i = 1; i <= m.nf; ++i) {
        widest = std::max(widest, std::abs(m.nodeA(i) - m.nodeB(i)));
    }
    m.nband = static_cast<std::int16_t>(2 * widest + 2);
    m.neq = static_cast<std::int16_t>(2 * m.nnodes);
    const int b = m.nband;

    for (int i = 1; i <= m.nf; ++i) {
        const MemberStiffness k = member_stiffness(m.ffl_s(i), m.E_kNm2, m.I_span_m4(i));
        for (int pos = 1; pos <= 10; ++pos) {
            m.k_member(i, pos) = k.packed[static_cast<std::size_t>(pos - 1)];
        }
    }

    int next = 1;
    for (int n = 1; n <= m.nnodes; ++n) {
        // Two rows (the freedoms of n); column c is freedom c counted from n's first.
        double S[2][kBandStorage + 2] = {};
        auto at = [&](int row, int col) -> double& { return S[row - 1][col - 1]; };

        for (int i = 1; i <= m.nf; ++i) {
            if (m.nodeA(i) == n) {
                const int c = 2 * (m.nodeB(i) - n) + 1;
                at(1, 1) += m.k_member(i, 1);
                at(1, 2) += m.k_member(i, 2);
                at(2, 2) += m.k_member(i, 3);
                at(1, c) += m.k_member(i, 4);
                at(1, c + 1) += m.k_member(i, 5);
                at(2, c) += m.k_member(i, 6);
                at(2, c + 1) += m.k_member(i, 7);
            }
            if (m.nodeB(i) == n) {
                at(1, 1) += m.k_member(i, 8);
                at(1, 2) += m.k_member(i, 9);
                at(2, 2) += m.k_member(i, 10);
            }
        }

        for (int r = 1; r <= m.nrestr; ++r) {
            const int node = m.restr(1, r);
            const int d = m.restr(2, r);
            if (node == n) {
                for (int col = 1; col <= b + 2; ++col) {
                    at(d, col) = 0;
                }
                for (int row = 1; row < d; ++row) {
                    at(row, d) = 0;
                }
                at(d, d) = 1;
            } else if (node > n) {
                const int c = 2 * (node - n) + d;
                if (c <= b) {
                    at(1, c) = 0;
                    at(2, c) = 0;
                }
            }
        }

        for (int d = 1; d <= 2; ++d) {
            for (int col = d; col <= b + d - 1; ++col) {
                m.K_band(next++) = at(d, col);
            }
        }
    }
}

void factorise(Model& m, int n, int b)
{
    auto K = [&](int r, int s) -> double& { return m.K_band(band_index(b, r, s)); };

    for (int piv = 1; piv <= n - 1; ++piv) {
        const int last = (piv + b - n > 0) ? n : piv + b - 1;
        for (int i = piv + 1; i <= last; ++i) {
            const double c = K(piv, i) / K(piv, piv);
            // Exact zeros come from the restraints; keeping them keeps those rows unit.
            if (c == 0.0) {
                continue;
            }
            for (int j = i; j <= last; ++j) {
                K(i, j) = K(i, j) - c * K(piv, j);
            }
            K(piv, i) = c;
        }
    }
    for (int e = 1; e <= n * b; ++e) {
        m.K_fact(e) = m.K_band(e);
    }
}

void solve(const Model& m, int n, int b, Table<double, kBandStorage>& F)
{
    auto K = [&](int r, int s) { return m.K_fact(band_index(b, r, s)); };

    for (int i = 2; i <= n; ++i) {
        double s = 0;
        for (int k = std::max(1, i - b + 1); k <= i - 1; ++k) {
            s += F(k) * K(k, i);
        }
        F(i) = F(i) - s;
    }
    for (int i = 1; i <= n; ++i) {
        F(i) = F(i) / K(i, i);
    }
    for (int i = n - 1; i >= 1; --i) {
        const int j_end = (n - i - b >= 0) ? b + i - 1 : n;
        double s = 0;
        for (int j = i + 1; j <= j_end; ++j) {
            s += F(j) * K(i, j);
        }
        F(i) = F(i) - s;
    }
}

void assemble_and_factorise(Model& m)
{
    member_ends(m);
    restraint_table(m);
    assemble_band(m);
    for (int e = 1; e <= m.neq * m.nband; ++e) {
        m.K_orig(e) = m.K_band(e);
    }
    factorise(m, m.neq, m.nband);
}

void solve_load_case(Model& m)
{
    for (int r = 1; r <= m.nrestr; ++r) {
        m.F_load(2 * (m.restr(1, r) - 1) + m.restr(2, r)) = 0;
    }
    solve(m, m.neq, m.nband, m.F_load);
    for (int e = 1; e <= m.neq; ++e) {
        m.D_disp(e) = m.F_load(e);
    }
}

} // namespace kvelder
