#include "files/replace_file.h"

#include <fstream>

namespace kvelder {

std::error_code replace_file(const std::filesystem::path& path, std::span<const std::byte> bytes)
{
    std::filesystem::path partial = path;
    partial += ".new";
    std::error_code ec;
    {
        std::ofstream out(partial, std::ios::binary | std::ios::trunc);
        if (!out) {
            return std::make_error_code(std::errc::permission_denied);
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
