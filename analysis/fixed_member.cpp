#include "analysis/fixed_member.h"

#include "model/numbers.h"

#include <cmath>

namespace kvelder {
namespace {

// A calculation point at the load itself counts as right of the load.
constexpr double kLeftOfLoad = -0.00001;

bool left_of(double x, double a)
{
    return x - a < kLeftOfLoad;
}

// A concentrated load closer than `margin` to an end of the span acts at that distance.
float keep_off_ends(float L, float a, double margin)
{
    if (a - margin < 0) {
        return f32(margin);
    }
    if (std::fabs(static_cast<double>(L) - a) - margin < 0) {
        return f32(L - margin);
    }
    return a;
}

// Clamped-beam deflection of a point load, the part left of the load:
// P b^2 x^2 (3aL - 3ax - bx) / (6 L^3).
double clamped_point_left(double L, double x, double P, double a)
{
    const double r = a / L;
    return P * a * x * x / 6 * ((3 - 6 * r + 3 * r * r) - (1 - 3 * r * r + 2 * r * r * r) * x / a);
}

// The point-load deflection without any test of the distance to the ends.
double point_deflection_anywhere(float L, float x, float P, float a)
{
    // A strip of a line load without width carries nothing.
    if (P == 0.0F) {
        return 0;
    }
    const float b = f32(static_cast<double>(L) - a);
    if (x > a) {
        return clamped_point_left(L, static_cast<double>(L) - x, P, b);
    }
    return clamped_point_left(L, x, P, a);
}

} // namespace

PointLoadForces::PointLoadForces(float L, float P, float a) : m_L(L), m_P(P)
{
    m_a = keep_off_ends(L, a, 0.001);
    const double Ld = m_L;
    m_b = f32(Ld - m_a);
    m_mL = f32(static_cast<double>(P) * m_a * m_b * m_b / (Ld * Ld));
    m_mR = f32(static_cast<double>(m_mL) * m_a / m_b);
    m_R = f32((static_cast<double>(m_mL) - m_mR) / Ld);
}

ShearMoment PointLoadForces::at(float x) const
{
    const double Ld = m_L;
    const float T = f32(-((static_cast<double>(m_mR) - m_mL) * x / Ld + m_mL));
    if (left_of(x, m_a)) {
        return {f32(static_cast<double>(m_b) * m_P / Ld + m_R),
                f32(static_cast<double>(m_b) * m_P / Ld * x + T)};
    }
    return {f32(-static_cast<double>(m_P) * m_a / Ld + m_R),
            f32(static_cast<double>(m_P) * m_a / Ld * (Ld - x) + T)};
}

ShearMoment point_load_forces(float L, float x, float P, float a)
{
    return PointLoadForces(L, P, a).at(x);
}

LineLoadForces::LineLoadForces(float L, float a, float b, float q1, float q2)
    : m_L(L), m_a(a), m_b(b), m_q1(q1), m_q2(q2), m_w(f32(m_b - m_a))
{
    const double Ld = m_L;
    const double ad = m_a;
    const double bd = m_b;
    const float w = m_w;

    // Reactions of the load on a simple beam.
    m_RA = f32(((3 * Ld - 2 * ad - bd) * q1 + (3 * Ld - 2 * bd - ad) * q2) * w / (6 * Ld));
    m_RB = f32(((2 * ad + bd) * q1 + (2 * bd + ad) * q2) * w / (6 * Ld));
    const float RA = m_RA;
    const float RB = m_RB;

    // Area and first moment about the left end of its moment diagram, in closed form.
    const double w3 = static_cast<double>(w) * w * w;
    const float A = f32(RA * bd * bd / 2 - w3 * (3.0 * q1 + q2) / 24 + RB * (Ld - bd) * (Ld - bd) / 2);
    const float S =
        f32(RA * bd * bd * bd / 3 - ad * w3 * (3.0 * q1 + q2) / 24 - w3 * w * (11.0 * q1 + 4.0 * q2) / 120 +
            RB * (Ld - bd) * (Ld - bd) * (Ld + 2 * bd) / 6);

    // End moments of the held member by the moment-area rule. A diagram without
    // area has no centroid; the same rule then reads without the division.
    if (A != 0.0F) {
        const float xbar = f32(static_cast<double>(S) / A);
        m_mL = f32(2 * (2 * Ld - 3.0 * xbar) * A / (Ld * Ld));
        m_mR = f32(2 * (3.0 * xbar - Ld) * A / (Ld * Ld));
    } else {
        m_mL = f32((4 * Ld * A - 6.0 * S) / (Ld * Ld));
        m_mR = f32((6.0 * S - 2 * Ld * A) / (Ld * Ld));
    }
}

ShearMoment LineLoadForces::at(float x) const
{
    const double Ld = m_L;
    const double ad = m_a;
    const double bd = m_b;
    const float q1 = m_q1;
    const float q2 = m_q2;
    const float w = m_w;

    // The moment diagram of the load on a simple beam.
    float M0 = 0;
    float V0 = 0;
    if (x <= m_a) {
        M0 = f32(static_cast<double>(m_RA) * x);
        V0 = m_RA;
    } else if (x < m_b) {
        const double u = static_cast<double>(x) - ad;
        const double lever = 3 * bd - 2 * ad - x;
        M0 = f32(static_cast<double>(m_RA) * x - (q1 * lever * u * u + q2 * u * u * u) / (6.0 * w));
        V0 = f32(m_RA - (2 * q1 * lever * u - (static_cast<double>(q1) - 3.0 * q2) * u * u) / (6.0 * w));
    } else {
        M0 = f32(static_cast<double>(m_RB) * (Ld - x));
        V0 = -m_RB;
    }
    return {f32(static_cast<double>(V0) + (static_cast<double>(m_mL) - m_mR) / Ld),
            f32(M0 - (m_mL + (static_cast<double>(m_mR) - m_mL) * x / Ld))};
}

ShearMoment line_load_forces(float L, float x, float a, float b, float q1, float q2)
{
    return LineLoadForces(L, a, b, q1, q2).at(x);
}

MomentLoadForces::MomentLoadForces(float L, float M, float a) : m_M(M)
{
    m_a = keep_off_ends(L, a, 0.0001);
    const double Ld = L;
    const float b = f32(Ld - m_a);
    m_shear = f32(-6.0 * M * m_a * b / std::pow(Ld, 3.0));
    m_mL = f32(static_cast<double>(M) * b * (2.0 * m_a - b) / std::pow(Ld, 2.0));
}

ShearMoment MomentLoadForces::at(float x) const
{
    if (left_of(x, m_a)) {
        return {m_shear, f32(static_cast<double>(m_shear) * x + m_mL)};
    }
    return {m_shear, f32(static_cast<double>(m_shear) * x + m_mL + m_M)};
}

ShearMoment moment_load_forces(float L, float x, float M, float a)
{
    return MomentLoadForces(L, M, a).at(x);
}

double point_load_deflection(float L, float x, float P, float a)
{
    if (!(0.001 <= a && 0.001 <= static_cast<double>(L) - a)) {
        return 0;
    }
    return point_deflection_anywhere(L, x, P, a);
}

double uniform_load_deflection(float L, float x, float q)
{
    const double Ld = L;
    const double r = 1 - x / Ld;
    return q * Ld * Ld * x * x * r * r / 24;
}

LineLoadDeflection::LineLoadDeflection(float L, float a, float b, float q1, float q2) : m_L(L)
{
    const double dx = (static_cast<double>(b) - a) / kStrips;
    const double dq = (static_cast<double>(q2) - q1) / kStrips;
    for (int k = 0; k < kStrips; ++k) {
        const float P = f32(dx * (q1 + (k + 1 - 0.5) * dq));
        m_at[k] = f32(a + dx / 2 + k * dx);
        // A strip of a line load without width carries nothing.
        m_empty[k] = P == 0.0F;
        const auto side = [this, P, k](Sides& s, double c) {
            const double r = c / m_L;
            s.Pc[k] = static_cast<double>(P) * c;
            s.A[k] = 3 - 6 * r + 3 * r * r;
            s.B[k] = 1 - 3 * r * r + 2 * r * r * r;
            s.c[k] = c;
        };
        side(m_left, m_at[k]);
        side(m_right, f32(m_L - m_at[k]));
        m_in_order = m_in_order && !std::isnan(m_at[k]) && (k == 0 || m_at[k - 1] <= m_at[k]);
    }
}

double LineLoadDeflection::at(float x) const
{
    // Each strip's share, left or right of it as the point stands, worked out
    // run by run so that the divisions go in pairs; then summed in the
    // strips' order, as one strip after the other would sum them.
    double share[kStrips];
    const auto shares = [&share](const Sides& s, int from, int to, double u) {
        for (int k = from; k < to; ++k) {
            share[k] = s.Pc[k] * u * u / 6 * (s.A[k] - s.B[k] * u / s.c[k]);
        }
    };
    const double right_x = m_L - x;
    if (m_in_order) {
        int k = 0;
        while (k < kStrips && x > m_at[k]) {
            ++k;
        }
        shares(m_right, 0, k, right_x);
        shares(m_left, k, kStrips, x);
    } else {
        for (int k = 0; k < kStrips; ++k) {
            x > m_at[k] ? shares(m_right, k, k + 1, right_x) : shares(m_left, k, k + 1, x);
        }
    }
    double sum = 0;
    for (int k = 0; k < kStrips; ++k) {
        if (!m_empty[k]) {
            sum += share[k];
        }
    }
    return sum;
}

double line_load_deflection(float L, float x, float a, float b, float q1, float q2)
{
    return LineLoadDeflection(L, a, b, q1, q2).at(x);
}

double moment_load_deflection(float L, float x, float M, float a)
{
    if (a < 0.001) {
        a = f32(0.0001);
    } else if (std::fabs(static_cast<double>(L) - a) - 0.001 < 0) {
        a = f32(L - 0.00001);
    }
    const double Ld = L;
    const float b = f32(Ld - a);
    if (x > a) {
        const double r = Ld - x;
        return -static_cast<double>(a) * M * r * r / (2 * Ld * Ld) * (a - 2.0 * b * x / Ld);
    }
    return static_cast<double>(b) * M * x * x / (2 * Ld * Ld) * (Ld - 3.0 * a + 2.0 * a * x / Ld);
}

} // namespace kvelder
