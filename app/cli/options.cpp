#include "app/cli/options.h"

#include <stdexcept>

namespace kvelder::cli {

const char* const kUsage = "usage: kvelder-cli calc [INPUT] [--data-dir DIR] [--text]\n"
                           "       kvelder-cli bench [INPUT] [-n N] [--data-dir DIR]\n"
                           "INPUT is a beam description (.json); without it the example beam is used.\n";

Options parse(const std::vector<std::string>& args)
{
    if (args.empty() || args[0] == "--help" || args[0] == "-h") {
        throw Stop{args.empty() ? kUsageError : kCalculated, ""};
    }
    Options o;
    o.command = args[0];
    if (o.command != "calc" && o.command != "bench") {
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
            o.data_dir = std::filesystem::path(value());
        } else if (a == "--text" && o.command == "calc") {
            o.text = true;
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
        } else if (!a.empty() && a[0] == '-') {
            throw Stop{kUsageError, "unknown option \"" + a + "\" for " + o.command};
        } else if (o.input) {
            throw Stop{kUsageError, "only one INPUT may be given"};
        } else {
            o.input = std::filesystem::path(a);
        }
    }
    return o;
}

} // namespace kvelder::cli
