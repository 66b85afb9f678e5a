#pragma once

#include <string_view>

namespace kvelder {

// The catalogues and the setup file as shipped, built into the program so that
// a missing or spoilt data folder never leaves it without data.
std::string_view shipped_material_catalogue();
std::string_view shipped_profile_catalogue();
std::string_view shipped_setup_file();

} // namespace kvelder
