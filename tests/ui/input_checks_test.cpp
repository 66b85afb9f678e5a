// The checks of single boxes, of the spans and supports.

#include "tests/support/beams.h"
#include "ui/input_checks.h"

#include <gtest/gtest.h>

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
        {Box::Ksys, 1.2F, true},         {Box::Ksys, 1.21F, false},       {Box::Ksys, 0.99F, false},
        {Box::SetupFactor, 0.1F, false}, {Box::SetupFactor, 0.11F, true}, {Box::LefFactor, 2.0F, true},
        {Box::LefFactor, 0.2F, true},    {Box::LefFactor, 0.19F, false},  {Box::LStag, 0.3F, false},
        {Box::LStag, 5.0F, true},        {Box::LStag, 5.01F, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(!check_box(*m, c.box, c.value, 1).has_value(), c.passes)
            << static_cast<int>(c.box) << " " << c.value;
    }
    // The window's flows see the English words of the boxes it has.
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
    EXPECT_EQ(check_supports(*m)->title, "Support conditions");
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
    EXPECT_TRUE(check_buckling_boxes(*m).empty());
    m->section_form = "Tube";
    EXPECT_TRUE(check_all_boxes(*m).empty());
    m->vipping_off = kFalse;
    EXPECT_EQ(check_buckling_boxes(*m).size(), 1U);
    m->ffl_s(2) = 0; // the span check comes first
    EXPECT_TRUE(check_buckling_boxes(*m).empty());
}

} // namespace
} // namespace kvelder::test
