#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The lines of a text, without their line ends ("\n" or "\r\n").
std::vector<std::string> split_lines(std::string_view text);

// The columns of a semicolon-separated line.
std::vector<std::string> split_columns(std::string_view line);

// The whole content of a file, or none when it cannot be opened or read.
std::optional<std::string> read_text_file(const std::filesystem::path& path);

} // namespace kvelder
