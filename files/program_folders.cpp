#include "files/program_folders.h"

#include "files/data_files.h"
#include "files/windows_api.h"

#include <string>
#include <system_error>

namespace kvelder {

namespace fs = std::filesystem;

std::optional<fs::path> executable_path()
{
#ifdef _WIN32
    // The name comes back cut short, and as long as the buffer, when the buffer is too small.
    constexpr std::size_t kLongestPath = 32768;
    for (std::wstring name(MAX_PATH, L'\0'); name.size() <= kLongestPath; name.resize(name.size() * 2)) {
        const DWORD n = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
        if (n == 0) {
            return std::nullopt;
        }
        if (n < name.size()) {
            name.resize(n);
            return fs::path(name);
        }
    }
    return std::nullopt;
#else
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec || exe.empty()) {
        return std::nullopt;
    }
    return exe;
#endif
}

fs::path program_dir()
{
    if (const std::optional<fs::path> exe = executable_path()) {
        return exe->parent_path();
    }
    std::error_code ec;
    return fs::current_path(ec);
}

std::optional<fs::path> installed_data_dir(const fs::path& program_dir)
{
    const fs::path beside = program_dir.parent_path() / "share" / "kvelder";
    std::error_code ec;
    if (fs::is_regular_file(beside / file_name(DataFile::Material), ec)) {
        return beside;
    }
    return std::nullopt;
}

fs::path help_dir(const fs::path& program_dir)
{
    return installed_data_dir(program_dir).value_or(program_dir) / "Help";
}

} // namespace kvelder
