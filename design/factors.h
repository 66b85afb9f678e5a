#pragma once

#include "model/model.h"

namespace kvelder {

// The factors of the current annex, classes, material family and section, in
// the order a recalculation runs them. Each reads and writes the model only; a
// class, annex or family that a table does not know leaves its factor as it was.

// kfi and the six ULS factors of the annex; also the SLS factors without creep,
// which Calc_kdef then replaces.
void Calc_load_factors(Model& m);

// The active material from row `row` of the material catalogue. A row that the
// catalogue does not hold leaves the active material as it was.
void Read_material_data(Model& m, int row);

// kdef by service class, and the three deflection factors with creep.
void Calc_kdef(Model& m);

void Calc_kcr(Model& m);
void Calc_kmod(Model& m);
void Calc_kh(Model& m);
void Calc_gamma_M(Model& m);

// Material family codes, blank-padded to ten characters as the model keeps them.
inline constexpr const char* kTimber = "tre_bjelke";
inline constexpr const char* kLaminated = "lam_bjelke";
inline constexpr const char* kKerto = "kerto     ";
inline constexpr const char* kKBeam = "k_bjelke  ";

// The family code of a family index 0..3 (timber, laminated, kerto, k_bjelke).
const char* family_code(int prof_type_index);

} // namespace kvelder
