#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <system_error>

namespace kvelder {

// Writes `bytes` to a new file beside `path` and renames it over `path`, so a
// reader sees the old file or the whole new one, never a torn one. On failure
// the new file is removed, the old one stands, and the error is returned.
std::error_code replace_file(const std::filesystem::path& path, std::span<const std::byte> bytes);

} // namespace kvelder
