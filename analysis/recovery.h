#pragma once

#include "model/model.h"

#include <array>
#include <cstddef>
#include <memory>

namespace kvelder {

// Recovery of member i after the load case has been solved.

// Shear and sagging moment at every calculation point: the held-member values
// plus those of the end displacements (SF_end, SF_tot).
void member_forces(Model& m, int i);

// Adds member i's end forces to react_V and react_M of the supported nodes at its
// ends; a downward load gives a positive react_V.
void member_reactions(Model& m, int i);

// What the deflection between the nodes takes of each calculation point's
// place along its span: the same for every load case on the same grid.
class DeflectionShapes {
public:
    explicit DeflectionShapes(const Model& m);
    // The four factors of point j of span i: of the end deflections, of their
    // difference, and of the end rotations at B and at A.
    const std::array<double, 4>& at(int i, int j) const { return m_shapes[index(i, j)]; }

private:
    static std::size_t index(int i, int j)
    {
        return static_cast<std::size_t>((i - 1) * kMaxPoints + (j - 1));
    }
    // Only the points of the beam are ever written and read.
    std::unique_ptr<std::array<double, 4>[]> m_shapes;
};

// Deflection in mm, up positive, at every calculation point (W_nod, W_tot).
// Only a free end has a deflection of its own; other end values stay 0.
void member_deflections(Model& m, int i, const DeflectionShapes& shapes);
void member_deflections(Model& m, int i);

} // namespace kvelder
