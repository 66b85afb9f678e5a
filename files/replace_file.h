#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>

namespace kvelder {

// Why a file could not be replaced. Whatever the reason, the old file stands
// whole and no partial file is left beside it.
struct ReplaceFailure {
    enum class Kind {
        ReadOnly,   // the file is marked read-only: refused before anything is written
        InUse,      // another program holds the file open, still after a few tries
        Unwritable, // the new file could not be written or renamed over the old one
    };
    Kind kind;
    std::error_code error; // the platform's reason, where it gave one
};

// Writes `bytes` to a new file beside `path` and renames it over `path`, so a
// reader sees the old file or the whole new one, never a torn one. The same
// rule holds on every platform: a read-only file is never replaced, although
// Linux would let the rename through (and root may write anything); a file
// that another program holds open is tried again for about a second.
std::optional<ReplaceFailure> replace_file(const std::filesystem::path& path,
                                           std::span<const std::byte> bytes);

} // namespace kvelder
