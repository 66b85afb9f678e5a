// The setup dialog's rules on the setup table as shipped: Norway, Sweden, Eurocode.

#include "tests/support/beams.h"
#include "ui/setup_dialog.h"

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(SetupDialogRules, EachAnnexShowsItsClassesAndACountryChangeKeepsTheRowLeft)
{
    auto m = example_beam();
    EXPECT_EQ(country_items(m->setup),
              (std::vector<std::string>{"EC5 + NS-EN 1990 NA", "EC5 + EKS", "EC5 + EN 1990 recommended"}));
    m->setup.setup_table[2].annex_title.clear();
    EXPECT_EQ(country_items(m->setup).back(), "EC5 ");
    EXPECT_EQ(psi_items(PsiList::Psi0_Q2).front(), "0.2");
    EXPECT_EQ(psi_items(PsiList::Psi2_Q1).back(), "1.0");

    EXPECT_EQ(setup_view(*m).frame, ClassFrame::Norway);
    choose_safety_class(*m, 1);
    EXPECT_TRUE(setup_view(*m).norway_class_1);
    EXPECT_EQ(setup_view(*m).kfi, "0.90");
    choose_language(*m, "Nor");

    change_country(*m, 1); // Sweden: its safety classes and the exposed beam's kcr
    const SetupView sweden = setup_view(*m);
    EXPECT_EQ(sweden.frame, ClassFrame::Sweden);
    EXPECT_TRUE(sweden.kcr_check);
    EXPECT_EQ(sweden.sweden_option, 2);
    EXPECT_EQ(sweden.kfi, "0.91"); // Sweden's class 2, not Norway's class 1 still in force
    EXPECT_EQ(m->language, "Nor");
    change_country(*m, 0);
    EXPECT_EQ(m->safety_class, 1); // the row left kept its class
    change_country(*m, 2);
    EXPECT_EQ(setup_view(*m).frame, ClassFrame::None);
    EXPECT_FALSE(setup_view(*m).kcr_check);
}

} // namespace
} // namespace kvelder::test
