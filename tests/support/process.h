#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kvelder::test {

// What a program left when it ended: its exit code (-1 where it did not end by
// itself) and everything it wrote to its standard output and error.
struct ProcessResult {
    int exit = -1;
    std::string out;
    std::string err;
};

// Runs `program` in `folder` with `args`, each a UTF-8 text that reaches the
// program as one argument exactly as given, and waits for it to end.
ProcessResult run_program(const std::filesystem::path& program, const std::vector<std::string>& args,
                          const std::filesystem::path& folder);

} // namespace kvelder::test
