// What the detailed results and the result grid show of the last run.

#include "design/section_checks.h"
#include "files/number_format.h"
#include "tests/support/beams.h"
#include "ui/detailed_result.h"
#include "ui/edits.h"
#include "ui/result_grid.h"
#include "ui/result_points.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kvelder::test {
namespace {

std::string joined(const TextLine& line)
{
    std::string s;
    for (const TextSegment& piece : line) {
        s += piece.text;
    }
    return s;
}

// The coloured piece of a line: its usage factor.
TextSegment usage_of(const TextLine& line)
{
    const auto it =
        std::find_if(line.begin(), line.end(), [](const TextSegment& p) { return p.color != kTextColor; });
    return it != line.end() ? *it : TextSegment{};
}

TEST(DetailedResult, SaysEachCheckInWordsWithItsUsageFactorRedOnlyAboveOne)
{
    auto m = calculated(loaded_beam());
    std::vector<TextLine> lines = Show_span_detail(*m, 2);
    EXPECT_EQ(joined(lines[0]), "Span no.   2");
    EXPECT_EQ(joined(lines[3]), "Max. posetive moment:  " + format_number(m->M_pos(2), "0.00") + " kNm");
    const TextLine& positive = lines[4];
    EXPECT_EQ(positive[0].text,
              "UF  =  sigma_pos / fm,y,d               =     " + format_number(m->sigma_pos(2), "0.00") +
                  " / " + format_number(m->fmd, "0.00") + "   ");
    EXPECT_EQ(positive[2].text, "        <  1.0        at   xl   =   " + format_number(m->x_pos(2), "0.00"));
    EXPECT_EQ(usage_of(lines[10]).text, format_number(m->Uf_tau(2), "0.00"));
    EXPECT_TRUE(joined(lines[10]).find("        <  1.0       at") != std::string::npos);
    // The buckling check is on (load at the bottom), in Norwegian words.
    EXPECT_EQ(joined(lines[13]), "leff = Feltlengde (avstand mellom stag)- 0.5 x h  = " +
                                     format_number(m->l_eff(2), "0.0") + "  m");
    EXPECT_EQ(usage_of(lines.back()).text, format_number(m->Uf_ltb(2), "0.00"));

    // Span 2 fails in positive bending only: that factor alone is red, and
    // exactly 1 is still within.
    ASSERT_GT(m->Uf_pos(2), 1.0F);
    ASSERT_LT(m->Uf_tau(2), 1.0F);
    EXPECT_EQ(usage_of(lines[4]).color, kOverrunColor);
    EXPECT_EQ(usage_of(lines[7]).color, kWithinColor);
    m->Uf_neg(2) = 1.0F;
    m->Uf_tau(2) = 1.0001F;
    lines = Show_span_detail(*m, 2);
    EXPECT_EQ(usage_of(lines[7]), (TextSegment{"1.00", kWithinColor}));
    EXPECT_EQ(usage_of(lines[10]), (TextSegment{"1.00", kOverrunColor}));

    // Without the check, or for a circle, one line says so; Norwegian words.
    m->language = "Nor";
    choose_section_option(*m, SectionOption::Circle);
    lines = Show_span_detail(*m, 1);
    EXPECT_EQ(joined(lines[0]), "Felt nr.   1");
    EXPECT_EQ(joined(lines.back()),
              "Ingen vipping, sirkul\u00e6rt profil eller trykkside kontinuerlig avstivet:: ");
}

TEST(DetailedResult, TrialBoxesFollowTheSectionAndChangeTheBeam)
{
    auto m = example_beam(); // a laminated catalogue profile
    DetailSection s = detail_section(*m);
    EXPECT_EQ(s.kind, TrialSection::Profile);
    EXPECT_EQ(s.profile,
              m->profile_families.of(m->prof_type_index)[static_cast<std::size_t>(m->prof_index)].name);
    choose_family(*m, 2); // kerto: a free rectangle, whatever the catalogue says
    s = detail_section(*m);
    EXPECT_EQ(s.kind, TrialSection::Rectangle);
    EXPECT_EQ(s.h, format_number(m->section_h, "0"));

    TrialCommit c = commit_trial_size(*m, Box::Height, "412,4");
    EXPECT_FLOAT_EQ(m->section_h, 412.4F);
    EXPECT_EQ(c.text, "412");
    c = commit_trial_size(*m, Box::Width, "-5");
    EXPECT_EQ(m->section_b, -5.0F); // held at the gate, as the main window's box holds it
    EXPECT_TRUE(window_box_failure(*m).has_value());
    EXPECT_EQ(c.main_text, "-5");
    EXPECT_EQ(c.failure->text, " b =< 0 ");

    choose_section_option(*m, SectionOption::Circle);
    c = commit_trial_size(*m, Box::Diameter, "250.4");
    EXPECT_EQ(detail_section(*m).kind, TrialSection::Circle);
    EXPECT_EQ(c.text, "250");
    EXPECT_EQ(c.main_text, "250.40");
}

TEST(ResultGrid, OneRowPerCoarsePointInOrderWithTheEnvelopesAndTheReactionsAtTheNodes)
{
    const auto m = calculated(loaded_beam());
    const ResultGrid grid = result_grid(*m);
    const auto points = coarse_points(*m);
    ASSERT_EQ(grid.rows.size(), points.size());
    int coarse = 0;
    for (int i = 1; i <= m->nf; ++i) {
        coarse += m->nxtot10_s(i);
    }
    EXPECT_EQ(static_cast<int>(points.size()), coarse);
    int last_span = 0;
    float last_x = -1;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const DetailPoint& p = points[k];
        const GridRow& row = grid.rows[k];
        if (p.span != last_span) {
            EXPECT_EQ(p.span, last_span + 1);
            EXPECT_FLOAT_EQ(p.x, 0.0F);
            EXPECT_EQ(row.cells[0], std::to_string(p.span));
            last_span = p.span, last_x = -1;
        } else {
            EXPECT_EQ(row.cells[0], "");
        }
        EXPECT_GE(p.x, last_x) << "span " << p.span;
        EXPECT_NEAR(m->xl_s(p.span, p.fine), p.x, 1e-4F);
        last_x = p.x;
        EXPECT_EQ(row.cells[1], format_number(p.x, "##0.000"));
        EXPECT_EQ(row.cells[4], format_number(m->M_max(p.span, p.fine), "##0.0"));
    }
    // Span 1 of 4 m: eleven tenths, and the point loads at 1 m and 2 m add
    // 0.999, 1.0, 1.999 and 2.0, which is a tenth already.
    EXPECT_EQ(std::count_if(points.begin(), points.end(), [](const DetailPoint& p) { return p.span == 1; }),
              15);
    EXPECT_EQ(points.back().fine, 2); // the right end of the last span

    // Grey rows at the nodes; each supported node's reaction once, the free end none.
    std::vector<std::size_t> grey, reactions;
    for (std::size_t k = 0; k < grid.rows.size(); ++k) {
        if (grid.rows[k].node) {
            grey.push_back(k);
        }
        if (!grid.rows[k].cells[6].empty()) {
            reactions.push_back(k);
        }
    }
    const auto start = [&points](int span) {
        return static_cast<std::size_t>(
            std::find_if(points.begin(), points.end(),
                         [span](const DetailPoint& p) { return p.span == span; }) -
            points.begin());
    };
    const std::size_t s2 = start(2), s3 = start(3), n = grid.rows.size();
    EXPECT_EQ(grey, (std::vector<std::size_t>{0, s2 - 1, s2, s3 - 1, s3, n - 1}));
    EXPECT_EQ(reactions, (std::vector<std::size_t>{0, s2 - 1, s3 - 1}));
    EXPECT_EQ(grid.rows[0].cells[8], format_number(m->MR_max(reaction_index(*m, 1)), "##0.0"));
    EXPECT_EQ(grid.rows[s3 - 1].cells[6], format_number(m->R_max(reaction_index(*m, 3)), "##0.0"));

    // The report lists a place once: a load on a tenth is no second row there.
    const auto places = detail_points(*m);
    EXPECT_EQ(places.size() + 3, points.size());
    for (std::size_t k = 1; k < places.size(); ++k) {
        EXPECT_TRUE(places[k].span != places[k - 1].span || places[k].x - places[k - 1].x > 1e-4F) << k;
    }
    const auto one = calculated(cantilever(3.0F));
    EXPECT_EQ(result_grid(*one).rows.size(), static_cast<std::size_t>(one->nxtot10_s(1)));
}

} // namespace
} // namespace kvelder::test
