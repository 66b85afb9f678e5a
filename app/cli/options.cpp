#include "app/cli/options.h"

#include "files/path_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <stdexcept>

namespace kvelder::cli {

const char* const kUsage = "usage: kvelder-cli calc [INPUT] [--data-dir DIR] [--text]\n"
                           "       kvelder-cli save [BEAM.json] -o FILE.kvel [--data-dir DIR]\n"
                           "       kvelder-cli dump FILE.kvel [--data-dir DIR]\n"
                           "       kvelder-cli plot [INPUT] -o DIR [--size WxH] [--data-dir DIR]\n"
                           "       kvelder-cli report [INPUT] -o FILE.pdf [--detailed] [--data-dir DIR]\n"
                           "       kvelder-cli bench [INPUT] [-n N] [--data-dir DIR]\n"
                           "       kvelder-cli size [INPUT] [--step MM] [--data-dir DIR]\n"
                           "       kvelder-cli annexes [INPUT] [--data-dir DIR]\n"
                           "INPUT is a beam description (.json) or a project file (.kvel); without it the\n"
                           "example beam is used. save writes the beam as a project file, dump writes a\n"
                           "project file as a beam description, plot draws the six pictures of the window\n"
                           "as PNG files, report writes the printed report as a PDF, size finds the\n"
                           "lightest section of the family that carries the beam, annexes calculates the\n"
                           "beam under each national annex of the setup.\n";

namespace {

bool has_extension(const std::filesystem::path& path, std::string_view extension)
{
    std::string e = utf8_text(path.extension());
    std::transform(e.begin(), e.end(), e.begin(), [](unsigned char c) { return std::tolower(c); });
    return e == extension;
}

// "WxH", each side 16 to 8000 pixels.
void size_into(const std::string& text, Options& o)
{
    const std::size_t x = text.find('x');
    try {
        std::size_t used_w = 0, used_h = 0;
        if (x == std::string::npos) {
            throw std::invalid_argument(text);
        }
        const int w = std::stoi(text.substr(0, x), &used_w);
        const int h = std::stoi(text.substr(x + 1), &used_h);
        if (used_w != x || used_h != text.size() - x - 1 || w < 16 || h < 16 || w > 8000 || h > 8000) {
            throw std::invalid_argument(text);
        }
        o.width = w;
        o.height = h;
    } catch (const std::logic_error&) {
        throw Stop{kUsageError, "--size needs WIDTHxHEIGHT in pixels, 16 to 8000 each, not \"" + text + "\""};
    }
}

void check_input(const Options& o)
{
    if (o.command == "plot" && !o.output) {
        throw Stop{kUsageError, "plot needs -o and the folder for its pictures"};
    }
    if (o.command == "report" && (!o.output || !has_extension(*o.output, ".pdf"))) {
        throw Stop{kUsageError, "report needs -o and a file name ending in .pdf"};
    }
    if (o.command == "dump" && (!o.input || !is_project(*o.input))) {
        throw Stop{kUsageError, "dump needs a project file (.kvel)"};
    }
    if (o.command == "save") {
        if (!o.output || !is_project(*o.output)) {
            throw Stop{kUsageError, "save needs -o and a project file name ending in .kvel"};
        }
        if (o.input && !is_description(*o.input)) {
            throw Stop{kUsageError, utf8_text(*o.input) + ": save reads beam descriptions (.json) only"};
        }
    }
    if (o.input && !is_description(*o.input) && !is_project(*o.input)) {
        throw Stop{kUsageError, utf8_text(*o.input) +
                                    ": only beam descriptions (.json) and project files (.kvel) can be read"};
    }
}

} // namespace

bool is_project(const std::filesystem::path& path)
{
    return has_extension(path, ".kvel");
}

bool is_description(const std::filesystem::path& path)
{
    return has_extension(path, ".json");
}

namespace {

Options parse_or_stop(const std::vector<std::string>& args)
{
    if (args.empty() || args[0] == "--help" || args[0] == "-h") {
        throw Stop{args.empty() ? kUsageError : kCalculated, ""};
    }
    Options o;
    o.command = args[0];
    if (o.command != "calc" && o.command != "save" && o.command != "dump" && o.command != "plot" &&
        o.command != "report" && o.command != "bench" && o.command != "size" && o.command != "annexes") {
        throw Stop{kUsageError, "unknown command \"" + o.command + "\""};
    }
    for (std::size_t k = 1; k < args.size(); ++k) {
        const std::string& a = args[k];
        const auto value = [&]() -> const std::string& {
            if (k + 1 >= args.size()) {
                throw Stop{kUsageError, a + " needs a value"};
            }
            return args[++k];
        };
        if (a == "--data-dir") {
            o.data_dir = path_from_utf8(value());
        } else if (a == "--text" && o.command == "calc") {
            o.text = true;
        } else if (a == "--detailed" && o.command == "report") {
            o.detailed = true;
        } else if (a == "-o" && (o.command == "save" || o.command == "plot" || o.command == "report")) {
            o.output = path_from_utf8(value());
        } else if (a == "--size" && o.command == "plot") {
            size_into(value(), o);
        } else if (a == "-n" && o.command == "bench") {
            const std::string& n = value();
            try {
                std::size_t used = 0;
                o.runs = std::stoi(n, &used);
                if (used != n.size() || o.runs < 1) {
                    throw std::invalid_argument(n);
                }
            } catch (const std::logic_error&) {
                throw Stop{kUsageError, "-n needs a whole number of runs above 0, not \"" + n + "\""};
            }
        } else if (a == "--step" && o.command == "size") {
            const std::string& mm = value();
            // from_chars, unlike stof, reads "2.5" whatever locale Qt has set.
            const char* const last = mm.data() + mm.size();
            const auto [end, ec] = std::from_chars(mm.data(), last, o.height_step);
            if (ec != std::errc{} || end != last || !(o.height_step >= 1 && o.height_step <= 1000)) {
                throw Stop{kUsageError,
                           "--step needs the step of the heights in mm, 1 to 1000, not \"" + mm + "\""};
            }
        } else if (!a.empty() && a[0] == '-') {
            throw Stop{kUsageError, "unknown option \"" + a + "\" for " + o.command};
        } else if (o.input) {
            throw Stop{kUsageError, "only one INPUT may be given"};
        } else {
            o.input = path_from_utf8(a);
        }
    }
    check_input(o);
    return o;
}

} // namespace

std::variant<Options, Stop> parse(const std::vector<std::string>& args)
{
    try {
        return parse_or_stop(args);
    } catch (const Stop& stop) {
        return stop;
    }
}

} // namespace kvelder::cli
