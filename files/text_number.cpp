#include "files/text_number.h"

#include "files/windows_api.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <locale>
#include <stdexcept>
#include <string_view>

namespace kvelder {
namespace {

bool is_blank(char c)
{
    return c == ' ' || c == '\t';
}

// The longest leading decimal number of `s` (sign, digits, point, exponent);
// 0 when there is none, and for one too small for a double. No value when it
// is too large for one.
std::optional<double> leading_number(const std::string& s)
{
    const char* first = s.data();
    const char* last = s.data() + s.size();
    bool negative = false;
    if (first != last && (*first == '+' || *first == '-')) {
        negative = *first == '-';
        ++first;
    }
    // from_chars would also take "inf" and "nan", which are no numbers here.
    if (first == last || !(std::isdigit(static_cast<unsigned char>(*first)) || *first == '.')) {
        return 0.0;
    }
    double value = 0;
    const std::errc ec = std::from_chars(first, last, value).ec;
    if (ec == std::errc::invalid_argument) {
        return 0.0;
    }
    if (ec == std::errc::result_out_of_range) {
        const std::size_t e = s.find_first_of("eE");
        const bool tiny = e != std::string::npos && e + 1 < s.size() && s[e + 1] == '-';
        return tiny ? std::optional<double>(0.0) : std::nullopt;
    }
    return negative ? -value : value;
}

// The whole text as one number, blanks around it allowed.
std::optional<double> whole_number(std::string s)
{
    while (!s.empty() && is_blank(s.back())) {
        s.pop_back();
    }
    std::replace(s.begin(), s.end(), ',', '.');
    const char* first = s.data();
    const char* last = s.data() + s.size();
    if (first != last && *first == '+') {
        ++first;
    }
    if (first == last || std::strchr("0123456789.-", *first) == nullptr) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, ec] = std::from_chars(first, last, value);
    if (ec != std::errc{} || end != last) {
        return std::nullopt;
    }
    return value;
}

std::optional<float> to_single(std::optional<double> v)
{
    if (!v || std::abs(*v) > std::numeric_limits<float>::max()) {
        return std::nullopt;
    }
    return static_cast<float>(*v);
}

} // namespace

std::int16_t DecimalProbe()
{
#ifdef _WIN32
    // The C++ library of the Windows build knows only the "C" locale: ask the
    // user's regional settings themselves.
    wchar_t separator[8] = {};
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, 8) == 0) {
        return 0;
    }
    return std::wstring_view(separator) == L"." ? 0 : 1;
#else
    try {
        const std::locale user("");
        return std::use_facet<std::numpunct<char>>(user).decimal_point() == '.' ? 0 : 1;
    } catch (const std::runtime_error&) {
        return 0; // no usable locale in the environment: the C convention
    }
#endif
}

Converted<float> TextToNumber(std::string_view typed, std::int16_t decimal_comma)
{
    if (typed.empty()) {
        return {0.0F, {}};
    }
    std::string text(typed.substr(std::min(typed.find_first_not_of(" \t"), typed.size())));
    if (decimal_comma != 0) {
        std::replace(text.begin(), text.end(), '.', ',');
        std::optional<float> value = to_single(whole_number(text));
        return {value, std::move(text)};
    }
    std::replace(text.begin(), text.end(), ',', '.');
    std::optional<float> value = to_single(leading_number(text));
    return {value, std::move(text)};
}

Converted<std::int16_t> TextToInt16(std::string_view typed, std::int16_t decimal_comma)
{
    Converted<float> number = TextToNumber(typed, decimal_comma);
    const std::optional<float> v = number.value;
    if (!v || !(*v >= -32768.5F && *v < 32767.5F)) {
        return {std::nullopt, std::move(number.text)};
    }
    return {static_cast<std::int16_t>(std::nearbyint(*v)), std::move(number.text)};
}

} // namespace kvelder
