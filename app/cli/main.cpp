// kvelder-cli: the calculation without the window, for scripts and for tests.

#include "app/cli/commands.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#ifdef KVELDER_WITH_QT
#include <QCoreApplication>
#endif

namespace {

namespace fs = std::filesystem;

// The data folder installed beside the program, or the one of the source tree
// that a build runs from.
fs::path installed_data_dir([[maybe_unused]] int argc, [[maybe_unused]] char** argv)
{
#ifdef KVELDER_WITH_QT
    const QCoreApplication app(argc, argv);
    const fs::path exe_dir = QCoreApplication::applicationDirPath().toStdWString();
    const fs::path beside = exe_dir.parent_path() / "share" / "kvelder";
    std::error_code ec;
    if (fs::exists(beside / "EC5Material.csv", ec)) {
        return beside;
    }
#endif
    return fs::path(KVELDER_SOURCE_DATA_DIR);
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    return kvelder::cli::run_cli(args, installed_data_dir(argc, argv), std::cout, std::cerr);
}
