// The printed report: what the lines of its tables and check blocks say, where
// their numbers stand, that every section and the page header stay on their
// part of the page, and how many pages the whole report takes.

#include "drawing/plot_scale.h"
#include "report/code_check_report.h"
#include "report/detail_tables.h"
#include "report/page_header.h"
#include "report/print_report.h"
#include "report/report_sections.h"
#include "report/report_text.h"
#include "tests/support/beams.h"
#include "ui/edits.h"
#include "ui/load_checks.h"
#include "ui/result_points.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>

namespace kvelder::test {
namespace {

// A report page of 200 x 290 mm at 4 pixels a millimetre, and the extent of
// its ink.
struct PageImage {
    QImage image{800, 1160, QImage::Format_RGB32};
    PageImage() { image.fill(Qt::white); }
    // left, right, bottom, top in millimetres, y up; an empty page gives left > right.
    std::array<float, 4> ink() const
    {
        int left = image.width(), right = -1, top = image.height(), bottom = -1;
        for (int py = 0; py < image.height(); ++py) {
            const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(py));
            for (int px = 0; px < image.width(); ++px) {
                if (row[px] != qRgb(255, 255, 255)) {
                    left = std::min(left, px), right = std::max(right, px);
                    top = std::min(top, py), bottom = std::max(bottom, py);
                }
            }
        }
        return {left / 4.0F, (right + 1) / 4.0F, 290 - (bottom + 1) / 4.0F, 290 - top / 4.0F};
    }
};

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

// Five spans, a circle, and every row of every load table of every group.
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
    EXPECT_FLOAT_EQ(std::accumulate(lines.begin(), lines.end(), 0.0F,
                                    [](float h, const TableLine& l) { return h + l.pitch; }),
                    2 * (12 + 2 * kLoadPitch));
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

TEST(PageHeader, StaysInItsBoxWithALongProjectNameInBothLanguages)
{
    auto m = example_beam();
    m->prosjekt_s = "Lagerhall med mange felt og en svært lang prosjekttittel som ikke får plass på én linje";
    for (const char* language : {"Eng", "Nor"}) {
        m->language = language;
        PageImage page;
        {
            PlotSurface s(page.image);
            SetPlotScale(s, 0, 290, 200, 0);
            PrintPageHeader(s, *m, {"C:\\Prosjekter\\hall.kvel", "23.11.2026", "14:05:09"}, 15, 285, 3);
        }
        const auto [left, right, bottom, top] = page.ink();
        EXPECT_NEAR(left, 15, 0.5) << language;
        EXPECT_NEAR(right, 185, 0.5) << language;
        EXPECT_NEAR(bottom, 266, 0.5) << language;
        EXPECT_NEAR(top, 285, 0.5) << language;
    }
}

TEST(ReportText, PrintRightEndsAtItsEdgeWhateverTheText)
{
    for (const char* text : {"1.00", "-1234.56"}) {
        PageImage page;
        {
            PlotSurface s(page.image);
            SetPlotScale(s, 0, 290, 200, 0);
            SetTableFont(s);
            PrintRight(s, 100, 200, text);
        }
        const auto ink = page.ink();
        EXPECT_NEAR(ink[1], 100, 0.6) << text;
        EXPECT_LT(ink[0], 99) << text;
    }
}

std::vector<std::string> check_texts(const Model& m, int span)
{
    std::vector<std::string> out;
    for (const CheckLine& line : BuildCheckTexts(m, span)) {
        out.push_back(line.text + "|" + line.ratio + "|" + line.outcome);
    }
    return out;
}

TEST(CodeCheckReport, SpanBlockPrintsEachStoredResultInItsPlaceInBothLanguages)
{
    // A cantilever under downward load has hogging only: its negative line stands at nought.
    auto cantilever_run = calculated(cantilever(2.0F));
    const auto lines = check_texts(*cantilever_run, 1);
    ASSERT_GE(lines.size(), 6U);
    EXPECT_EQ(lines[4], "Max. negative moment: 0.0 kNm||");
    EXPECT_EQ(lines[5].rfind("UF  = sigma_neg / fm,y,d|0.0 / ", 0), 0U) << lines[5];
    EXPECT_NE(lines[2], "Max. posetive moment: 0.0 kNm||");

    // Results of a real run, each then set apart so that a field read in the wrong place shows.
    auto m = calculated(loaded_beam());
    ASSERT_EQ(m->vipping_off, 0);
    m->fmd = 21.456F, m->fvd = 2.349F;
    m->M_pos(3) = 12.34F, m->sigma_pos(3) = 8.25F, m->Uf_pos(3) = 0.3845F, m->x_pos(3) = 0.0F;
    m->M_neg(3) = 7.06F, m->sigma_neg(3) = 4.71F, m->Uf_neg(3) = 0.2195F, m->x_neg(3) = 3.125F;
    m->V_pos(3) = 9.9F, m->V_neg(3) = -15.26F, m->V_gov(3) = -15.26F;
    m->tau_gov(3) = 1.04F, m->Uf_tau(3) = 1.0049F, m->xt_gov(3) = 6.0F;
    m->Uf_mom(3) = 0.91F, m->M_gov(3) = 99.0F, m->x_mom(3) = 5.5F;
    m->sigma_ltb(3) = 4.44F, m->k_crit(3) = 0.8749F, m->Uf_ltb(3) = 0.2365F;
    const std::vector<std::string> english{
        "Span no.    3||",
        "Section Control: ||",
        "Max. posetive moment: 12.3 kNm||",
        "UF  =  sigma_pos / fm,y,d|8.3 / 21.5|0.38        <  1.0         at   xl   =   0.00",
        "Max. negative moment: 7.1 kNm||",
        "UF  = sigma_neg / fm,y,d|4.7 / 21.5|0.22        <  1.0         at   xl   =   3.13",
        "Shear: -15.3 kN||",
        "UF  =  Tau / fv,d|1.0 / 2.3|1.00        <  1.0         at   xl   =   6.00",
        "Lateral buckling: ||",
        "UF  = Sigma / fm,y,d x k_crit|4.4 / 21.5 x 0.87|0.24",
    };
    EXPECT_EQ(check_texts(*m, 3), english);
    EXPECT_TRUE(BuildCheckTexts(*m, 3).front().bold);

    m->language = "Nor";
    m->decimal_comma = 1;
    const auto norwegian = check_texts(*m, 3);
    ASSERT_EQ(norwegian.size(), english.size());
    EXPECT_EQ(norwegian[2], "Maks. posetivt moment: 12,3 kNm||");
    EXPECT_EQ(norwegian[9], "UF  = Sigma / fm,y,d x k_crit|4,4 / 21,5 x 0,87|0,24");

    // Without a check the block ends in one sentence, and a circle wins over a held compression side.
    m->vipping_off = kTrue;
    EXPECT_EQ(check_texts(*m, 3).back(), "Vipping:  Ingen vipping, trykkside kontinuerlig avstivet. ||");
    m->section_form = "Tube";
    EXPECT_EQ(check_texts(*m, 3).back(), "Vipping:  Ingen vipping, sirkulært profil. ||");
    m->language = "Eng";
    EXPECT_EQ(check_texts(*m, 3).back(), "Lateral buckling:  No lateral buckling, circular profile. ||");
    m->section_form = "Firk";
    EXPECT_EQ(check_texts(*m, 3).back(),
              "Lateral buckling:  No lateral buckling, compression side supported. ||");
    EXPECT_EQ(check_texts(*m, 3).size(), english.size() - 1);
}

TEST(CodeCheckReport, EachSpanTakesAboutTwentySevenMillimetres)
{
    auto m = calculated(loaded_beam());
    PageImage page;
    PlotSurface s(page.image);
    SetPlotScale(s, 0, 290, 200, 0);
    const float below = PrintCodeCheck(s, *m, 15, 200, 1, 3);
    EXPECT_NEAR(200 - below, 3 * 27, 6);
}

// The pages the report of a beam takes, printed into a PDF in memory.
int pages(const Model& m, bool detailed)
{
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setPageSize(QPageSize(QPageSize::A4));
    PlotSurface surface(writer);
    const int count = PrintReport(surface, m, {"beam.kvel", "23.11.2026", "12:00:00"}, {detailed});
    surface.EndDoc();
    return count;
}

// The example beam on `nf` spans of 5 m each, as the window makes it, calculated.
std::unique_ptr<Model> spans(int nf)
{
    auto m = example_beam();
    LoadDialogs dialogs = load_dialogs(*m);
    choose_span_count(*m, nf, dialogs);
    for (int i = 1; i <= nf; ++i) {
        set_span_length(*m, i, 5.0F, dialogs);
    }
    return calculated(std::move(m));
}

TEST(ReportPages, FollowTheSpansAndTheDetailAndFullLoadTablesBreakOnward)
{
    // G and Q1 of two rows each: 87 + 2 x 3.5, then 12 + 2 x 3.5.
    EXPECT_FLOAT_EQ(ReportHeightOfLoads(*spans(2)), 113.0F);
    for (int nf = 1; nf <= 5; ++nf) {
        const auto m = spans(nf);
        const int compressed = nf <= 2 ? 2 : 3;
        EXPECT_EQ(pages(*m, false), compressed) << nf;
        // Five spans' governing loads run onto a page of their own.
        EXPECT_EQ(pages(*m, true), compressed + (nf < 5 ? 1 : 2)) << nf;
    }

    // Every row of every load table: the plots of the loads take a page of their own.
    const auto full = round_five_spans();
    EXPECT_EQ(pages(*full, false), 4);
    // Its forces along the beam run past the end of a page and go on on the next.
    EXPECT_GE(pages(*full, true), 6);
}

} // namespace
} // namespace kvelder::test
