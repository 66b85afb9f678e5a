#include "files/text_lines.h"

#include <fstream>
#include <iterator>

namespace kvelder {

std::vector<std::string> split_lines(std::string_view text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) {
            end = text.size();
        }
        std::string_view line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        start = end + 1;
    }
    return lines;
}

std::vector<std::string> split_columns(std::string_view line)
{
    std::vector<std::string> columns;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = line.find(';', start);
        columns.emplace_back(
            line.substr(start, end == std::string_view::npos ? line.size() - start : end - start));
        if (end == std::string_view::npos) {
            return columns;
        }
        start = end + 1;
    }
}

std::optional<std::string> read_text_file(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    std::string content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) {
        return std::nullopt;
    }
    return content;
}

} // namespace kvelder
