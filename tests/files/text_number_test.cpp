// Typed and read numbers on machines that write a decimal point or a comma.

#include "files/text_number.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kvelder {
namespace {

constexpr std::int16_t kPointMachine = 0;
constexpr std::int16_t kCommaMachine = 1;

std::optional<float> read(std::string_view text, std::int16_t machine)
{
    return TextToNumber(text, machine).value;
}

TEST(TextToNumber, ReadsPointAndCommaAlikeOnEitherMachine)
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
}

TEST(TextToNumber, RewritesTheTextWithTheMachinesSeparator)
{
    EXPECT_EQ(TextToNumber("  2.75", kCommaMachine).text, "2,75");
    EXPECT_EQ(TextToNumber("2,75", kPointMachine).text, "2.75");
}

TEST(TextToNumber, APointMachineReadsTheLeadingNumberAndACommaMachineRefusesRubbish)
{
    EXPECT_EQ(read("12abc", kPointMachine), 12.0F);
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

TEST(DecimalProbe, TheCLocaleWritesAPoint)
{
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(DecimalProbe(), 0);
}

} // namespace
} // namespace kvelder
