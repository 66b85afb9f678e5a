#pragma once

#include <filesystem>
#include <optional>

namespace kvelder {

// The program file that runs, as the platform names it; none where it cannot say.
std::optional<std::filesystem::path> executable_path();

// The folder the program runs from, where its Help folder lies; the current
// folder where the platform cannot say.
std::filesystem::path program_dir();

// The data files installed with a program in `program_dir`: "<prefix>/share/kvelder"
// beside "<prefix>/bin", where the material catalogue is there. None for a
// program that runs from its build tree.
std::optional<std::filesystem::path> installed_data_dir(const std::filesystem::path& program_dir);

// The folder of the manual and the update information: "Help" in the installed
// data folder, or beside a program that runs from its build tree.
std::filesystem::path help_dir(const std::filesystem::path& program_dir);

} // namespace kvelder
