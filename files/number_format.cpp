#include "files/number_format.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace kvelder {
namespace {

// A number as decimal digits: 0.d1 d2 d3 ... x 10^point, without leading noughts.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

void set_zero(Decimal& d)
{
    d.digits.assign(1, '0');
    d.point = 1;
    d.negative = false; // no "-0.00"
}

// The shortest digits that read back to the value; to those of the single
// when the value is one, so that a stored 1.005 rounds as 1.005 and not as
// the 1.00499995 the single holds.
Decimal decimal_of(double value)
{
    char buffer[64];
    const auto single = static_cast<float>(value);
    const char* end =
        static_cast<double>(single) == value
            ? std::to_chars(buffer, buffer + sizeof buffer, single, std::chars_format::scientific).ptr
            : std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
    const std::string text(static_cast<const char*>(buffer), end); // "-d.ddde+xx"
    Decimal d;
    std::size_t k = 0;
    if (text[k] == '-') {
        d.negative = true;
        ++k;
    }
    const std::size_t e = text.find('e');
    for (; k < e; ++k) {
        if (text[k] != '.') {
            d.digits += text[k];
        }
    }
    d.point = std::atoi(text.c_str() + e + 1) + 1;
    if (d.digits == "0") {
        set_zero(d);
    }
    return d;
}

// Keeps the first `keep` digits, rounding half away from zero.
void round_to(Decimal& d, int keep)
{
    if (keep >= static_cast<int>(d.digits.size())) {
        return;
    }
    if (keep < 0) {
        set_zero(d);
        return;
    }
    const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
    d.digits.resize(static_cast<std::size_t>(keep));
    if (up) {
        int k = keep - 1;
        for (; k >= 0 && d.digits[static_cast<std::size_t>(k)] == '9'; --k) {
            d.digits[static_cast<std::size_t>(k)] = '0';
        }
        if (k >= 0) {
            ++d.digits[static_cast<std::size_t>(k)];
        } else {
            d.digits.insert(d.digits.begin(), '1');
            ++d.point;
        }
    }
    if (d.digits.find_first_not_of('0') == std::string::npos) {
        set_zero(d);
    }
}

char digit_at(const Decimal& d, int index)
{
    return index >= 0 && index < static_cast<int>(d.digits.size()) ? d.digits[static_cast<std::size_t>(index)]
                                                                   : '0';
}

// Digits after the point in a pattern.
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

std::string fixed(double value, int places)
{
    Decimal d = decimal_of(value);
    round_to(d, d.point + places);
    std::string text = d.negative ? "-" : "";
    if (d.point <= 0) {
        text += '0';
    }
    for (int k = 0; k < d.point; ++k) {
        text += digit_at(d, k);
    }
    if (places > 0) {
        text += '.';
        for (int k = 0; k < places; ++k) {
            text += digit_at(d, d.point + k);
        }
    }
    return text;
}

std::string scientific(double value, int places, int exponent_digits)
{
    Decimal d = decimal_of(value);
    round_to(d, places + 1);
    std::string text = d.negative ? "-" : "";
    text += digit_at(d, 0);
    if (places > 0) {
        text += '.';
        for (int k = 1; k <= places; ++k) {
            text += digit_at(d, k);
        }
    }
    const int power = d.digits == "0" ? 0 : d.point - 1;
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "E%c%0*d", power < 0 ? '-' : '+', exponent_digits, std::abs(power));
    return text + buffer;
}

} // namespace

std::string format_number(double value, std::string_view pattern, bool decimal_comma)
{
    if (!std::isfinite(value)) {
        return std::isnan(value) ? "NaN" : (value > 0 ? "Inf" : "-Inf"); // a result beyond any number
    }
    const std::size_t first = pattern.find_first_of("0#");
    if (first == std::string_view::npos) {
        return std::string(pattern);
    }
    const std::size_t exponent = pattern.find("E+");
    const std::size_t last = pattern.find_last_of(exponent == std::string_view::npos ? "0#" : "0");
    const std::string_view body = pattern.substr(first, last - first + 1);

    std::string text;
    if (exponent != std::string_view::npos) {
        text = scientific(value, decimals(body.substr(0, body.find('E'))),
                          static_cast<int>(body.size() - body.find("E+") - 2));
    } else {
        text = fixed(value, decimals(body));
        // "#" alone shows no lone nought.
        if (body.find('0') == std::string_view::npos && text == "0") {
            text.clear();
        }
    }
    if (decimal_comma) {
        for (char& c : text) {
            c = c == '.' ? ',' : c;
        }
    }
    return std::string(pattern.substr(0, first)) + text + std::string(pattern.substr(last + 1));
}

} // namespace kvelder
