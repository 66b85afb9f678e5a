// What governs: the load pattern and combination behind the values the checks
// rest on, found by running the beam once more.

#include "recalc/explain_governing.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/governing_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace kvelder::test {
namespace {

// Two spans, G light and Q1 heavy on the first span only: sagging in span 1
// outweighs the moment over the middle support.
std::unique_ptr<Model> Q1_on_first_span(std::int16_t option)
{
    auto m = example_beam();
    m->loadcomb_option = option;
    m->Q1 = LoadGroup{};
    add_uniform(m->Q1, 1, 12.0F);
    return calculated(std::move(m));
}

bool loads_span(const GoverningValue& v, int span)
{
    return std::ranges::find(v.state.Q1_spans, span) != v.state.Q1_spans.end();
}

TEST(ExplainGoverning, TheSaggingMomentOfTheLoadedSpanComesFromAPatternThatLoadsIt)
{
    const auto m = Q1_on_first_span(2);
    ASSERT_GT(m->Uf_neg(1), m->Uf_pos(1)) << "sagging must govern span 1";
    const auto g = explain_governing(*m);
    ASSERT_TRUE(g.has_value());

    const GoverningValue& bending = g->spans.at(0).bending.value();
    EXPECT_GE(bending.state.pattern, 2);
    EXPECT_TRUE(loads_span(bending, 1));
    EXPECT_TRUE(bending.state.Q2);
    EXPECT_EQ(bending.value, -m->M_gov(1));
    EXPECT_EQ(bending.x, m->x_mom(1));
    // The total load puts Q1 on the same span: the same combination, folded in
    // another order.
    const auto total = Q1_on_first_span(1);
    EXPECT_FLOAT_EQ(bending.value, -total->M_neg(1));

    // The end support of the loaded span takes its largest reaction from it
    // as well, and never lifts.
    EXPECT_TRUE(loads_span(g->supports.at(0).R_max.value(), 1));
    EXPECT_EQ(g->supports.at(0).R_min, std::nullopt);
    EXPECT_EQ(g->spans.at(0).buckling, std::nullopt); // the check is out of force

    // The pictures number the patterns with Q1 from 1.
    EXPECT_NE(
        governing_line(*m, *g, 1).find("moment Q1 no." + std::to_string(bending.state.pattern - 1) + ","),
        std::string::npos)
        << governing_line(*m, *g, 1);
}

TEST(ExplainGoverning, ResultsOfAnotherBeamAreNotExplained)
{
    EXPECT_EQ(explain_governing(*std::make_unique<Model>()), std::nullopt);
    auto m = Q1_on_first_span(2);
    m->ffl_s(2) = 7.0F; // changed after the run, which the gate then stopped
    EXPECT_EQ(explain_governing(*m), std::nullopt);
}

} // namespace
} // namespace kvelder::test
