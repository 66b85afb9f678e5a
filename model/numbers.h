#pragma once

#include <cstdint>

namespace kvelder {

// Flags of the model are 16-bit integers with -1 for true, the form the project
// file keeps them in; tests of a flag compare against -1.
constexpr std::int16_t kTrue = -1;
constexpr std::int16_t kFalse = 0;

constexpr bool is_true(std::int16_t flag)
{
    return flag == kTrue;
}
constexpr std::int16_t flag_of(bool value)
{
    return value ? kTrue : kFalse;
}

// Arithmetic runs in 64 bits; a value kept in a single-precision field or
// variable is rounded once, where it is stored. f32() marks those places.
constexpr float f32(double value)
{
    return static_cast<float>(value);
}

} // namespace kvelder
