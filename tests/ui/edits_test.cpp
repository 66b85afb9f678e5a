// What each control does to the beam: the rules the window and kvelder-cli
// share, the setup dialog's on the setup table as shipped, the braces and
// factors of the buckling check, and the checks of single boxes, of the spans
// and of the supports.

#include "tests/support/beams.h"
#include "ui/edits.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"
#include "ui/setup_dialog.h"

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

const ProfileRow& profile(const Model& m, int family, int index)
{
    return m.profile_families.of(family)[static_cast<std::size_t>(index)];
}

TEST(ChooseFamily, AStaleProfileFallsToTheMiddleAndTheSectionFollowsTheList)
{
    auto m = example_beam(); // laminated, profile 52; the shipped timber list has 28
    choose_section_option(*m, SectionOption::Rectangle);
    set_section_size(*m, Box::Width, 77);
    choose_family(*m, 0);
    EXPECT_EQ(m->material_family, "tre_bjelke");
    EXPECT_EQ(m->prof_index, 14);
    EXPECT_EQ(m->section_b, profile(*m, 0, m->prof_index).b);
    EXPECT_EQ(m->section_h, profile(*m, 0, m->prof_index).h);
    EXPECT_EQ(m->standard_section, kFalse); // still a free rectangle, of the listed size

    // Positions that no list or option holds, as a cleared list reports, change nothing.
    const auto before = std::make_unique<Model>(*m);
    choose_family(*m, -1);
    choose_family(*m, 4);
    choose_profile(*m, 28);
    choose_material(*m, -1);
    choose_material(*m, m->material_table.last_row + 1);
    LoadDialogs d = load_dialogs(*m);
    choose_span_count(*m, 6, d);
    choose_support(*m, BeamEnd::Left, 'X', d);
    choose_comb_rule(*m, "610c");
    choose_language(*m, "Swe");
    choose_service_class(*m, 0);
    choose_duration_class(*m, 6);
    choose_psi(*m, PsiList::Psi0_Q1, 9);
    choose_annex_row(*m, m->setup.setup_last_row + 1);
    EXPECT_TRUE(*m == *before);

    choose_profile(*m, 3);
    choose_family(*m, 1); // a selection the list holds stays
    EXPECT_EQ(m->prof_index, 3);
    EXPECT_EQ(m->section_h, profile(*m, 1, 3).h);
}

TEST(SectionOption, ACircleHasNoBucklingCheckACatalogueProfileItsSizesAndKertoOnlyRectangles)
{
    auto m = example_beam();
    set_buckling_check(*m, true);
    choose_section_option(*m, SectionOption::Circle);
    EXPECT_EQ(m->vipping_off, kTrue);
    EXPECT_FALSE(buckling_check_enabled(*m));

    choose_section_option(*m, SectionOption::Rectangle);
    EXPECT_EQ(m->vipping_off, kTrue); // back to a rectangle, the check stays off
    EXPECT_EQ(set_section_size(*m, Box::Width, 0)->text, " b =< 0 ");
    EXPECT_EQ(m->section_b, 0.0F); // the value stays as typed
    choose_section_option(*m, SectionOption::Standard);
    EXPECT_EQ(m->section_b, profile(*m, 1, 52).b);

    // Kerto is a free rectangle and not made for service class 3.
    choose_section_option(*m, SectionOption::Circle);
    choose_service_class(*m, 3);
    choose_family(*m, 2);
    EXPECT_EQ(m->material_family, "kerto     ");
    EXPECT_EQ(m->section_form, "Firk");
    EXPECT_EQ(m->service_class, 2);
    EXPECT_FALSE(service_class_enabled(*m, 3));
    EXPECT_FALSE(section_option_enabled(*m, SectionOption::Standard));
    EXPECT_FALSE(section_option_enabled(*m, SectionOption::Circle));
}

TEST(SpanCount, FewerSpansEmptyTheirRowsAndANewSpanHasNoLength)
{
    auto m = example_beam();
    add_point(m->Q1, 2, 1, 1);
    add_point(m->Q1, 1, 2, 1);
    LoadDialogs d = load_dialogs(*m);
    choose_support(*m, BeamEnd::Left, kBuiltIn, d);
    choose_load_combination(*m, 2);
    m->l_stag(1) = 2.0F;
    m->lef_factor(1) = 1.5F;

    EXPECT_FALSE(choose_span_count(*m, 1, d));
    EXPECT_EQ(m->l_stag(1), 5.0F); // the braces back at the span ends
    EXPECT_EQ(m->lef_factor(1), 0.9F);
    EXPECT_EQ(m->nnodes, 2);
    EXPECT_EQ(m->Q1.pt_n, 1);
    EXPECT_EQ(m->Q1.pt_P(1), 2.0F);
    EXPECT_TRUE(d[1].frames[2][0][0].empty()); // the row of span 2 is emptied in its place

    // A row on the new span goes when the count falls back, though the new
    // span's missing length stopped every run in between.
    ASSERT_TRUE(choose_span_count(*m, 2, d));
    d[0].frames[0].push_back({"2", "1.00"});
    EXPECT_FALSE(choose_span_count(*m, 1, d));
    EXPECT_TRUE(d[0].frames[0].back()[0].empty());
    ASSERT_TRUE(choose_span_count(*m, 2, d));
    m->l_stag(1) = 2.0F;
    EXPECT_FALSE(set_span_length(*m, 2, 4.0F, d));
    EXPECT_EQ(m->l_stag(1), 2.0F); // a length alone keeps the buckling data
}

TEST(SpanLength, ShorterSpansClipTheRowsOfGAndQ1)
{
    auto m = example_beam();
    for (LoadGroup* g : {&m->G, &m->Q1}) {
        add_trapezoid(*g, 1, 1, 2, 1.0F, 4.5F);
        add_point(*g, 1, 3, 4.2F);
    }
    LoadDialogs d = load_dialogs(*m);
    EXPECT_FALSE(set_span_length(*m, 1, 4.0F, d));
    for (const LoadGroup* g : {&m->G, &m->Q1}) {
        ASSERT_EQ(g->trap_n, 1);
        EXPECT_EQ(g->trap_b(1), 4.0F);
        EXPECT_EQ(g->pt_n, 0);
    }
}

TEST(Supports, LoadsOnANewSupportLoseTheirRows)
{
    auto m = example_beam();
    add_point(m->G, 1, 5, 0.01F);
    add_moment(m->G, 1, 2, 0.0F);
    add_point(m->Q1, 2, 5, 4.995F);
    add_moment(m->Q1, 2, 2, 5.0F);
    add_moment(m->Q2, 1, 2, 0.0F);
    LoadDialogs d = load_dialogs(*m);

    EXPECT_FALSE(choose_support(*m, BeamEnd::Left, kSimple, d));
    EXPECT_EQ(m->G.pt_n, 0); // a point on a simple support
    EXPECT_EQ(m->G.mom_n, 1);
    EXPECT_FALSE(choose_support(*m, BeamEnd::Left, kBuiltIn, d));
    EXPECT_EQ(m->G.mom_n, 0);             // a moment on a built-in end
    EXPECT_EQ(d[2].frames[3][0][0], "1"); // Q2 keeps its rows
    EXPECT_FALSE(choose_support(*m, BeamEnd::Right, kBuiltIn, d));
    EXPECT_EQ(m->Q1.pt_n, 0);
    EXPECT_EQ(m->Q1.mom_n, 0);
    EXPECT_EQ(m->support_kind(3), kBuiltIn);
}

TEST(SetupDialogRules, EachAnnexShowsItsClassesACountryChangeKeepsTheRowLeftAndTheListsGiveTheirFactors)
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

    // The lists and classes give their factors.
    choose_psi(*m, PsiList::Psi0_Q1, 4);
    choose_psi(*m, PsiList::Psi2_Q2, 0);
    EXPECT_EQ(m->psi0_1, f32(0.6));
    EXPECT_EQ(m->psi2_2, 0.0F);
    EXPECT_EQ(psi_list_size(PsiList::Psi0_Q2), 9);
    choose_annex_row(*m, 1); // Sweden
    EXPECT_EQ(m->annex, "Swe");
    EXPECT_EQ(m->psi0_1_index, m->setup.setup_table[1].psi0_1_index);
    choose_safety_class(*m, 1);
    EXPECT_EQ(m->kfi, 0.83F);
}

TEST(BucklingData, ASpanWithoutLengthGetsItsBracesWithItAndRefusedValuesNeverReachTheBeam)
{
    auto m = example_beam();
    LoadDialogs d = load_dialogs(*m);
    set_buckling_check(*m, true);
    ASSERT_FALSE(set_l_stag(*m, 1, 2.5F));
    EXPECT_FALSE(window_box_failure(*m));

    // A new span has no length when the braces are reset; its length brings them.
    choose_span_count(*m, 3, d);
    set_l_stag(*m, 1, 2.5F);
    set_span_length(*m, 3, 4.0F, d);
    EXPECT_EQ(m->l_stag(3), 4.0F);
    // Braces the engineer set stay, also beyond a span made shorter.
    set_span_length(*m, 1, 2.0F, d);
    EXPECT_EQ(m->l_stag(1), 2.5F);
    EXPECT_EQ(check_buckling_boxes(*m).size(), 1U);

    // Braces reset while a span had no length come with the check.
    set_buckling_check(*m, false);
    m->l_stag(3) = 0;
    set_buckling_check(*m, true);
    EXPECT_EQ(m->l_stag(3), 4.0F);

    // A refused value is not taken: no result is ever calculated from it.
    const auto failure = set_lef_factor(*m, 2, 2.1F);
    ASSERT_TRUE(failure);
    EXPECT_EQ(m->lef_factor(2), 0.9F);
    EXPECT_TRUE(set_l_stag(*m, 2, 0.3F));
    EXPECT_EQ(m->l_stag(2), 5.0F);
    EXPECT_FALSE(window_box_failure(*m));
    choose_load_location(*m, 2); // no option of the dialog
    EXPECT_EQ(m->load_location, 0);
}

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

TEST(SpanAndSupportChecks, StopAtTheFirstMissingSpanAndCountTheRestraints)
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

    m = example_beam();
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
