#include "tests/app/cli_run.h"

#include "app/cli/commands.h"
#include "files/path_text.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace kvelder::test {

namespace fs = std::filesystem;

CliRun run(const Args& args, const fs::path& folder)
{
    fs::create_directories(folder);
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    std::ostringstream out, err;
    CliRun r;
    r.exit = cli::run_cli(args, source_data_dir(), out, err);
    fs::current_path(before);
    r.out = out.str();
    r.err = err.str();
    return r;
}

std::string file_text(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string description(const std::string& name, const std::string& text)
{
    const fs::path path = scratch_folder() / name;
    std::ofstream(path) << text;
    return utf8_text(path);
}

std::string scratch(const std::string& name)
{
    return utf8_text(scratch_folder() / name);
}

} // namespace kvelder::test
