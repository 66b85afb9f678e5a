#pragma once

#include "model/model.h"

#include <array>

namespace kvelder {

// Bending stiffness of one prismatic member over the freedoms (v at A, rotation
// at A, v at B, rotation at B); up and anticlockwise positive.
struct MemberStiffness {
    std::array<std::array<double, 4>, 4> k{};
    // k11, k12, k22, k13, k14, k23, k24, k33, k34, k44: the order that the
    // recovery of end forces reads.
    std::array<double, 10> packed{};
};

MemberStiffness member_stiffness(float L, double E, double I);

// The 4 x 4 matrix again from its packed list.
std::array<std::array<double, 4>, 4> unpack_stiffness(const Model& m, int member);

// Fills neq, nband and K_band (upper band, row by row) with the restraints
// folded in as unit diagonals; also keeps each member's packed stiffness.
void assemble_band(Model& m);

// In-place L D L^T factorisation of the band in K_band, without pivoting;
// the result is copied to K_fact.
void factorise(Model& m, int n, int b);

// Overwrites the first n entries of `vector` with the solution, using K_fact.
void solve(const Model& m, int n, int b, Table<double, kBandStorage>& vector);

// Numbering, restraints, assembly and factorisation: once per recalculation.
void assemble_and_factorise(Model& m);

// Solves F_load for the current load case into D_disp.
void solve_load_case(Model& m);

} // namespace kvelder
