#pragma once

#include <vector>

namespace kvelder::test {

// An independent reference for a simply supported span: reactions, shear and
// moment from statics alone, and the deflection by numerical double integration
// of M / EI. It shares no formula with the program.
//
// Loads act downward when positive, moments are positive clockwise; moment is
// sagging positive and deflection up positive, in mm. A section at the very
// position of a concentrated load counts as right of it.
class SimpleSpan {
public:
    SimpleSpan(double L, double EI) : m_L(L), m_EI(EI) {}

    void line(double a, double b, double q1, double q2) { m_lines.push_back({a, b, q1, q2}); }
    void point(double P, double a) { m_points.push_back({P, a}); }
    void moment(double M, double a) { m_moments.push_back({M, a}); }

    double total_load() const;
    double reaction_left() const;
    double reaction_right() const { return total_load() - reaction_left(); }

    double shear(double x) const;
    double moment_at(double x) const;
    double deflection_mm(double x) const;

private:
    struct Line {
        double a, b, q1, q2;
    };
    struct Point {
        double P, a;
    };
    struct Couple {
        double M, a;
    };

    // Load and first moment about x0 of the line loads between 0 and x.
    double line_load_up_to(double x) const;
    double line_moment_about(double x) const;
    double curvature_integral(double x) const; // integral of (x - t) M(t) dt from 0 to x

    double m_L;
    double m_EI;
    std::vector<Line> m_lines;
    std::vector<Point> m_points;
    std::vector<Couple> m_moments;
};

} // namespace kvelder::test
