#pragma once

namespace kvelder {

// One load on one member with both ends held, worked out at one calculation
// point x of a span of length L (metres).
//
// Loads q, q1, q2 and P act downward when positive; a concentrated moment M is
// positive clockwise. Shear is positive when the part left of the section is
// pushed up by its supports; moment is positive for sagging. Deflection is
// returned as EI x deflection (kN m3), positive downward.

struct ShearMoment {
    float shear = 0;
    float moment = 0;
};

// Point load P at a. A load closer than 1 mm to an end is moved to 1 mm.
ShearMoment point_load_forces(float L, float x, float P, float a);

// The same load with its end moments worked out once; at(x) gives
// point_load_forces to the last bit.
class PointLoadForces {
public:
    PointLoadForces(float L, float P, float a);
    ShearMoment at(float x) const;

private:
    double m_L;
    float m_P, m_a, m_b, m_mL, m_mR, m_R;
};

// Line load from q1 at a to q2 at b (a uniform load is a = 0, b = L, q1 = q2).
ShearMoment line_load_forces(float L, float x, float a, float b, float q1, float q2);

// The same load with what does not depend on x worked out once: its
// reactions and end moments. at(x) gives line_load_forces to the last bit.
class LineLoadForces {
public:
    LineLoadForces(float L, float a, float b, float q1, float q2);
    ShearMoment at(float x) const;

private:
    double m_L, m_a, m_b;
    float m_q1, m_q2, m_w;
    float m_RA = 0, m_RB = 0, m_mL = 0, m_mR = 0;
};

// Concentrated moment M at a, inside the span.
ShearMoment moment_load_forces(float L, float x, float M, float a);

// The same load with its shear and end moment worked out once; at(x) gives
// moment_load_forces to the last bit.
class MomentLoadForces {
public:
    MomentLoadForces(float L, float M, float a);
    ShearMoment at(float x) const;

private:
    float m_M, m_a, m_shear, m_mL;
};

// Deflection of a point load; nothing for a load within 1 mm of an end.
double point_load_deflection(float L, float x, float P, float a);

double uniform_load_deflection(float L, float x, float q);

// Deflection of a line load, summed over 20 strips taken as point loads.
double line_load_deflection(float L, float x, float a, float b, float q1, float q2);

// The same load with its strips and their coefficients worked out once.
// at(x) gives line_load_deflection to the last bit.
class LineLoadDeflection {
public:
    LineLoadDeflection(float L, float a, float b, float q1, float q2);
    double at(float x) const;

    static constexpr int kStrips = 20;

private:
    // The strips as point loads, a table a factor: the deflection left of a
    // strip, and right of it read from the other end, each
    // P c x^2 / 6 (A - B x / c).
    struct Sides {
        double Pc[kStrips] = {}, A[kStrips] = {}, B[kStrips] = {}, c[kStrips] = {};
    };
    double m_L;
    float m_at[kStrips] = {};
    bool m_empty[kStrips] = {}; // no width, no load
    Sides m_left, m_right;
    // The strips stand in order along the span: a point is right of a first
    // run of them and left of the rest.
    bool m_in_order = true;
};

double moment_load_deflection(float L, float x, float M, float a);

} // namespace kvelder
