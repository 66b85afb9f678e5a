// The check block of a span in the report: every number from its own stored
// result, in the texts of either language.

#include "drawing/plot_scale.h"
#include "report/code_check_report.h"
#include "tests/support/beams.h"

#include <QImage>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

std::vector<std::string> texts(const Model& m, int span)
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
    const auto lines = texts(*cantilever_run, 1);
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
    EXPECT_EQ(texts(*m, 3), english);
    EXPECT_TRUE(BuildCheckTexts(*m, 3).front().bold);

    m->language = "Nor";
    m->decimal_comma = 1;
    const auto norwegian = texts(*m, 3);
    ASSERT_EQ(norwegian.size(), english.size());
    EXPECT_EQ(norwegian[0], "Felt nr.    3||");
    EXPECT_EQ(norwegian[1], "Tverrsnitts kontroll: ||");
    EXPECT_EQ(norwegian[2], "Maks. posetivt moment: 12,3 kNm||");
    EXPECT_EQ(norwegian[4], "Maks. negativt moment: 7,1 kNm||");
    EXPECT_EQ(norwegian[6], "Skjær: -15,3 kN||");
    EXPECT_EQ(norwegian[8], "Vipping: ||");
    EXPECT_EQ(norwegian[9], "UF  = Sigma / fm,y,d x k_crit|4,4 / 21,5 x 0,87|0,24");

    // Without a check the block ends in one sentence, and a circle wins over a held compression side.
    m->vipping_off = kTrue;
    EXPECT_EQ(texts(*m, 3).back(), "Vipping:  Ingen vipping, trykkside kontinuerlig avstivet. ||");
    m->section_form = "Tube";
    EXPECT_EQ(texts(*m, 3).back(), "Vipping:  Ingen vipping, sirkulært profil. ||");
    m->language = "Eng";
    EXPECT_EQ(texts(*m, 3).back(), "Lateral buckling:  No lateral buckling, circular profile. ||");
    m->section_form = "Firk";
    EXPECT_EQ(texts(*m, 3).back(), "Lateral buckling:  No lateral buckling, compression side supported. ||");
    EXPECT_EQ(texts(*m, 3).size(), english.size() - 1);
}

TEST(CodeCheckReport, EachSpanTakesAboutTwentySevenMillimetres)
{
    auto m = calculated(loaded_beam());
    QImage image(800, 1160, QImage::Format_RGB32);
    image.fill(Qt::white);
    PlotSurface s(image);
    SetPlotScale(s, 0, 290, 200, 0);
    const float below = PrintCodeCheck(s, *m, 15, 200, 1, 3);
    EXPECT_NEAR(200 - below, 3 * 27, 6);
}

} // namespace
} // namespace kvelder::test
