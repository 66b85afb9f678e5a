// Factors by annex, classes, family and section, the catalogue rows they come
// from and the limits of the section input; the code checks on envelopes set by
// hand: bending, lateral torsional buckling and bearing, and how the window
// shows them.

#include "design/buckling.h"
#include "design/factors.h"
#include "design/section.h"
#include "design/section_checks.h"
#include "tests/support/beams.h"
#include "ui/result_columns.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kvelder::test {
namespace {

TEST(Kmod, FollowsDurationAndServiceClassOnly)
{
    auto m = example_beam();
    const struct {
        int duration, service;
        float kmod;
    } cases[] = {{1, 1, 0.6F}, {3, 2, 0.8F}, {5, 2, 1.1F}, {2, 3, 0.55F}, {5, 3, 0.9F}};
    for (const auto& c : cases) {
        for (const char* family : {kTimber, kKerto}) {
            m->duration_class = static_cast<std::int16_t>(c.duration);
            m->service_class = static_cast<std::int16_t>(c.service);
            m->material_family = family;
            Calc_kmod(*m);
            EXPECT_EQ(m->kmod, c.kmod) << c.duration << "/" << c.service;
        }
    }
    m->duration_class = 6; // not a class: kmod stays
    Calc_kmod(*m);
    EXPECT_EQ(m->kmod, 0.9F);
}

TEST(Kh, RisesForSmallSectionsUpToTheCapOfTheFamily)
{
    auto m = example_beam();
    const struct {
        const char* family;
        const char* form;
        float h;
        double kh;
    } cases[] = {
        {kLaminated, "Firk", 600, 1.0},
        {kLaminated, "Firk", 405, std::pow(600.0 / 405, 0.1)},
        {kLaminated, "Firk", 150, 1.1}, // 1.149 capped
        {kLaminated, "Tube", 150, 1.0},
        {kTimber, "Firk", 45, std::pow(150.0 / 45, 0.2)}, // 1.272, under its cap
        {kTimber, "Firk", 30, 1.3},
        {kTimber, "Tube", 30, 1.0},
        {kKerto, "Firk", 200, std::pow(1.5, 0.125)},
        {kKerto, "Tube", 200, std::pow(1.5, 0.125)}, // the one family with a size factor for a circle
        {kKerto, "Firk", 50, 1.2},
        {kKerto, "Firk", 301, 1.0},
        {kKBeam, "Firk", 50, 1.0},
    };
    m->s_exponent = 0.125F;
    for (const auto& c : cases) {
        m->material_family = c.family;
        m->section_form = c.form;
        m->section_h = c.h;
        Calc_kh(*m);
        EXPECT_EQ(m->kh, f32(c.kh)) << c.family << " " << c.form << " h = " << c.h;
    }
}

TEST(Kcr, SwedenDerivesItFromTheShearStrengthUnlessTheBeamIsExposed)
{
    auto m = example_beam();
    m->kcr_timb = 0.5F;
    m->kcr_lam = 0.6F;
    m->kcr_kerto = 0.7F;
    m->kcr_k_bjelke = 0.8F;
    m->annex_s = "Swe";
    m->kcr_exposed = kFalse;
    m->material_family = kLaminated;
    m->fvk = 3.5F;
    Calc_kcr(*m);
    EXPECT_EQ(m->kcr, f32(3 / 3.5));
    m->fvk = 2.5F;
    Calc_kcr(*m);
    EXPECT_EQ(m->kcr, 1.0F);
    m->material_family = kKerto; // no rule for LVL
    Calc_kcr(*m);
    EXPECT_EQ(m->kcr, 0.7F);

    m->kcr_exposed = kTrue;
    m->material_family = kTimber;
    Calc_kcr(*m);
    EXPECT_EQ(m->kcr, 0.5F);
    m->annex_s = "Nor";
    m->kcr_exposed = kFalse;
    m->material_family = kKBeam;
    Calc_kcr(*m);
    EXPECT_EQ(m->kcr, 0.8F);
}

TEST(LoadFactors, FollowTheAnnexAndItsClass)
{
    struct Case {
        const char* annex;
        int safety_class;
        double kfi;
        double G_a, G_b, Q1_a, Q1_b, Q2_a, Q2_b;
    };
    const double p1 = 0.7, p2 = 0.6;
    const Case cases[] = {
        {"Euc", 2, 1.0, 1.35, 1.1475, 1.5 * p1, 1.5, 1.5 * p2, 1.5 * p2},
        // Norway: Kfi on the variable loads only.
        {"Nor", 1, 0.9, 1.35, 1.2015, 0.9 * 1.5 * p1, 0.9 * 1.5, 0.9 * 1.5 * p2, 0.9 * 1.5 * p2},
        // Sweden: 6.10a is permanent load alone, without making Q vanish.
        {"Swe", 2, 0.91, 0.91 * 1.35, 0.91 * 0.89 * 1.35, 0.00001, 0.91 * 1.5, 0.00001, 0.91 * 1.5 * p2},
    };
    for (const Case& c : cases) {
        auto m = example_beam();
        m->annex = c.annex;
        m->safety_class = static_cast<std::int16_t>(c.safety_class);
        m->kfi = 1.0F;
        m->psi0_1 = f32(p1);
        m->psi0_2 = f32(p2);
        m->psi2_1 = 0.3F;
        m->psi2_2 = 0.2F;
        m->service_class = 2;
        Calc_load_factors(*m);
        Calc_kdef(*m);
        SCOPED_TRACE(std::string(c.annex) + " class " + std::to_string(c.safety_class));
        EXPECT_FLOAT_EQ(m->kfi, f32(c.kfi));
        EXPECT_FLOAT_EQ(m->gamma_G_a, f32(c.G_a));
        EXPECT_FLOAT_EQ(m->gamma_G_b, f32(c.G_b));
        EXPECT_FLOAT_EQ(m->gamma_Q1_a, f32(c.Q1_a));
        EXPECT_FLOAT_EQ(m->gamma_Q1_b, f32(c.Q1_b));
        EXPECT_FLOAT_EQ(m->gamma_Q2_a, f32(c.Q2_a));
        EXPECT_FLOAT_EQ(m->gamma_Q2_b, f32(c.Q2_b));
        // The deflection factors are the same in every annex.
        EXPECT_FLOAT_EQ(m->creep_G, 1.8F);
        EXPECT_FLOAT_EQ(m->creep_Q1, f32(1 + 0.3 * 0.8));
        EXPECT_FLOAT_EQ(m->creep_Q2, f32(0.6 + 0.2 * 0.8));
    }
}

TEST(LoadFactors, AnAnnexWithoutRulesKeepsTheFactorsItHad)
{
    auto m = example_beam();
    set_all_factors(*m, 7.0F);
    m->annex = "Fin";
    m->safety_class = 3;
    Calc_load_factors(*m);
    EXPECT_EQ(m->kfi, 1.1F);
    EXPECT_EQ(m->gamma_G_a, 7.0F);
    EXPECT_EQ(m->gamma_Q2_b, 7.0F);
    m->annex = "Nor";
    m->kfi = 0.5F;
    m->safety_class = 3; // Norway has no class 3: Kfi stays
    Calc_load_factors(*m);
    EXPECT_EQ(m->kfi, 0.5F);
}

TEST(MaterialData, CopiesTheCatalogueRowByPosition)
{
    auto m = example_beam();
    Read_material_data(*m, 24);
    EXPECT_EQ(m->fmk, 30.0F);
    EXPECT_EQ(m->fc90k, 2.5F);
    EXPECT_EQ(m->fvk, 3.5F);
    EXPECT_EQ(m->E0_mean, 13000.0F); // the file gives the mean modulus before the 5 % one
    EXPECT_EQ(m->E0_05, 10800.0F);
    EXPECT_EQ(m->density, 430.0F);
    Read_material_data(*m, m->material_table.last_row + 1); // no such row: nothing changes
    EXPECT_EQ(m->fmk, 30.0F);
}

TEST(SectionInputFlag, MarksWhatIsOutOfLimitsWithoutStoppingAnything)
{
    auto m = example_beam();
    Check_section_input(*m);
    EXPECT_EQ(m->calc_invalid, kFalse);
    m->vipping_off = kFalse;
    m->lef_factor(2) = 2.5F;
    Check_section_input(*m);
    EXPECT_EQ(m->calc_invalid, kTrue);
}

TEST(ProfileDimensions, ComeFromTheRowOfTheFamilyList)
{
    auto m = example_beam();
    ASSERT_TRUE(Read_profile_dimensions(*m, 1, 52));
    EXPECT_EQ(m->section_b, 140.0F);
    EXPECT_EQ(m->section_h, 405.0F);
    EXPECT_FALSE(Read_profile_dimensions(*m, 1, 5000));
    EXPECT_FALSE(Read_profile_dimensions(*m, 4, 0));
    EXPECT_EQ(m->section_h, 405.0F);
}

// One span or more of `n` stations at x = 0, L, then 1, 2, ... m; W and A chosen
// so that a stress in MPa equals the moment in kNm and the shear in kN.
std::unique_ptr<Model> stations(int spans, int n)
{
    auto m = std::make_unique<Model>();
    set_span_count(*m, spans);
    for (int i = 1; i <= spans; ++i) {
        m->ffl_s(i) = static_cast<float>(n - 1);
        m->nxtot_s(i) = static_cast<std::int16_t>(n);
        m->xl_s(i, 1) = 0;
        m->xl_s(i, 2) = m->ffl_s(i);
        for (int j = 3; j <= n; ++j) {
            m->xl_s(i, j) = static_cast<float>(j - 2);
        }
    }
    m->Wyy = 1.0e6F;
    m->Azz = 1500.0F;
    m->fmd = 10.0F;
    m->fvd = 1.0F;
    return m;
}

TEST(BendingCheck, EqualSignsLeaveThePositiveAndTheCutOfTinyMomentsIsExact)
{
    auto m = stations(1, 4);
    m->M_max(1, 3) = 5.0F;
    m->M_min(1, 4) = -5.0F;
    m->M_max(1, 4) = 0.0001F; // at the cut: computed
    m->M_min(1, 3) = -0.00009F;
    Control_sections(*m);
    EXPECT_FLOAT_EQ(m->x_mom(1), 1.0F); // the positive station
    EXPECT_GT(m->Uf_sigma_st(1, 4), 0);
    EXPECT_EQ(m->Uf_sigma_st(1, 3), 0); // the negative pass writes last, below the cut
}

TEST(LateralBuckling, KCritFollowsTheSlendernessInThreeRanges)
{
    auto m = example_beam();
    m->nf = 1;
    m->section_b = 100, m->section_h = 300;
    m->l_stag(1) = 5, m->lef_factor(1) = 0.9F, m->load_location = 0;
    m->E0_05 = 9000, m->fmk = 24;
    Calc_leff(*m);
    EXPECT_FLOAT_EQ(m->l_eff(1), 5.1F); // 4.5 + 2h on top of the beam
    EXPECT_NEAR(m->sigma_m_crit(1), 45.88, 0.01);
    EXPECT_NEAR(m->lambda_rel_m(1), 0.723, 0.001);
    EXPECT_EQ(m->k_crit(1), 1.0F);

    m->load_location = 1;
    Calc_leff(*m);
    EXPECT_FLOAT_EQ(m->l_eff(1), 4.35F); // 4.5 - 0.5h at the bottom

    // lambda = sqrt(fmk / sigma_crit): choose fmk for a given lambda.
    const auto k_for = [&](float lambda) {
        m->fmk = f32(static_cast<double>(lambda) * lambda * m->sigma_m_crit(1));
        Calc_k_crit(*m);
        return m->k_crit(1);
    };
    EXPECT_EQ(k_for(0.5F), 1.0F);
    EXPECT_NEAR(k_for(1.0F), 1.56 - 0.75, 1e-5);
    EXPECT_NEAR(k_for(2.0F), 0.25, 1e-5);

    // The limits themselves: sigma_crit = 100 exactly, fmk = 56.25 and 196.
    m->section_b = 100, m->section_h = 78, m->E0_05 = 1000, m->l_eff(1) = 1;
    m->fmk = 56.25F;
    Calc_k_crit(*m);
    ASSERT_EQ(m->lambda_rel_m(1), 0.75F);
    EXPECT_EQ(m->k_crit(1), 1.0F);
    m->fmk = 196;
    Calc_k_crit(*m);
    ASSERT_EQ(m->lambda_rel_m(1), 1.4F);
    EXPECT_NEAR(m->k_crit(1), 0.5102, 1e-4);
    m->l_eff(1) = -0.1F; // a length of nothing cannot buckle
    Calc_k_crit(*m);
    EXPECT_EQ(m->k_crit(1), 1.0F);
}

TEST(LateralBuckling, ChecksSaggingInsideTheSpanAndTheSupportOfACantilever)
{
    auto m = stations(1, 5);
    m->nsupLeft_s = kFree;
    m->support_kind(1) = kFree;
    m->vipping_off = kFalse;
    m->k_crit(1) = 0.5F;
    m->M_max(1, 2) = 2.0F;  // the support end of the cantilever
    m->M_max(1, 3) = 9.0F;  // hogging inside: never examined
    m->M_min(1, 1) = -9.0F; // an end: never examined
    m->M_min(1, 4) = -1.0F;
    Control_sections(*m);
    EXPECT_FLOAT_EQ(m->Uf_ltb(1), 0.4F); // 2 / (10 x 0.5)
    EXPECT_FLOAT_EQ(m->M_ltb(1), 2.0F);

    m->M_min(1, 4) = -2.0F; // an equal usage factor inside: the later station counts
    m->M_min(1, 5) = -2.0F;
    Control_sections(*m);
    EXPECT_FLOAT_EQ(m->Uf_ltb(1), 0.4F);
    EXPECT_FLOAT_EQ(m->sigma_ltb(1), 2.0F);

    // With nothing but stations below the cut, the last of them stands.
    m->support_kind(1) = kSimple;
    m->M_min.fill(0);
    m->M_min(1, 5) = -0.00005F;
    Control_sections(*m);
    EXPECT_EQ(m->Uf_ltb(1), 0);
    EXPECT_EQ(m->M_ltb(1), 0.00005F);

    m->vipping_off = kTrue;
    m->M_ltb(1) = 7;
    Control_sections(*m);
    EXPECT_EQ(m->M_ltb(1), 7); // no check: nothing written
}

TEST(Bearing, SpreadsTheReactionOverWidthAndBearingLengthAndAFixedEndHasNoCheck)
{
    auto m = stations(2, 3);
    m->nsupLeft_s = kFree;
    m->section_b = 100, m->fc90d = 2;
    m->bearing_kc90.fill(1);
    m->bearing_kc90(2) = 1.25F;
    m->bearing_length(2) = 100, m->bearing_length(3) = 200;
    m->R_max(1) = 50;
    m->R_max(2) = 0.001F; // at the floor
    Control_support(*m);
    EXPECT_EQ(bearing_kind(*m, 1), kFree);
    EXPECT_FLOAT_EQ(m->sigma_c90(2), 5.0F); // node 2 bears the first reaction
    EXPECT_FLOAT_EQ(m->Uf_c90(2), 2.0F);
    EXPECT_EQ(m->sigma_c90(3), 0.001F);

    m->nsupLeft_s = kBuiltIn;
    m->sigma_c90.fill(0);
    m->R_max(2) = 20, m->R_max(3) = 30;
    Control_support(*m);
    EXPECT_EQ(m->sigma_c90(1), 0); // fixed: no check
    EXPECT_FLOAT_EQ(m->sigma_c90(2), 2.0F);
    EXPECT_FLOAT_EQ(m->sigma_c90(3), 1.5F);
}

TEST(ResultColumns, ShowOverrunsInRedAndAbsentSpansBlank)
{
    auto m = stations(3, 3);
    m->Uf_mom(1) = 1.0F;
    m->Uf_mom(2) = 1.004F;
    m->Uf_tau(3) = 1.2F;
    m->x_mom(2) = 2.25F;
    const auto columns = span_columns(*m);
    EXPECT_EQ(columns[0].moment.text, "1.00 ");
    EXPECT_FALSE(columns[0].moment.red); // 1.00 is no overrun
    EXPECT_EQ(columns[1].moment.text, "1.00 ");
    EXPECT_TRUE(columns[1].moment.red); // shown as 1.00, yet above 1
    EXPECT_EQ(columns[1].x_moment.text, "2.3 ");
    EXPECT_TRUE(columns[2].shear.red);
    EXPECT_EQ(columns[3].moment.text, "");
    EXPECT_EQ(columns[3].span.background, Shade::ButtonFace);
    EXPECT_EQ(columns[2].span.background, Shade::LightYellow);
    EXPECT_EQ(columns[0].buckling.text, ""); // the check is off
    EXPECT_EQ(columns[0].buckling.background, Shade::ButtonFace);

    m->language = "Nor";
    m->nsupRight_s = kBuiltIn;
    m->section_form = "Firk";
    const auto rows = bearing_rows(*m);
    EXPECT_EQ(rows[3].usage.text, "Innspent");
    EXPECT_EQ(rows[3].kc90.text, "");
    EXPECT_EQ(rows[4].node.text, "");
    m->section_form = "Tube";
    EXPECT_EQ(bearing_rows(*m)[0].node.text, "");
}

TEST(FactorLabels, NameTheClassAsTheAnnexDoes)
{
    auto m = example_beam();
    m->language = "Nor";
    m->annex = "Nor";
    m->safety_class = 2;
    m->kfi = 1.0F;
    m->duration_class = 5;
    FactorLabels labels = factor_labels(*m);
    EXPECT_EQ(labels.safety_frame, "P\u00e5lit. klasse");
    EXPECT_EQ(labels.safety_class, "2 - 4");
    EXPECT_EQ(labels.kfi, "Kfi = 1.00");
    EXPECT_EQ(labels.duration, "\u00d8yeblikks last");
    m->annex = "Swe";
    m->kfi = 0.91F;
    labels = factor_labels(*m);
    EXPECT_EQ(labels.safety_frame, "Safety class");
    EXPECT_EQ(labels.safety_class, "2");
    EXPECT_EQ(labels.kfi, "Sk = 0.91");
    m->annex = "Euc";
    EXPECT_EQ(factor_labels(*m).safety_frame, "");
    m->annex = "Uk ";
    EXPECT_EQ(factor_labels(*m).safety_frame, std::nullopt); // left as the last annex had it
    m->psi0_1 = 0.7F, m->psi2_1 = 0.3F;
    EXPECT_EQ(factor_labels(*m).psi_Q1, "psi0 = 0.7   psi2 = 0.3");
}

} // namespace
} // namespace kvelder::test
