#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvelder {

// 0 where the machine writes the decimal point, non-zero where it writes a comma.
std::int16_t DecimalProbe();

// A converted text: its value, none where the text was refused, and the text
// rewritten to the machine's decimal separator, as the box that held it shows it.
template <typename T> struct Converted {
    std::optional<T> value;
    std::string text;
};

// The one conversion of typed or read text to a number, tolerant of "1.5" and
// "1,5" alike. On a point machine rubbish reads as the longest
// leading number ("12abc" is 12, "abc" is 0); on a comma machine anything that is
// not a whole number is refused. Empty text is 0. A refused text, or one beyond
// the range of a single, gives no value.
Converted<float> TextToNumber(std::string_view text, std::int16_t decimal_comma);

// Whole numbers of the files and of span boxes: the value rounded to the nearest
// integer (ties to even), or none when it is no number or outside 16 bits.
Converted<std::int16_t> TextToInt16(std::string_view text, std::int16_t decimal_comma);

} // namespace kvelder
