#pragma once

#include "model/model.h"

#include <string>
#include <string_view>

namespace kvelder {

// A number in a display pattern of the program: "0", "0.0", "0.00", "0.000"
// and the like, "#" for a whole number without a nought, and "0.00E+00" or
// "0.000E+00" for a power of ten. Characters around the pattern (a blank
// before or after) are kept. Halves round away from zero. `decimal_comma`
// writes a comma for the point. A value that is no finite number reads "Inf",
// "-Inf" or "NaN".
std::string format_number(double value, std::string_view pattern, bool decimal_comma = false);

// A number of the beam's as the machine the beam is shown on writes it.
inline std::string format_number(const Model& m, double value, std::string_view pattern = "0.00")
{
    return format_number(value, pattern, m.decimal_comma != 0);
}

} // namespace kvelder
