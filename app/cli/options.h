#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kvelder::cli {

// The exit codes of the command.
constexpr int kCalculated = 0;
constexpr int kCheckFailed = 1;
constexpr int kUsageError = 2;

extern const char* const kUsage;

// A failure that ends the command with its exit code and one line on stderr
// (the usage text where the line is empty).
struct Stop {
    int code;
    std::string line;
};

struct Options {
    std::string command; // "calc", "save", "dump", "plot", "report", "bench", "size" or "annexes"
    std::optional<std::filesystem::path> input;
    std::optional<std::filesystem::path>
        output; // the project file of "save", the folder of "plot", the PDF of "report"
    std::optional<std::filesystem::path> data_dir; // as given by --data-dir
    std::filesystem::path installed_data_dir;      // the data folder without --data-dir
    bool text = false;
    bool detailed = false; // "report" with the detailed pages
    int runs = 1000;
    int width = 800, height = 300; // pixels of each picture of "plot"
    float height_step = 5;         // mm between the heights "size" tries for a free rectangle
};

// The kinds of input the tool reads, by the extension of the file.
bool is_project(const std::filesystem::path& path);
bool is_description(const std::filesystem::path& path);

// The command line after the program's name, or why it cannot be used.
std::variant<Options, Stop> parse(const std::vector<std::string>& args);

} // namespace kvelder::cli
