// kvelder-cli: the calculation without the window, for scripts and for tests.

#include "app/cli/commands.h"
#include "app/cli/platform_args.h"
#include "files/path_text.h"
#include "files/program_folders.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The data folder installed beside the program, or the one of the source tree
// that a build runs from.
fs::path installed_data_dir()
{
    return kvelder::installed_data_dir(kvelder::program_dir())
        .value_or(kvelder::path_from_utf8(KVELDER_SOURCE_DATA_DIR));
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> args = kvelder::cli::utf8_arguments(argc, argv);
    kvelder::cli::print_utf8();
    return kvelder::cli::run_cli(args, installed_data_dir(), std::cout, std::cerr);
}
