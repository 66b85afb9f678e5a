#include "ui/number_format.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace kvelder {
namespace {

// Digits after the point in the pattern between `first` and `last`.
int decimals(std::string_view body)
{
    const std::size_t point = body.find('.');
    if (point == std::string_view::npos) {
        return 0;
    }
    int n = 0;
    for (std::size_t k = point + 1; k < body.size() && (body[k] == '0' || body[k] == '#'); ++k) {
        ++n;
    }
    return n;
}

// Rounds half away from zero at `places` decimals, as the display does.
double round_half_away(double value, int places)
{
    const double scale = std::pow(10.0, places);
    const double scaled = value * scale;
    // The text of the double decides a tie, not the binary value below it.
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", places + 3, std::abs(scaled) - std::floor(std::abs(scaled)));
    const double fraction = std::strtod(buffer, nullptr);
    double whole = std::floor(std::abs(scaled));
    if (fraction >= 0.5) {
        whole += 1;
    }
    return std::copysign(whole / scale, value);
}

} // namespace

std::string format_number(double value, std::string_view pattern, bool decimal_comma)
{
    const std::size_t first = pattern.find_first_of("0#");
    if (first == std::string_view::npos) {
        return std::string(pattern);
    }
    std::size_t last = pattern.find_last_of("0#");
    const std::size_t exponent = pattern.find("E+");
    if (exponent != std::string_view::npos) {
        last = pattern.find_last_of('0');
    }
    const std::string_view prefix = pattern.substr(0, first);
    const std::string_view suffix = pattern.substr(last + 1);
    const std::string_view body = pattern.substr(first, last - first + 1);

    std::string text;
    char buffer[64];
    if (exponent != std::string_view::npos) {
        const int places = decimals(body.substr(0, body.find('E')));
        const int exp_digits = static_cast<int>(body.size() - body.find("E+") - 2);
        int power = value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
        double mantissa = round_half_away(value / std::pow(10.0, power), places);
        if (std::abs(mantissa) >= 10) {
            ++power;
            mantissa = round_half_away(value / std::pow(10.0, power), places);
        }
        std::snprintf(buffer, sizeof buffer, "%.*fE%c%0*d", places, mantissa, power < 0 ? '-' : '+',
                      exp_digits, std::abs(power));
        text = buffer;
    } else {
        const int places = decimals(body);
        const double rounded = round_half_away(value, places);
        std::snprintf(buffer, sizeof buffer, "%.*f", places, rounded == 0 ? 0.0 : rounded);
        text = buffer;
        // "#" shows no nought before the point, nor a lone nought.
        if (body.front() == '#' && body.find('0') == std::string_view::npos && text == "0") {
            text.clear();
        }
    }
    if (decimal_comma) {
        for (char& c : text) {
            if (c == '.') {
                c = ',';
            }
        }
    }
    return std::string(prefix) + text + std::string(suffix);
}

} // namespace kvelder
