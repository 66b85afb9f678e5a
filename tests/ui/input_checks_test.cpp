// The checks of single boxes, of the spans and supports, and the change of the
// number of spans.

#include "files/number_format.h"
#include "tests/support/beams.h"
#include "ui/input_checks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kvelder::test {
namespace {

TEST(BoxChecks, RefuseValuesAtTheirLimitsAsTheWindowDoes)
{
    auto m = example_beam();
    const struct {
        Box box;
        float value;
        bool passes;
    } cases[] = {
        {Box::Width, 0, false},          {Box::Width, 1, true},        {Box::Ksys, 1.2F, true},
        {Box::Ksys, 1.21F, false},       {Box::Ksys, 0.99F, false},    {Box::SetupFactor, 0.1F, false},
        {Box::SetupFactor, 0.11F, true}, {Box::LefFactor, 2.0F, true}, {Box::LefFactor, 0.2F, true},
        {Box::LefFactor, 0.19F, false},  {Box::Kc90, 0, false},        {Box::BearingLength, -1, false},
        {Box::LStag, 0.3F, false},       {Box::LStag, 5.0F, true},     {Box::LStag, 5.01F, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(!check_box(*m, c.box, c.value, 1).has_value(), c.passes)
            << static_cast<int>(c.box) << " " << c.value;
    }
    EXPECT_EQ(check_box(*m, Box::Width, 0)->text, " b =< 0 ");
    m->language = "Nor";
    EXPECT_EQ(check_box(*m, Box::Width, 0)->text, "b =< 0 ");
    EXPECT_EQ(check_box(*m, Box::BearingLength, 0)->text, "Oppleggslengde =< 0 ");
    EXPECT_EQ(check_box(*m, Box::LStag, 9, 1)->text, " l_stag =< 0.3 m eller > feltlengde");
}

TEST(SpanCheck, StopsAtTheFirstMissingSpan)
{
    auto m = example_beam();
    m->nf = 3;
    m->ffl_s(2) = 0;
    m->ffl_s(3) = 0;
    const auto failure = check_spans(*m);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->span, 2);
    EXPECT_EQ(m->err_spans, kTrue);
    EXPECT_EQ(failure->message.title, "Lenght of span");
    m->ffl_s(2) = m->ffl_s(3) = 4;
    EXPECT_FALSE(check_spans(*m).has_value());
    EXPECT_EQ(m->err_spans, kFalse);
}

TEST(SupportCheck, CountsTheRestraints)
{
    auto m = example_beam();
    m->nsupLeft_s = kFree;
    m->nsupRight_s = kFree;
    EXPECT_EQ(check_supports(*m)->text, "Number of restraints are insufficient,the beam is unstable");
    EXPECT_EQ(m->err_supports, kTrue);
    m->nf = 1, m->nnodes = 2, m->nsupLeft_s = kBuiltIn; // a cantilever
    EXPECT_FALSE(check_supports(*m).has_value());
    EXPECT_EQ(m->err_supports, kFalse);
    m->nsupLeft_s = kSimple; // one support under one span
    EXPECT_TRUE(check_supports(*m).has_value());
}

TEST(AllBoxes, CheckOnlyTheBoxesTheBeamShows)
{
    auto m = example_beam();
    EXPECT_TRUE(check_all_boxes(*m).empty());
    m->section_b = 0;
    m->lef_factor(1) = 5; // the buckling boxes are hidden while the check is off
    EXPECT_EQ(check_all_boxes(*m).size(), 1U);
    m->section_form = "Tube";
    EXPECT_TRUE(check_all_boxes(*m).empty());
    m->vipping_off = kFalse;
    EXPECT_EQ(check_all_boxes(*m).size(), 1U);
}

TEST(NumberFormat, WritesThePatternsOfTheDisplay)
{
    EXPECT_EQ(format_number(0.125, "0.00 "), "0.13 ");
    EXPECT_EQ(format_number(-0.125, "0.00"), "-0.13");
    EXPECT_EQ(format_number(2.25, "0.0 "), "2.3 ");
    EXPECT_EQ(format_number(-0.001, "0.00"), "0.00");
    EXPECT_EQ(format_number(-0.0001, "0.00"), "0.00");
    EXPECT_EQ(format_number(-0.0, "0.0"), "0.0");
    EXPECT_EQ(format_number(3, " 0"), " 3");
    EXPECT_EQ(format_number(0, "#"), "");
    EXPECT_EQ(format_number(1.256e9, "0.000E+00"), "1.256E+09");
    EXPECT_EQ(format_number(0.000123, "0.00E+00"), "1.23E-04");
    EXPECT_EQ(format_number(1.5, "0.00", true), "1,50");
    EXPECT_EQ(format_number(1.005F, "0.00"), "1.01"); // the single as it was typed
    EXPECT_EQ(format_number(9.996, "0.00"), "10.00");
    EXPECT_EQ(format_number(9.9996e5, "0.000E+00"), "1.000E+06");
    EXPECT_EQ(format_number(0.004, "0.00"), "0.00");
    EXPECT_EQ(format_number(0.0049, "0.0"), "0.0");
    // Results of absurd loads can run past any number; they still read.
    EXPECT_EQ(format_number(std::numeric_limits<double>::infinity(), "##0.0"), "Inf");
    EXPECT_EQ(format_number(-std::numeric_limits<double>::infinity(), "0.00E+00"), "-Inf");
    EXPECT_EQ(format_number(std::nan(""), "0.00"), "NaN");
}

} // namespace
} // namespace kvelder::test
