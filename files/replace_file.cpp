#include "files/replace_file.h"

#include <cerrno>
#include <fstream>

namespace kvelder {

std::error_code replace_file(const std::filesystem::path& path, std::span<const std::byte> bytes)
{
    std::filesystem::path partial = path;
    partial += ".new";
    std::error_code ec;
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
        if (!out) {
            std::filesystem::remove(partial, ec);
            return std::make_error_code(std::errc::io_error);
        }
    }
    std::filesystem::rename(partial, path, ec);
    if (ec) {
        std::error_code ignored;
        std::filesystem::remove(partial, ignored);
    }
    return ec;
}

} // namespace kvelder
