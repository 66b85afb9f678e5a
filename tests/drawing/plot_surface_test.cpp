// The drawing surface: scales, the cursor, where things land in pixels, and the
// report's pictures on paper (on a PDF writer the printing flows draw them).

#include "drawing/paper_plot.h"
#include "drawing/plot_scale.h"
#include "drawing/plot_surface.h"
#include "tests/support/beams.h"

#include <QImage>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(PlotSurface, TheCursorKeepsItsPlaceAcrossScalesAndPrintMovesItDown)
{
    QImage image(400, 200, QImage::Format_RGB32);
    PlotSurface s(image);
    SetPlotScale(s, 0, 100, 100, 0);
    s.Line(10, 20, 25, 100); // a line leaves the cursor at its end
    EXPECT_FLOAT_EQ(s.CurrentX(), 25.0F);
    EXPECT_FLOAT_EQ(s.CurrentY(), 100.0F);
    s.SetCurrentX(50);
    s.SetCurrentY(25);
    s.SetScaleMode(ScaleMode::Pixel); // drops the user scale
    EXPECT_EQ(s.ScaleWidth(), 400.0F);
    EXPECT_EQ(s.ScaleHeight(), 200.0F);
    EXPECT_FLOAT_EQ(s.CurrentX(), 200.0F); // the same place, read in pixels
    EXPECT_FLOAT_EQ(s.CurrentY(), 150.0F);
    const PercentUnits u = GetPercentUnits(s);
    EXPECT_FLOAT_EQ(u.width_unit, 4.0F);
    EXPECT_FLOAT_EQ(u.height_unit, 2.0F);

    SetPlotScale(s, 0, 100, 100, 0);
    EXPECT_FLOAT_EQ(s.CurrentX(), 50.0F);
    EXPECT_FLOAT_EQ(s.CurrentY(), 25.0F);
    s.SetFontName("Arial");
    s.SetFontSize(9);
    s.SetCurrentX(10);
    s.SetCurrentY(90);
    s.Print("Permanent load (G):");
    EXPECT_FLOAT_EQ(s.CurrentX(), 0.0F);
    EXPECT_NEAR(s.CurrentY(), 90.0F - s.TextHeight(), 1e-4);
    EXPECT_GT(s.TextWidth("Permanent load (G):"), s.TextWidth("G"));
}

TEST(PlotSurface, LinesTextPolygonsBoxesAndArcsLandWhereTheScaleSays)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    const auto ink_in = [&](int x0, int x1, int y0, int y1) {
        for (int x = x0; x < x1; ++x) {
            for (int y = y0; y < y1; ++y) {
                if (image.pixelColor(x, y) != QColor(Qt::white)) {
                    return true;
                }
            }
        }
        return false;
    };
    PlotSurface s(image);
    SetPlotScale(s, 0, 100, 100, 0); // percent, y up
    // Text sits below the cursor: the rows above it stay white.
    s.SetCurrentX(10);
    s.SetCurrentY(90);
    s.Print("Permanent load (G):");
    EXPECT_TRUE(ink_in(40, 200, 21, 40));
    EXPECT_FALSE(ink_in(0, 400, 18, 19));

    s.SetDrawWidth(1);
    s.Line(0, 1, 100, 1, RGB(255, 0, 0));    // near the bottom edge
    s.Line(25, 50, 25, 100, RGB(0, 0, 255)); // from the middle up, a quarter in
    EXPECT_EQ(image.pixelColor(200, 198), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(100, 50), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(100, 150), QColor(Qt::white)); // below the middle: nothing

    // Polygons are in device pixels whatever the scale.
    s.SetFillColor(0xC0C0C0);
    s.SetForeColor(0);
    const PixelPoint band[] = {{110, 110}, {210, 110}, {210, 160}, {110, 160}};
    s.Polygon(band);
    EXPECT_EQ(image.pixelColor(160, 135), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(image.pixelColor(110, 135), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(250, 135), QColor(Qt::white));

    s.SetFillStyle(FillStyle::Solid);
    s.SetFillColor(255);
    s.Line(10, 10, 30, 20, 255, true);
    s.SetScaleMode(ScaleMode::Pixel);
    s.Circle(300, 100, 40, 0, 0.0F, 3.14F); // the upper half, as seen
    EXPECT_EQ(image.pixelColor(80, 170), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(300, 60), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(300, 140), QColor(Qt::white));
    s.Cls();
    EXPECT_FALSE(ink_in(0, 400, 0, 200));
}

TEST(PlotScale, SpanColumnsShareTheWidthByLength)
{
    auto m = make_beam({2.0F, 6.0F});
    const SpanColumns c = PlotSpanWidths(*m, 2.0F, 96.0F);
    EXPECT_FLOAT_EQ(c.width[0], 24.0F);
    EXPECT_FLOAT_EQ(c.width[1], 72.0F);
    EXPECT_FLOAT_EQ(c.start(2), 26.0F);
    EXPECT_FLOAT_EQ(c.at(2, 3.0F), 62.0F);
    EXPECT_FLOAT_EQ(c.end(2), 98.0F);

    auto none = make_beam({0.0F});
    const SpanColumns empty = PlotSpanWidths(*none, 2.0F, 96.0F);
    EXPECT_EQ(empty.per_metre, 0.0F); // no division by a length of 0
    EXPECT_EQ(empty.end(1), 2.0F);
}

TEST(PlotScale, ArrowHeadsAreALittleTallerThanWide)
{
    EXPECT_EQ(ArrowHeight(8), 8);
    EXPECT_EQ(ArrowHeight(20), 21); // 1.0471 x 20
    const auto down = ArrowHead(6, true);
    EXPECT_EQ(down[0].x, 3);
    EXPECT_EQ(down[0].y, 6); // the tip at the bottom centre
    EXPECT_EQ(down[1].x, 6);
    EXPECT_EQ(down[2].y, 0);
    const auto up = ArrowHead(8, false);
    EXPECT_EQ(up[0].y, 0);
    EXPECT_EQ(up[2].y, 8);
}

TEST(PlotScale, LargestValues)
{
    auto m = make_beam({3.0F, 4.0F});
    m->nxtot_s(1) = 3;
    m->nxtot_s(2) = 2;
    Table2<float, kMaxSpans, kMaxPoints> v;
    EXPECT_EQ(MaxAbsOverSpans(*m, v), 0.0F);
    v(2, 2) = -7.5F;
    v(1, 3) = 7.0F;
    v(1, 4) = 99.0F; // beyond the span's points
    EXPECT_EQ(MaxAbsOverSpans(*m, v), 7.5F);
    Table<float, 10> loads;
    loads(1) = 2, loads(2) = -3, loads(3) = 50;
    EXPECT_EQ(MaxAbsOfLoads(loads, 2), 3.0F);
}

TEST(Paper, ArrowHeadsAreTwentyLinesNarrowingToTheTip)
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        PlotSurface s(image);
        SetPlotScale(s, 0, 20, 20, 0);      // 10 pixels a millimetre, y up
        PaperArrowHead(s, 10, 5, 10, true); // tip at 5 mm, base at 15 mm
    }
    // Full width near the base (half width 10 / sqrt 3 = 5.8 mm), nothing beyond it.
    EXPECT_EQ(image.pixelColor(100 + 50, 50), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(100 + 62, 50), QColor(Qt::white));
    // Narrow near the tip, and nothing below it.
    EXPECT_EQ(image.pixelColor(100, 145), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(100 + 20, 145), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(100, 160), QColor(Qt::white));
}

TEST(Paper, LoadsBeamAndDiagramsOnAPage)
{
    const auto m = calculated(loaded_beam());
    // An A4 page at 4 pixels a millimetre.
    QImage page(800, 1160, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        PlotSurface s(page);
        SetPlotScale(s, 0, 290, 200, 0);
        PrintResults(s, *m, 15, PrintLoadPlots(s, *m, 15, 280) - 5);
    }
    // Paper is black and white, and everything stays inside the 170 mm of the beam
    // plus its margins.
    int ink = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor c = page.pixelColor(x, y);
            ASSERT_TRUE(c.red() == c.green() && c.green() == c.blue()) << x << "," << y;
            ink += c != QColor(Qt::white) ? 1 : 0;
        }
        ASSERT_EQ(page.pixelColor(page.width() - 1, y), QColor(Qt::white)) << y;
    }
    EXPECT_GT(ink, 5000);
}

} // namespace
} // namespace kvelder::test
