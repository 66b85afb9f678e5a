// Factoring of the load cases into a combination, and the envelopes over the
// states of a run.

#include "combination/envelope.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kvelder::test {
namespace {

TEST(EnvelopeRule, KeepsTheLargestOfEachSignAndIgnoresZero)
{
    float max = 0, min = 0;
    for (const float c : {-2.0F, -1.0F, 0.0F, -0.0F}) {
        update_envelope(c, max, min);
    }
    EXPECT_EQ(max, 0.0F); // never positive
    for (const float c : {2.0F, -1.0F, 3.0F, -4.0F, 1.0F, -0.5F, 0.0F}) {
        update_envelope(c, max, min);
    }
    EXPECT_EQ(max, 3.0F);
    EXPECT_EQ(min, -4.0F);

    // The plain copy of a single combination takes the value without comparing.
    copy_into_envelope(2.0F, max, min);
    EXPECT_EQ(max, 2.0F);
    EXPECT_EQ(min, -4.0F);
    copy_into_envelope(0.0F, max, min);
    EXPECT_EQ(min, 0.0F);
}

std::unique_ptr<Model> factored_beam(const char* rule)
{
    auto m = make_beam({5.0F});
    m->comb_rule = rule;
    m->gamma_G_a = 1.35F;
    m->gamma_G_b = 1.2F;
    m->gamma_Q1_a = 1.05F;
    m->gamma_Q1_b = 1.5F;
    m->creep_G = 1.6F;
    m->creep_Q1 = 1.3F;
    add_uniform(m->G, 1, 2.0F);
    add_uniform(m->Q1, 1, 4.0F);
    recalculate(*m);
    return m;
}

TEST(Combination, TheExpressionInForceChoosesTheForceFactors)
{
    auto a = factored_beam("610a");
    auto b = factored_beam("610b");
    auto other = factored_beam("xxxx");
    // q L / 2 at each support.
    EXPECT_NEAR(a->C_R(1), (1.35 * 2 + 1.05 * 4) * 2.5, 1e-4);
    EXPECT_NEAR(b->C_R(1), (1.2 * 2 + 1.5 * 4) * 2.5, 1e-4);
    EXPECT_EQ(other->C_R, b->C_R);
    // Deflections do not depend on the expression.
    EXPECT_EQ(a->C_W, b->C_W);
}

TEST(Combination, DeflectionFactorsScaleEachCaseAndTheInstantSumIsPlain)
{
    auto m = factored_beam("610a");
    const int mid = 3 + 24; // x = 25 dx = L / 2
    ASSERT_FLOAT_EQ(m->xl_s(1, mid), 2.5F);
    const double w = -1000 * 5.0 * 625 / (384 * kEI); // per kN/m
    EXPECT_NEAR(m->C_Winst(1, mid), 6 * w, 1e-5 * std::fabs(w));
    EXPECT_NEAR(m->C_W(1, mid), (1.6 * 2 + 1.3 * 4) * w, 1e-5 * std::fabs(w));
    // Results take hogging as positive: the span sags.
    EXPECT_LT(m->C_M(1, mid), 0.0F);
}

TEST(Combination, EveryPatternStartsItsDeflectionSumsAfresh)
{
    // With unit deflection factors the two sums agree in every pattern, the last included.
    auto m = make_beam({4.0F, 5.0F, 3.0F});
    m->loadcomb_option = 2;
    add_uniform(m->G, 2, 2.0F);
    add_uniform(m->Q1, 1, 3.0F);
    add_point(m->Q2, 3, 4.0F, 1.0F);
    recalculate(*m);
    ASSERT_EQ(m->npatterns, 8);
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= m->nxtot_s(i); ++j) {
            EXPECT_FLOAT_EQ(m->C_Winst(i, j), m->C_W(i, j)) << "span " << i << ", point " << j;
        }
    }
}

TEST(Envelopes, PartialSumsOfAPatternCountAsStatesOfTheBeam)
{
    // G pulls down, Q2 lifts: the largest sagging comes from G alone, before Q2 is added.
    auto m = make_beam({4.0F, 4.0F});
    m->loadcomb_option = 2;
    add_uniform(m->G, 1, 10.0F);
    add_uniform(m->G, 2, 10.0F);
    add_uniform(m->Q2, 1, -8.0F);
    add_uniform(m->Q2, 2, -8.0F);
    recalculate(*m);

    auto g_alone = make_beam({4.0F, 4.0F});
    add_uniform(g_alone->G, 1, 10.0F);
    add_uniform(g_alone->G, 2, 10.0F);
    recalculate(*g_alone);

    EXPECT_EQ(m->M_min, g_alone->M_min);
    EXPECT_EQ(m->R_max, g_alone->R_max);
}

TEST(Envelopes, TotalRunCopiesItsOneCombination)
{
    auto m = make_beam({4.0F, 6.0F});
    add_uniform(m->G, 1, 3.0F);
    add_uniform(m->Q1, 2, 5.0F);
    add_point(m->Q2, 1, 4.0F, 1.0F);
    recalculate(*m);

    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= m->nxtot_s(i); ++j) {
            EXPECT_TRUE(m->M_max(i, j) == 0.0F || m->M_min(i, j) == 0.0F);
            EXPECT_EQ(m->M_max(i, j) + m->M_min(i, j), m->C_M(i, j));
            EXPECT_EQ(m->V_max(i, j) + m->V_min(i, j), m->C_V(i, j));
            EXPECT_EQ(m->W_max(i, j) + m->W_min(i, j), m->C_W(i, j));
        }
    }
    EXPECT_EQ(m->npatterns, 1);
}

TEST(Envelopes, PatternedEnvelopeCoversTheWorstPlacementOfQ1)
{
    // The largest support moment over support 2 of three spans needs Q1 on spans 1 and 2,
    // the largest sagging and deflection in span 2 need it on span 2 alone.
    auto m = make_beam({5.0F, 5.0F, 5.0F});
    m->loadcomb_option = 2;
    for (int i = 1; i <= 3; ++i) {
        add_uniform(m->G, i, 1.0F);
        add_uniform(m->Q1, i, 4.0F);
    }
    recalculate(*m);

    auto spans_1_2 = make_beam({5.0F, 5.0F, 5.0F});
    auto span_2 = make_beam({5.0F, 5.0F, 5.0F});
    for (int i = 1; i <= 3; ++i) {
        add_uniform(spans_1_2->G, i, 1.0F);
        add_uniform(span_2->G, i, 1.0F);
    }
    add_uniform(spans_1_2->Q1, 1, 4.0F);
    add_uniform(spans_1_2->Q1, 2, 4.0F);
    add_uniform(span_2->Q1, 2, 4.0F);
    recalculate(*spans_1_2);
    recalculate(*span_2);

    EXPECT_EQ(m->M_max(1, 2), spans_1_2->M_max(1, 2));
    const int mid = 3 + 24;
    EXPECT_EQ(m->M_min(2, mid), span_2->M_min(2, mid));
    EXPECT_EQ(m->W_min(2, mid), span_2->W_min(2, mid)); // and so the largest deflection there
    EXPECT_LT(m->W_min(2, mid), 0.0F);
    EXPECT_GT(m->M_max(1, 2), 0.0F);
}

TEST(Envelopes, AQ1MomentOnASupportActsInThePatternsOfItsSpan)
{
    // A moment at the end of span 1 stands on node 2: only the patterns that load
    // span 1 carry it, and the other patterns add nothing to the envelope.
    const auto beam = [](int option) {
        auto m = make_beam({4.0F, 6.0F});
        m->loadcomb_option = static_cast<std::int16_t>(option);
        add_moment(m->Q1, 1, 8.0F, 4.0F);
        recalculate(*m);
        return m;
    };
    const auto patterned = beam(2);
    const auto total = beam(1);
    EXPECT_EQ(patterned->npatterns, 4);
    EXPECT_EQ(patterned->M_max, total->M_max);
    EXPECT_EQ(patterned->M_min, total->M_min);
    EXPECT_EQ(patterned->W_min, total->W_min);
    EXPECT_NE(total->M_max(1, 2), 0.0F);
}

TEST(Envelopes, WithoutVariableLoadsEveryPatternCarriesTheReactionsOfG)
{
    const auto beam = [](int option) {
        auto m = make_beam({4.0F, 6.0F}, kBuiltIn, kSimple);
        m->loadcomb_option = static_cast<std::int16_t>(option);
        add_uniform(m->G, 1, 3.0F);
        add_point(m->G, 2, 5.0F, 2.0F);
        recalculate(*m);
        return m;
    };
    const auto patterned = beam(2);
    const auto total = beam(1);
    EXPECT_EQ(patterned->R_max, total->R_max);
    EXPECT_EQ(patterned->MR_max, total->MR_max);
    EXPECT_EQ(patterned->MR_min, total->MR_min);
    EXPECT_NE(total->MR_max(1) - total->MR_min(1), 0.0F); // the built-in end holds a moment
}

} // namespace
} // namespace kvelder::test
