// Factors by annex, classes, family and section, the catalogue rows they come
// from and the limits of the section input.

#include "design/factors.h"
#include "design/section.h"
#include "tests/support/beams.h"

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

} // namespace
} // namespace kvelder::test
