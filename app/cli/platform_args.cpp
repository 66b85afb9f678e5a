#include "app/cli/platform_args.h"

#ifdef _WIN32
#include "files/path_text.h"

#include <filesystem>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
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
