#pragma once

// kvelder-cli's commands run in process, the way the CLI tests drive them.

#include "tests/support/beams.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kvelder::test {

using Args = std::vector<std::string>;

struct CliRun {
    int exit = -1;
    std::string out;
    std::string err;
};

// Runs the command in `folder` (the scratch folder unless given), where it
// leaves its trace files, with the source tree's data folder.
CliRun run(const Args& args, const std::filesystem::path& folder = scratch_folder());

std::string file_text(const std::filesystem::path& path);

// A description written to the scratch folder; its path for the command line.
std::string description(const std::string& name, const std::string& text);

// A path in the scratch folder, for the command line.
std::string scratch(const std::string& name);

} // namespace kvelder::test
