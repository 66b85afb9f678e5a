// Typed and read numbers on machines that write a decimal point or a comma,
// and numbers written in the patterns of the display.

#include "files/number_format.h"
#include "files/text_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kvelder {
namespace {

constexpr std::int16_t kPointMachine = 0;
constexpr std::int16_t kCommaMachine = 1;

std::optional<float> read(std::string_view text, std::int16_t machine)
{
    return TextToNumber(text, machine).value;
}

TEST(TextToNumber, ReadsEitherSeparatorAndWritesTheMachinesWhileOnlyACommaMachineRefusesRubbish)
{
    for (std::int16_t machine : {kPointMachine, kCommaMachine}) {
        EXPECT_EQ(read("1,5", machine), 1.5F);
        EXPECT_EQ(read("1.5", machine), 1.5F);
        EXPECT_EQ(read("  3.5", machine), 3.5F);
        EXPECT_EQ(read("3.5 ", machine), 3.5F);
        EXPECT_EQ(read("-0.25", machine), -0.25F);
        EXPECT_EQ(read("", machine), 0.0F);
        EXPECT_EQ(read("1e999", machine), std::nullopt); // beyond any single
    }
    EXPECT_EQ(TextToNumber("  2.75", kCommaMachine).text, "2,75");
    EXPECT_EQ(TextToNumber("2,75", kPointMachine).text, "2.75");

    EXPECT_EQ(read("12abc", kPointMachine), 12.0F); // the leading number
    EXPECT_EQ(read("abc", kPointMachine), 0.0F);
    EXPECT_EQ(read("inf", kPointMachine), 0.0F);
    EXPECT_EQ(read("1e-400", kPointMachine), 0.0F);
    EXPECT_EQ(read("12abc", kCommaMachine), std::nullopt);
    EXPECT_EQ(read("abc", kCommaMachine), std::nullopt);
    EXPECT_EQ(read("   ", kCommaMachine), std::nullopt);
}

TEST(TextToInt16, RoundsAndRefusesWhatA16BitNumberCannotHold)
{
    EXPECT_EQ(TextToInt16("2.5", kPointMachine).value, 2); // ties to even
    EXPECT_EQ(TextToInt16("3,5", kPointMachine).value, 4);
    EXPECT_EQ(TextToInt16("40000", kPointMachine).value, std::nullopt);
}

TEST(NumberFormat, WritesThePatternsOfTheDisplay)
{
    EXPECT_EQ(format_number(0.125, "0.00 "), "0.13 ");
    EXPECT_EQ(format_number(-0.125, "0.00"), "-0.13");
    EXPECT_EQ(format_number(2.25, "0.0 "), "2.3 ");
    EXPECT_EQ(format_number(-0.001, "0.00"), "0.00");
    EXPECT_EQ(format_number(-0.0, "0.0"), "0.0");
    EXPECT_EQ(format_number(3, " 0"), " 3");
    EXPECT_EQ(format_number(0, "#"), "");
    EXPECT_EQ(format_number(1.256e9, "0.000E+00"), "1.256E+09");
    EXPECT_EQ(format_number(0.000123, "0.00E+00"), "1.23E-04");
    EXPECT_EQ(format_number(1.5, "0.00", true), "1,50");
    EXPECT_EQ(format_number(1.005F, "0.00"), "1.01"); // the single as it was typed
    EXPECT_EQ(format_number(9.996, "0.00"), "10.00");
    EXPECT_EQ(format_number(9.9996e5, "0.000E+00"), "1.000E+06");
    EXPECT_EQ(format_number(0.0049, "0.0"), "0.0");
    // Results of absurd loads can run past any number; they still read.
    EXPECT_EQ(format_number(std::numeric_limits<double>::infinity(), "##0.0"), "Inf");
    EXPECT_EQ(format_number(-std::numeric_limits<double>::infinity(), "0.00E+00"), "-Inf");
    EXPECT_EQ(format_number(std::nan(""), "0.00"), "NaN");
}

} // namespace
} // namespace kvelder
