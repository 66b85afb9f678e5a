// The report's pictures on paper: the same surface on a PDF writer and on an
// image of a page.

#include "drawing/paper_plot.h"
#include "drawing/path_qstring.h"
#include "drawing/plot_scale.h"
#include "tests/support/beams.h"

#include <QFile>
#include <QImage>
#include <QPdfWriter>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

void draw_page(PlotSurface& s, const Model& m)
{
    SetPlotScale(s, 0, 290, 200, 0);
    const float below_loads = PrintLoadPlots(s, m, 15, 280);
    PrintResults(s, m, 15, below_loads - 5);
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
        draw_page(s, *m);
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

    // The same drawing through a PDF writer, on two pages: a printer is the
    // same kind of paged surface.
    const QString pdf = to_qstring(scratch_folder() / "paper.pdf");
    {
        QPdfWriter writer(pdf);
        writer.setResolution(300);
        PlotSurface s(writer);
        draw_page(s, *m);
        s.NewPage();
        draw_page(s, *m);
        s.EndDoc();
    }
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF"));
    EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") + bytes.count("/Type /Page "), 2)
        << "two pages";
}

} // namespace
} // namespace kvelder::test
