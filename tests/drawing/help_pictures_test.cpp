// The reference pictures: the strips of the load patterns and the subscripts
// of the buckling text.

#include "combination/patterns.h"
#include "drawing/help_pictures.h"
#include "drawing/plot_scale.h"
#include "tests/support/beams.h"

#include <QImage>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kvelder::test {
namespace {

std::vector<int> spans_of(std::span<const int> spans)
{
    return {spans.begin(), spans.end()};
}

// How many separate bands of rows are filled with `color` over some width:
// the strips, and no glyph of text.
int bands_of(const QImage& image, QColor color)
{
    int bands = 0;
    bool inside = false;
    for (int y = 0; y < image.height(); ++y) {
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        const bool found = count >= 20;
        bands += found && !inside ? 1 : 0;
        inside = found;
    }
    return bands;
}

TEST(HelpPictures, PatternStripsAreThePatternTableWithGAboveAndQ2BelowForTwoToFiveSpans)
{
    const std::vector<int> rows{5, 9, 14, 18};
    const std::vector<float> pitches{38, 25.3F, 18, 15.2F};
    for (int nf = 2; nf <= 5; ++nf) {
        SCOPED_TRACE(nf);
        const PatternLayout layout = pattern_layout(HelpForm::PatternsQ1, nf, "Eng");
        const auto& strips = layout.strips;
        ASSERT_EQ(static_cast<int>(strips.size()), rows[static_cast<std::size_t>(nf - 2)]);
        EXPECT_FLOAT_EQ(layout.pitch, pitches[static_cast<std::size_t>(nf - 2)]);
        EXPECT_EQ(strips.front().caption, nf == 2 ? "Permanent load, G" : "Permanent load G");
        EXPECT_EQ(strips.front().color, 0xFF0000U);
        EXPECT_EQ(strips.front().spans, spans_of(Q1_pattern(nf, 2)));
        for (std::size_t k = 1; k + 1 < strips.size(); ++k) {
            EXPECT_EQ(strips[k].caption, "Variable load Q1 no." + std::to_string(k));
            EXPECT_EQ(strips[k].color, 65280U);
            EXPECT_EQ(strips[k].spans, spans_of(Q1_pattern(nf, static_cast<int>(k) + 1)));
        }
        EXPECT_EQ(strips.back().caption, "Variable load Q2");
        EXPECT_EQ(strips.back().color, 12632256U);
        EXPECT_EQ(strips.back().spans, strips.front().spans);

        // Drawn, every strip stands apart at its place, none beyond the picture.
        auto m = example_beam();
        set_span_count(*m, nf);
        QImage image(640, static_cast<int>(layout.height_value * 2.5F), QImage::Format_RGB32);
        {
            PlotSurface surface(image);
            PlotHelpPicture(surface, HelpForm::PatternsQ1, *m);
        }
        EXPECT_EQ(bands_of(image, QColor(0, 255, 0)), static_cast<int>(strips.size()) - 2);
        EXPECT_EQ(bands_of(image, QColor(0, 0, 255)), 1);
        EXPECT_EQ(bands_of(image, QColor(192, 192, 192)), 1);
    }

    EXPECT_EQ(pattern_layout(HelpForm::PatternsQ1, 5, "Nor").strips[16].caption, "Variabel last Q1 nr.16");

    // The total load, and a single span that has no patterns, load every span at once.
    for (const auto& [form, nf] : {std::pair{HelpForm::PatternsTotal, 4}, {HelpForm::PatternsQ1, 1}}) {
        const PatternLayout total = pattern_layout(form, nf, "Eng");
        ASSERT_EQ(total.strips.size(), 3U);
        EXPECT_EQ(total.strips[1].caption, "Variable load Q1");
        EXPECT_EQ(total.strips[1].spans, total.strips[0].spans);
        EXPECT_EQ(static_cast<int>(total.strips[1].spans.size()), nf);
    }
}

TEST(HelpPictures, ASubscriptStandsLowerAndSmallerAndTheTextGoesOnAfterIt)
{
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    PlotSurface s(image);
    SetPlotScale(s, 0, 0, 100, 100);
    s.SetFontName("Arial");
    s.SetFontSize(20);
    s.SetCurrentX(10);
    s.SetCurrentY(10);
    s.Subscript("crit");
    EXPECT_GT(s.CurrentX(), 10 + s.TextWidth("crit") * 0.5F);
    EXPECT_LT(s.CurrentX(), 10 + s.TextWidth("crit") * 0.9F);
    EXPECT_FLOAT_EQ(s.CurrentY(), 10);

    // The same text in line after it: the subscript's ink reaches lower and
    // not as high.
    const float after = s.CurrentX();
    s.SetCurrentX(60);
    s.Print("crit");
    const auto ink_rows = [&](float from, float to) {
        int top = image.height();
        int bottom = -1;
        for (int x = static_cast<int>(from * 4); x < static_cast<int>(to * 4); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y) != QColor(Qt::white)) {
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
            }
        }
        return std::pair{top, bottom};
    };
    const auto [sub_top, sub_bottom] = ink_rows(10, after);
    const auto [top, bottom] = ink_rows(60, 100);
    EXPECT_GT(sub_bottom, bottom);
    EXPECT_GT(sub_top, top);
}

} // namespace
} // namespace kvelder::test
