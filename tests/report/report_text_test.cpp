// The header of every page and the right alignment of the report's numbers,
// read back from the ink on a page image.

#include "drawing/plot_scale.h"
#include "report/page_header.h"
#include "report/report_text.h"
#include "tests/report/page_image.h"
#include "tests/support/beams.h"

#include <QImage>

#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

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

} // namespace
} // namespace kvelder::test
