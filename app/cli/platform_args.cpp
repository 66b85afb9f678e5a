#include "app/cli/platform_args.h"

#include "files/path_text.h"
#include "files/windows_api.h"

#include <filesystem>

#ifdef _WIN32
// After windows.h, which it needs.
#include <shellapi.h>
#endif

namespace kvelder::cli {

std::vector<std::string> utf8_arguments(int argc, char** argv)
{
#ifdef _WIN32
    int count = 0;
    if (LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count); wide != nullptr) {
        std::vector<std::string> args;
        for (int k = 1; k < count; ++k) {
            args.push_back(utf8_text(std::filesystem::path(wide[k])));
        }
        LocalFree(wide);
        return args;
    }
#endif
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

void print_utf8()
{
#ifdef _WIN32
    SetConsoleOutputCP(CP_UTF8);
#endif
}

} // namespace kvelder::cli
