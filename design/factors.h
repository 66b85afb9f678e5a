#pragma once

#include "model/model.h"

#include <optional>
#include <string>

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

// The safety factor of a class in an annex: Norway's reliability classes,
// Sweden's safety classes and the classes of Finland and Denmark. None where
// the annex has no such class.
std::optional<float> kfi_of(const std::string& annex, int safety_class);

// psi0 from its position in the list 0.2 .. 1.0, psi2 from its position in 0.0 .. 1.0.
float psi0_of(int index);
float psi2_of(int index);

// Material family codes, blank-padded to ten characters as the model keeps them.
inline constexpr const char* kTimber = "tre_bjelke";
inline constexpr const char* kLaminated = "lam_bjelke";
inline constexpr const char* kKerto = "kerto     ";
inline constexpr const char* kKBeam = "k_bjelke  ";

// The family code of a family index 0..3 (timber, laminated, kerto, k_bjelke).
const char* family_code(int prof_type_index);

} // namespace kvelder
