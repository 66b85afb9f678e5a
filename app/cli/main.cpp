// kvelder-cli: the calculation without the window, for scripts and for tests.

#include "app/cli/commands.h"
#include "app/cli/platform_args.h"
#include "drawing/headless_platform.h"
#include "files/path_text.h"
#include "files/program_folders.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <filesystem>
#include <iostream>
#include <memory>

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
    // Only the pictures need Qt's drawing; the rest stays off any display.
    const bool pictures = !args.empty() && (args[0] == "plot" || args[0] == "report");
    if (pictures) {
        kvelder::choose_headless_platform();
    }
    const std::unique_ptr<QCoreApplication> app = pictures ? std::make_unique<QGuiApplication>(argc, argv)
                                                           : std::make_unique<QCoreApplication>(argc, argv);
    return kvelder::cli::run_cli(args, installed_data_dir(), std::cout, std::cerr);
}
