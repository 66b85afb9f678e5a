#include "tests/support/simple_span.h"

#include <algorithm>

namespace kvelder::test {
namespace {

// Sections this close to the right of a load see it.
constexpr double kAtLoad = 1e-5;

// The curvature integrals take the midpoint rule on this many steps: a jump of
// the moment diagram costs a few 1e-4 relative at most, well inside what the
// program's deflection is held to.
constexpr int kSteps = 4000;

} // namespace

double SimpleSpan::line_load_up_to(double x) const
{
    double sum = 0;
    for (const Line& l : m_lines) {
        const double end = std::min(x, l.b);
        if (end <= l.a) {
            continue;
        }
        const double q_end = l.q1 + (l.q2 - l.q1) * (end - l.a) / (l.b - l.a);
        sum += (l.q1 + q_end) / 2 * (end - l.a);
    }
    return sum;
}

// Moment about the section x of the line loads left of it: the integral of
// q(t) (x - t) over the loaded part left of x, with q linear in t.
double SimpleSpan::line_moment_about(double x) const
{
    double sum = 0;
    for (const Line& l : m_lines) {
        const double U = std::min(x, l.b) - l.a;
        if (U <= 0) {
            continue;
        }
        const double s = (l.q2 - l.q1) / (l.b - l.a);
        const double d = x - l.a;
        sum += l.q1 * (d * U - U * U / 2) + s * (d * U * U / 2 - U * U * U / 3);
    }
    return sum;
}

double SimpleSpan::total_load() const
{
    double sum = line_load_up_to(m_L);
    for (const Point& p : m_points) {
        sum += p.P;
    }
    return sum;
}

double SimpleSpan::reaction_left() const
{
    // Moments about the right support.
    double sum = line_moment_about(m_L);
    for (const Point& p : m_points) {
        sum += p.P * (m_L - p.a);
    }
    for (const Couple& c : m_moments) {
        sum -= c.M;
    }
    return sum / m_L;
}

double SimpleSpan::shear(double x) const
{
    double v = reaction_left() - line_load_up_to(x);
    for (const Point& p : m_points) {
        if (p.a <= x + kAtLoad) {
            v -= p.P;
        }
    }
    return v;
}

double SimpleSpan::moment_at(double x) const
{
    double m = reaction_left() * x - line_moment_about(x);
    for (const Point& p : m_points) {
        if (p.a <= x + kAtLoad) {
            m -= p.P * (x - p.a);
        }
    }
    for (const Couple& c : m_moments) {
        if (c.a <= x + kAtLoad) {
            m += c.M;
        }
    }
    return m;
}

double SimpleSpan::curvature_integral(double x) const
{
    const double h = x / kSteps;
    double sum = 0;
    for (int k = 0; k < kSteps; ++k) {
        const double t = (k + 0.5) * h;
        sum += (x - t) * moment_at(t);
    }
    return sum * h;
}

double SimpleSpan::deflection_mm(double x) const
{
    // w'' = M / EI with w(0) = w(L) = 0.
    const double slope0 = -curvature_integral(m_L) / m_L;
    return 1000 * (slope0 * x + curvature_integral(x)) / m_EI;
}

} // namespace kvelder::test
