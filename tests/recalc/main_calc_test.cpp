// The recalculation as a whole: from the engineer's input to usage factors, the
// gate that stops it, and nothing surviving from one run into the next.

#include "recalc/main_calc.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kvelder::test {
namespace {

TEST(MainCalc, TheExampleBeamCarriesItsLoadsIntoUsageFactors)
{
    auto m = example_beam();
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    ASSERT_TRUE(screen.messages.empty());

    // Norwegian annex, class 2, psi0 0.7: 1.35 x 2.0 + 1.5 x 0.7 x 4.0 = 6.9 kN/m on two 5 m spans.
    const double q = 6.9;
    EXPECT_NEAR(m->M_max(1, 2), q * 25 / 8, 1e-4); // over the middle support
    EXPECT_NEAR(m->R_max(2), 1.25 * q * 5, 1e-4);

    // GL30c 140 x 405 in service class 1, medium-term load.
    const double kh = std::pow(600.0 / 405, 0.1);
    const double fmd = 0.8 * 30 * kh / 1.15;
    const double W = 140.0 * 405 * 405 / 6;
    EXPECT_NEAR(m->fmd, fmd, 1e-5);
    EXPECT_NEAR(m->Uf_mom(1), q * 25 / 8 * 1e6 / W / fmd, 1e-6);
    EXPECT_FLOAT_EQ(m->x_mom(1), 5.0F);
    EXPECT_NEAR(m->Uf_tau(2), 0.625 * q * 5 * 1.5 * 1000 / (0.67 * 140 * 405) / (3.5 * 0.8 / 1.15), 1e-6);
    EXPECT_NEAR(m->Uf_c90(2), 1.25 * q * 5 * 1000 / (140.0 * 90) / (2.5 * 0.8 / 1.15), 1e-5);
    // Deflection with creep: G x 1.6 and Q1 x 1.18; 0.00541 qL^4/EI for two equal spans.
    const double EI = 13000e3 * (140.0 * std::pow(405.0, 3) / 12) * 1e-12;
    double w = 0;
    for (int j = 1; j <= m->nxtot_s(1); ++j) {
        w = std::min<double>(w, m->W_min(1, j));
    }
    EXPECT_NEAR(w, -0.00541 * (2.0 * 1.6 + 4.0 * 1.18) * 625 / EI * 1000, 0.01);
}

// A run finishes by releasing the controls and remembering the spans; a second
// run, or one after another beam, finds every table as the first left it.
TEST(MainCalc, RunsLeaveNothingBehindForTheNext)
{
    auto m = loaded_beam();
    m->loading_flag = kTrue;
    m->nf_previous = 1;
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    EXPECT_EQ(m->loading_flag, kFalse);
    EXPECT_EQ(m->nf_previous, 3);
    const auto first = std::make_unique<Model>(*m);
    MainCalc(*m, screen, scratch_folder());
    EXPECT_TRUE(*m == *first);

    // Lighter loads on the same beam: no envelope keeps a value of the heavier run.
    const auto lighter = [](Model& beam) {
        beam.Q1.pt_P(1) = 1.0F;
        beam.Q1.mom_M(1) = -0.5F;
    };
    auto fresh = loaded_beam();
    lighter(*fresh);
    MainCalc(*fresh, screen, scratch_folder());
    lighter(*m);
    MainCalc(*m, screen, scratch_folder());
    EXPECT_TRUE(*m == *fresh);

    auto other = example_beam();
    add_point(other->G, 1, 80.0F, 1.3F);
    other->section_form = "Tube";
    *m = *other;
    MainCalc(*m, screen, scratch_folder());
    EXPECT_GT(m->Uf_mom(1), 0);
    EXPECT_EQ(m->Uf_c90(2), 0); // a circle has no bearing check
    *m = *loaded_beam();
    MainCalc(*m, screen, scratch_folder());
    EXPECT_TRUE(*m == *first);
    EXPECT_TRUE(screen.messages.empty());
}

TEST(MainCalc, StopsAtTheGateWithEveryResultStanding)
{
    auto m = example_beam();
    m->language = "Nor";
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    for (std::int16_t Model::*flag :
         {&Model::err_spans, &Model::err_supports, &Model::err_loads, &Model::err_section}) {
        auto stopped = std::make_unique<Model>(*m);
        (*stopped).*flag = kTrue;
        stopped->ffl_s(1) = 9.0F;
        stopped->loading_flag = kTrue;
        const auto before = std::make_unique<Model>(*stopped);
        RecordingScreen gate;
        MainCalc(*stopped, gate, scratch_folder());
        EXPECT_TRUE(*stopped == *before);
        // The gate speaks English whatever the language.
        ASSERT_EQ(gate.messages.size(), 1U);
        EXPECT_EQ(gate.messages[0].code, 500);
        EXPECT_EQ(gate.messages[0].text, "Data  missing, no executing of stiffness analysis");
    }
}

TEST(MainCalc, AFailingLoadRowOpensItsDialogAndStopsTheLaterGroups)
{
    auto m = example_beam();
    add_point(m->G, 1, 5.0F, 5.0F); // on the support
    m->Q1.uni_span(2) = 7;          // never checked: G failed first
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    ASSERT_EQ(screen.load_failures.size(), 1U);
    EXPECT_EQ(screen.load_failures[0], (LoadRowFailure{LoadGroupId::G, LoadTable::Point, 1, 2, 170}));
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0].code, 170);
    EXPECT_TRUE(is_true(m->err_load_item));
    // The run goes on to its end.
    EXPECT_EQ(m->loading_flag, kFalse);
    EXPECT_GT(m->Uf_mom(1), 0);
}

TEST(MainCalc, EmptyGroupsDecideTheOptionAndStopTheNextRun)
{
    auto m = example_beam();
    m->loadcomb_option = 2;
    m->Q1 = LoadGroup{};
    add_uniform(m->Q2, 1, 1.0F);
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    EXPECT_EQ(m->loadcomb_option, 1); // no Q1 to pattern
    EXPECT_EQ(m->err_section, kFalse);

    m->G = LoadGroup{};
    m->Q2 = LoadGroup{};
    m->profile_weight_on = kTrue; // self weight makes G a load
    MainCalc(*m, screen, scratch_folder());
    EXPECT_EQ(m->G_empty, kFalse);
    EXPECT_EQ(m->err_section, kFalse);

    m->profile_weight_on = kFalse;
    MainCalc(*m, screen, scratch_folder());
    EXPECT_EQ(m->err_section, kTrue);
    EXPECT_TRUE(screen.messages.empty()); // this run goes on
    MainCalc(*m, screen, scratch_folder());
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0].code, 500);
}

#ifndef NDEBUG
TEST(TableDeathTest, AnIndexOutsideATableStopsADebugBuild)
{
    Table<int, 5> t;
    Table2<int, 5, 4> t2;
    EXPECT_DEATH(t(0) = 1, "");
    EXPECT_DEATH(t(6) = 1, "");
    EXPECT_DEATH(t2(5, 5) = 1, "");
}
#endif

} // namespace
} // namespace kvelder::test
