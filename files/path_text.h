#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kvelder {

// The one place where a path becomes text and text a path. Our texts are UTF-8
// on every platform; Windows keeps paths as UTF-16 and converts path::string()
// through the ANSI code page, which mangles or refuses a name like
// "Ω-bjelke.kvel", so both ways go through std::u8string.
std::filesystem::path path_from_utf8(std::string_view text);
std::string utf8_text(const std::filesystem::path& path);

} // namespace kvelder
