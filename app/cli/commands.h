#pragma once

#include "app/cli/options.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace kvelder::cli {

// The whole command: the arguments after the program's name, the data folder
// used without --data-dir, and the two streams. The exit code of the command.
int run_cli(const std::vector<std::string>& args, const std::filesystem::path& installed_data_dir,
            std::ostream& out, std::ostream& err);

// The sub-commands on a parsed command line. plot and report need a QGuiApplication.
int run_calc(const Options& o, std::ostream& out, std::ostream& err);
int run_save(const Options& o, std::ostream& out, std::ostream& err);
int run_dump(const Options& o, std::ostream& out, std::ostream& err);
int run_plot(const Options& o, std::ostream& out, std::ostream& err);
int run_report(const Options& o, std::ostream& out, std::ostream& err);
int run_bench(const Options& o, std::ostream& out, std::ostream& err);
int run_size(const Options& o, std::ostream& out, std::ostream& err);
int run_annexes(const Options& o, std::ostream& out, std::ostream& err);

} // namespace kvelder::cli
