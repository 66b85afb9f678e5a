#include "files/replace_file.h"

#include "files/windows_api.h"

#include <cerrno>
#include <chrono>
#include <fstream>
#include <thread>

namespace kvelder {
namespace {

namespace fs = std::filesystem;

// The file's own permission, not whether this process could write it: the
// read-only mark of Windows shows here as a file without write permission.
bool read_only(const fs::path& path)
{
    std::error_code ec;
    const fs::file_status status = fs::status(path, ec);
    return !ec && fs::is_regular_file(status) &&
           (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

// Windows refuses to rename over a file that another program (an editor, a
// virus scanner, a backup) has open, and lets go after a moment. Elsewhere a
// rename does not care who has the file open.
bool held_open([[maybe_unused]] const std::error_code& ec)
{
#ifdef _WIN32
    if (ec.category() == std::system_category()) {
        return ec.value() == ERROR_ACCESS_DENIED || ec.value() == ERROR_SHARING_VIOLATION ||
               ec.value() == ERROR_LOCK_VIOLATION;
    }
    return ec == std::errc::permission_denied || ec == std::errc::device_or_resource_busy;
#else
    return false;
#endif
}

std::error_code write_new(const fs::path& partial, std::span<const std::byte> bytes)
{
    errno = 0;
    std::ofstream out(partial, std::ios::binary | std::ios::trunc);
    if (!out) {
        // The stream keeps no reason; the C library's is the best there is.
        return errno != 0 ? std::error_code(errno, std::generic_category())
                          : std::make_error_code(std::errc::io_error);
    }
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return out ? std::error_code() : std::make_error_code(std::errc::io_error);
}

} // namespace

std::optional<ReplaceFailure> replace_file(const fs::path& path, std::span<const std::byte> bytes)
{
    if (read_only(path)) {
        return ReplaceFailure{ReplaceFailure::Kind::ReadOnly,
                              std::make_error_code(std::errc::permission_denied)};
    }
    fs::path partial = path;
    partial += ".new";
    std::error_code ignored;
    if (const std::error_code ec = write_new(partial, bytes)) {
        fs::remove(partial, ignored);
        return ReplaceFailure{ReplaceFailure::Kind::Unwritable, ec};
    }
    // Five tries, a quarter of a second apart.
    std::error_code ec;
    for (int tries = 1;; ++tries) {
        fs::rename(partial, path, ec);
        if (!ec) {
            return std::nullopt;
        }
        if (!held_open(ec) || tries == 5) {
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
    }
    fs::remove(partial, ignored);
    return ReplaceFailure{held_open(ec) ? ReplaceFailure::Kind::InUse : ReplaceFailure::Kind::Unwritable, ec};
}

} // namespace kvelder
