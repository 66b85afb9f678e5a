// The tables of the report: what their lines say, where their numbers stand,
// and that every section stays on its part of the page.

#include "drawing/plot_scale.h"
#include "report/detail_tables.h"
#include "report/report_sections.h"
#include "tests/report/page_image.h"
#include "tests/support/beams.h"
#include "ui/edits.h"

#include <QImage>

#include <gtest/gtest.h>

#include <numeric>

namespace kvelder::test {
namespace {

std::vector<std::string> texts(const TableLine& line)
{
    std::vector<std::string> out;
    for (const TableCell& c : line.cells) {
        out.push_back(c.text);
    }
    return out;
}

bool shows(const std::vector<TableLine>& lines, std::string_view text)
{
    for (const TableLine& line : lines) {
        for (const TableCell& c : line.cells) {
            if (c.text == text) {
                return true;
            }
        }
    }
    return false;
}

float height(const std::vector<TableLine>& lines)
{
    return std::accumulate(lines.begin(), lines.end(), 0.0F,
                           [](float h, const TableLine& l) { return h + l.pitch; });
}

// Five spans, a circle, and every load table of every group holding rows.
std::unique_ptr<Model> round_five_spans()
{
    auto m = example_beam();
    set_span_count(*m, 5);
    for (int i = 1; i <= 5; ++i) {
        m->ffl_s(i) = 3.0F + static_cast<float>(i);
    }
    for (LoadGroup* g : {&m->G, &m->Q1, &m->Q2}) {
        *g = LoadGroup{};
        for (int i = 1; i <= 5; ++i) {
            const float L = m->ffl_s(i);
            add_uniform(*g, i, 1.0F);
            add_trapezoid(*g, i, 0.5F, 2.0F, 0.1F, L / 2);
            add_trapezoid(*g, i, -1.5F, -2.0F, L / 2, L - 0.1F);
            add_point(*g, i, 3.0F, 0.3F * L);
            add_point(*g, i, -12.5F, 0.7F * L);
            add_moment(*g, i, 1.5F, 0.45F * L);
        }
        add_moment(*g, 5, -2.0F, 1.0F);
    }
    m->loadcomb_option = 2;
    choose_section_option(*m, SectionOption::Circle);
    return calculated(std::move(m));
}

TEST(LoadTables, GroupsTakeTheRoomTheDriverReservesAndColumnsLineUp)
{
    auto m = calculated(loaded_beam());
    m->Q2 = LoadGroup{};
    m->Q2_empty = kTrue;
    const auto lines = load_lines(*m);
    // G and Q1 each: heading, titles, heads and two rows (12 mm and 3.5 a row);
    // the empty Q2 leaves neither heading nor gap.
    EXPECT_FLOAT_EQ(height(lines), 2 * (12 + 2 * kLoadPitch));
    EXPECT_FALSE(shows(lines, "Variable loads Q2: "));
    EXPECT_TRUE(shows(lines, "(Selfweight of beam included as permanent load)"));
    EXPECT_EQ(texts(lines[1]), (std::vector<std::string>{"Uniform loads", "Trapezoidal loads", "Moment loads",
                                                         "Point loads"}));
    // Every number stands under a column head of its table.
    for (const std::size_t first_row : {3U, 8U}) {
        for (std::size_t k = first_row; k < first_row + 2; ++k) {
            for (const TableCell& c : lines[k].cells) {
                EXPECT_FALSE(lines[first_row - 1].at(c.x).empty()) << c.text << " at " << c.x;
            }
        }
    }
    EXPECT_EQ(lines[3].at(30 + 8 + 12), "1.00"); // G's trapezoid q1 under "q1"
    EXPECT_EQ(lines[2].at(30 + 8 + 12), "q1");

    m->G = LoadGroup{};
    m->G_empty = kTrue;
    m->language = "Nor";
    m->profile_weight_on = kFalse;
    const auto nor = load_lines(*m);
    EXPECT_EQ(texts(nor[0]), std::vector<std::string>{"Permanent last G: "});
    EXPECT_EQ(texts(nor[1]), (std::vector<std::string>{"* ", "Ingen permanent last: "}));
    EXPECT_EQ(texts(nor[2]).front(), "Variabel last Q1: ");
}

TEST(DetailTables, OneLinePerDetailPointAndOnePerNode)
{
    const auto m = calculated(loaded_beam());
    const auto points = detail_points(*m);
    const auto forces = force_lines(*m);
    ASSERT_EQ(forces.size(), points.size() + 3);
    const TableLine& end = forces.back(); // the free end: no shear, no moment
    EXPECT_EQ(end.at(35), "0.00 ");
    EXPECT_EQ(end.at(67), "0.00 ");
    EXPECT_EQ(end.at(24), "6.00");
    EXPECT_EQ(end.at(10), "3");

    const auto reactions = reaction_lines(*m);
    ASSERT_EQ(reactions.size(), 3U + 4U);
    EXPECT_EQ(texts(reactions[6]), (std::vector<std::string>{"4 ", "Free"}));
    EXPECT_NE(reactions[3].at(67), "0.00 "); // the built-in end takes a moment
    EXPECT_EQ(reactions[4].at(67), "0.00 ");
}

TEST(SupportAndSectionTables, FollowTheEndsTheFormAndTheLanguage)
{
    auto m = calculated(loaded_beam());
    auto rows = support_lines(*m);
    EXPECT_TRUE(shows(rows, "Sigma c,90,d"));
    EXPECT_EQ(texts(rows[2]).at(2), "Fixed");
    EXPECT_EQ(texts(rows[5]), (std::vector<std::string>{"4", "Free"}));
    EXPECT_EQ(texts(rows[3]).back().substr(0, 3), " = ");
    EXPECT_FALSE(shows(section_lines(*m), "d  = "));
    EXPECT_EQ(buckling_lines(*m).size(), 3U + 3U);

    m->language = "Nor";
    choose_section_option(*m, SectionOption::Circle);
    m = calculated(std::move(m));
    rows = support_lines(*m);
    EXPECT_EQ(texts(rows[0]), (std::vector<std::string>{"Knutepkt.", "Oppleggskraft"}));
    EXPECT_EQ(texts(rows[2]).at(2), "Innspent");
    EXPECT_EQ(texts(rows[3]).size(), 2U);
    const auto section = section_lines(*m);
    EXPECT_TRUE(shows(section, "d  = "));
    EXPECT_FALSE(shows(section, "b  = "));
    EXPECT_TRUE(shows(section, "Tverrsnittsdata (mm2,mm3,mm4)"));
    EXPECT_EQ(texts(buckling_lines(*m)[0]), std::vector<std::string>{"Ingen vipping , sirkul\u00e6r profil"});
}

TEST(ReportSections, EachDrawsWithinTheColumnOfTheReportAndBelowItsStart)
{
    using Section = float (*)(PlotSurface&, const Model&, float, float);
    const std::array<std::pair<const char*, Section>, 7> sections{{
        {"material", PrintMaterialTable},
        {"section",
         [](PlotSurface& s, const Model& m, float x, float y) {
             PrintSectionSketch(s, m, 13, y);
             return PrintSectionTable(s, m, x, y);
         }},
        {"factors", PrintFactors},
        {"loads", PrintLoadTables},
        {"buckling", PrintBucklingTable},
        {"supports", PrintSupportTable},
        {"details",
         [](PlotSurface& s, const Model& m, float x, float y) {
             return PrintLines(s, reaction_lines(m), x, PrintLines(s, force_lines(m), x, y));
         }},
    }};
    std::vector<std::unique_ptr<Model>> beams;
    beams.push_back(round_five_spans());
    beams.push_back(calculated(loaded_beam()));
    for (auto& m : beams) {
        for (const char* language : {"Eng", "Nor"}) {
            m->language = language;
            for (const auto& [name, print] : sections) {
                PageImage page;
                float below = 0;
                {
                    PlotSurface s(page.image);
                    SetPlotScale(s, 0, 290, 200, 0);
                    below = print(s, *m, 15, 280);
                }
                const auto [left, right, bottom, top] = page.ink();
                const std::string where = std::string(name) + " " + language + " " + m->section_form;
                EXPECT_GE(left, 13) << where;
                EXPECT_LE(right, 185) << where;
                EXPECT_LE(top, 280.5F) << where;
                EXPECT_LT(below, 280) << where;
                EXPECT_GE(bottom, below - 1) << where;
            }
        }
    }
}

} // namespace
} // namespace kvelder::test
