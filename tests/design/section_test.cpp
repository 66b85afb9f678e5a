// Section properties and design strengths.

#include "design/section.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(SectionProperties, Rectangle)
{
    auto m = example_beam();
    m->section_b = 100;
    m->section_h = 200;
    m->kcr = 0.67F;
    m->density = 430;
    Calc_prop_firk(*m);
    EXPECT_EQ(m->I_mm4, f32(100.0 * 200 * 200 * 200 / 12));
    EXPECT_EQ(m->Wyy, f32(static_cast<double>(m->I_mm4) / 100)); // from the stored, rounded I
    EXPECT_EQ(m->Axx, 20000.0F);
    EXPECT_EQ(m->Azz, 13400.0F);
    EXPECT_EQ(m->selfweight_q(1), f32(430 * 0.02 / 100));
    EXPECT_EQ(m->selfweight_q(2), m->selfweight_q(1));
}

TEST(SectionProperties, CircleTakesPiAs314AndHalfItsAreaForShear)
{
    auto m = example_beam();
    m->section_d = 400;
    m->kcr = 0.5F; // plays no part for a circle
    m->density = 500;
    Calc_prop_tube(*m);
    EXPECT_EQ(m->I_mm4, 1.256e9F);
    EXPECT_EQ(m->Wyy, 6.28e6F);
    EXPECT_EQ(m->Axx, 125600.0F);
    EXPECT_EQ(m->Azz, 62800.0F);
    EXPECT_EQ(m->selfweight_q(1), f32(500 * 0.1256 / 100));
}

TEST(DesignStrength, OnlyBendingCarriesTheSizeFactor)
{
    auto m = example_beam();
    m->fmk = 30, m->fvk = 3.5F, m->fc90k = 2.5F;
    m->kmod = 0.8F, m->ksys = 1.1F, m->kh = 1.05F, m->gamma_M = 1.25F;
    m->section_form = "Firk";
    m->I_mm4 = 0;
    Calc_design_strength(*m);
    const double kmod = 0.8F, ksys = 1.1F, kh = 1.05F, gamma_M = 1.25F;
    EXPECT_EQ(m->fmd, f32(kmod * 30 * ksys * kh / gamma_M));
    EXPECT_EQ(m->fvd, f32(3.5 * kmod * ksys / gamma_M));
    EXPECT_EQ(m->fc90d, f32(2.5 * kmod * ksys / gamma_M));
    EXPECT_GT(m->I_mm4, 0); // and the section properties follow
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
