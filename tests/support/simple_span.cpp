#include "tests/support/simple_span.h"

#include <algorithm>

namespace kvelder::test {
namespace {

// Sections this close to the right of a load see it.
constexpr double kAtLoad = 1e-5;

// Composite Simpson rule; the moment diagram is smooth between loads, and the
// step is fine enough that its kinks cost no more than about 1e-8 relative.
template <typename F> double simpson(F f, double from, double to, int steps = 4000)
{
    if (to <= from) {
        return 0;
    }
    const double h = (to - from) / steps;
    double s = f(from) + f(to);
    for (int k = 1; k < steps; ++k) {
        s += f(from + k * h) * (k % 2 == 1 ? 4 : 2);
    }
    return s * h / 3;
}

} // namespace

double SimpleSpan::line_load_up_to(double x) const
{
    double sum = 0;
    for (const Line& l : m_lines) {
        const double end = std::min(x, l.b);
        if (end <= l.a) {
            continue;
        }
        const double w = l.b - l.a;
        const double q_end = l.q1 + (l.q2 - l.q1) * (end - l.a) / w;
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
    // Split at every load position so that Simpson never straddles a kink or a jump.
    std::vector<double> cuts{0.0, x};
    for (const Line& l : m_lines) {
        cuts.push_back(l.a);
        cuts.push_back(l.b);
    }
    for (const Point& p : m_points) {
        cuts.push_back(p.a);
    }
    for (const Couple& c : m_moments) {
        cuts.push_back(c.a);
    }
    std::sort(cuts.begin(), cuts.end());
    double sum = 0;
    for (std::size_t k = 0; k + 1 < cuts.size(); ++k) {
        const double from = std::clamp(cuts[k], 0.0, x);
        const double to = std::clamp(cuts[k + 1], 0.0, x);
        // Evaluate inside each piece, clear of the zone where a section counts as
        // right of the load at its end.
        const double eps = 2 * kAtLoad;
        if (to - from <= 2 * eps) {
            const double mid = (from + to) / 2;
            sum += (to - from) * (x - mid) * moment_at(mid);
            continue;
        }
        sum += simpson([&](double t) { return (x - t) * moment_at(std::clamp(t, from + eps, to - eps)); },
                       from, to, 200);
    }
    return sum;
}

double SimpleSpan::deflection_mm(double x) const
{
    // w'' = M / EI with w(0) = w(L) = 0.
    const double slope0 = -curvature_integral(m_L) / m_L;
    return 1000 * (slope0 * x + curvature_integral(x)) / m_EI;
}

} // namespace kvelder::test
