// The six pictures drawn into images: the colours of the beam, the load bands
// and the curves appear where they must, and beams without anything to scale
// still draw what they can; the reference pictures: the strips of the load
// patterns and the subscripts of the buckling text.

#include "combination/patterns.h"
#include "drawing/help_pictures.h"
#include "drawing/load_sketches.h"
#include "drawing/pictures.h"
#include "drawing/plot_scale.h"
#include "files/project_file.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "ui/input_checks.h"

#include <QImage>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <random>

namespace kvelder::test {
namespace {

constexpr int kWidth = 600, kHeight = 200;

struct Pictures {
    std::array<QImage, 6> images;

    explicit Pictures(const Model& m)
    {
        for (QImage& image : images) {
            image = QImage(kWidth, kHeight, QImage::Format_RGB32);
            image.fill(Qt::magenta); // whatever Cls does not clear shows
        }
        std::array<std::unique_ptr<PlotSurface>, 6> s;
        for (std::size_t k = 0; k < s.size(); ++k) {
            s[k] = std::make_unique<PlotSurface>(images[k]);
        }
        PlotAll({*s[0], *s[1], *s[2], *s[3], *s[4], *s[5]}, m);
    }

    const QImage& operator[](Picture p) const { return images[static_cast<std::size_t>(p)]; }
};

// Text is smoothed: its pixels are near its colour rather than on it.
bool bluish(QColor c)
{
    return c.blue() > 150 && c.red() < 120 && c.green() < 120;
}
bool reddish(QColor c)
{
    return c.red() > 150 && c.green() < 120 && c.blue() < 120;
}

// How many pixels of a colour lie in a band of rows, given in percent of the
// height measured from the bottom.
int count(const QImage& image, const std::function<bool(QColor)>& match, float from_pct = 0,
          float to_pct = 100)
{
    int n = 0;
    const int top = static_cast<int>(kHeight * (1 - to_pct / 100));
    const int bottom = static_cast<int>(kHeight * (1 - from_pct / 100));
    for (int y = std::max(0, top); y < std::min(kHeight, bottom); ++y) {
        for (int x = 0; x < kWidth; ++x) {
            n += match(image.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return n;
}

int count(const QImage& image, QColor color, float from_pct = 0, float to_pct = 100)
{
    return count(
        image, [color](QColor c) { return c == color; }, from_pct, to_pct);
}

const QColor kBeamRed(255, 0, 0), kBandGrey(0xC0, 0xC0, 0xC0), kGreen(0, 0xC0, 0), kLightGreen(0, 255, 0),
    kCurveBlue(0, 0, 255), kInk(0, 0, 0);

TEST(Pictures, ACantileverOfOneSpan)
{
    auto beam = cantilever(3.0F);
    add_point(beam->Q1, 1, 5.0F, 2.5F);
    const auto m = calculated(std::move(beam));
    const Pictures p(*m);

    for (const QImage& image : p.images) {
        EXPECT_EQ(count(image, Qt::magenta), 0) << "every picture is cleared first";
    }
    // The beam body lies at 10 % in Picegenlast, the band of G just above 20 %.
    EXPECT_GT(count(p[Picture::Picegenlast], kBeamRed, 9, 12), kWidth / 2);
    EXPECT_GT(count(p[Picture::Picegenlast], kBandGrey, 20, 31), kWidth * 10);
    // Q1's one point load: an arrow, no band.
    EXPECT_EQ(count(p[Picture::Picnyttelast], kBandGrey), 0);
    EXPECT_GT(count(p[Picture::Picnyttelast], kInk, 10, 22), 20);
    // Q2 is empty: a clean picture.
    EXPECT_EQ(count(p[Picture::Picnyttelast_2], Qt::white), kWidth * kHeight);
    // Hogging all along, which is drawn above the moment axis at 75 %.
    EXPECT_GT(count(p[Picture::Picresult], kGreen, 76, 100), 100);
    EXPECT_EQ(count(p[Picture::Picresult], kCurveBlue, 50, 74), 0);
    // The free end hangs down: the deflection curve runs below its axis at 60 %.
    EXPECT_GT(count(p[Picture::Picdisp], kCurveBlue, 25, 60), 100);
    EXPECT_GT(count(p[Picture::Picdisp], reddish), 20); // "= L / " and its ratio
}

TEST(Pictures, ThreeSpansWithEveryKindOfLoad)
{
    const auto m = calculated(loaded_beam());
    const Pictures p(*m);
    // G: uniform band at 20 %, trapezoid above it, point and moment above that.
    EXPECT_GT(count(p[Picture::Picegenlast], kBandGrey, 20, 30), 1000);
    EXPECT_GT(count(p[Picture::Picegenlast], kBandGrey, 37, 48), 100);
    EXPECT_GT(count(p[Picture::Picegenlast], bluish), 50); // the values
    // Q1 and Q2 both draw their bands from 10 %.
    EXPECT_GT(count(p[Picture::Picnyttelast], kBandGrey, 10, 22), 1000);
    EXPECT_GT(count(p[Picture::Picnyttelast_2], kBandGrey, 10, 22), 100);
    // The axes: moment at 75 %, shear at 29 %, deflection at 60 %.
    EXPECT_GT(count(p[Picture::Picresult], kInk, 74, 76), kWidth * 9 / 10);
    EXPECT_GT(count(p[Picture::Picresult], kInk, 28, 30), kWidth * 9 / 10);
    EXPECT_GT(count(p[Picture::Picdisp], kInk, 59, 61), kWidth * 9 / 10);
    // Both envelopes of both diagrams, and the crossings in red.
    EXPECT_GT(count(p[Picture::Picresult], kGreen), 200);
    EXPECT_GT(count(p[Picture::Picresult], kCurveBlue), 200);
    EXPECT_GT(count(p[Picture::Picresult], reddish), 20);
    EXPECT_GT(count(p[Picture::Picdisp], kLightGreen) + count(p[Picture::Picdisp], kCurveBlue), 200);
    // The span sketch: three columns of 16 % from 10 %, the rest of the width empty.
    const QImage& felt = p[Picture::Picfelt];
    EXPECT_GT(count(felt, kBeamRed, 84, 87), 100);
    for (int x = static_cast<int>(kWidth * 0.60); x < kWidth; ++x) {
        ASSERT_NE(felt.pixelColor(x, static_cast<int>(kHeight * 0.145)), kBeamRed) << x;
    }
}

TEST(Pictures, NothingToScaleStillDrawsWhatItCan)
{
    // All loads gone and no self weight: every result is 0.
    auto none = example_beam();
    none->G = LoadGroup{};
    none->Q1 = LoadGroup{};
    const Pictures empty(*calculated(std::move(none)));
    EXPECT_GT(count(empty[Picture::Picegenlast], kBeamRed), 100); // the beam
    EXPECT_GT(count(empty[Picture::Picresult], kInk), 100);       // the axes
    EXPECT_EQ(count(empty[Picture::Picresult], kCurveBlue), 0);

    // A load row of no value, and a span of no length.
    auto zero = example_beam();
    zero->G.uni_q(1) = 0.0F;
    zero->G.uni_q(2) = 0.0F;
    zero->ffl_s(2) = 0.0F;
    EXPECT_EQ(count(Pictures(*zero)[Picture::Picegenlast], kBandGrey), 0);
    auto nothing = example_beam();
    nothing->ffl_s.fill(0.0F);
    EXPECT_EQ(count(Pictures(*nothing)[Picture::Picfelt], Qt::magenta), 0);
}

TEST(Pictures, Q2TakesTheBandHeightTheLastPassLeft)
{
    // The first row from the middle down that holds the grey of a band (above
    // it the smoothed caption has greys of its own).
    const auto q2_top = [](bool q1_loaded) {
        auto m = example_beam();
        m->Q1 = LoadGroup{};
        if (q1_loaded) {
            add_point(m->Q1, 1, 5.0F, 2.0F);
        }
        add_uniform(m->Q2, 1, 3.0F);
        const QImage q2 = Pictures(*m)[Picture::Picnyttelast_2];
        for (int y = kHeight / 2; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                if (q2.pixelColor(x, y) == kBandGrey) {
                    return y;
                }
            }
        }
        return kHeight;
    };
    // The largest load stands 10 % high after G alone, 11 % after a Q1 pass: 2 pixels in 200.
    EXPECT_EQ(q2_top(false) - q2_top(true), 2);
}

TEST(Pictures, TheSketchesOfTheLoadDialogs)
{
    for (const auto plot : {&PlotTrapezoidSketch, &PlotPointSketch, &PlotMomentSketch}) {
        QImage image(kWidth, kHeight, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        {
            PlotSurface s(image);
            plot(s);
        }
        EXPECT_EQ(count(image, Qt::magenta), 0);
        EXPECT_GT(count(image, QColor(0, 0, 250), 29, 31), kWidth / 3); // the span
        EXPECT_GT(count(image, QColor(250, 0, 0)), 100);                // a dimension line
        EXPECT_GT(count(image, kInk, 31, 100), 20);                     // the load itself
    }
}

using Bytes = std::vector<std::byte>;

// Project files of the example beam, the loaded beam and a circular section.
std::vector<Bytes> seed_projects()
{
    std::vector<Bytes> seeds;
    seeds.push_back(project_bytes(*example_beam()));
    seeds.push_back(project_bytes(*loaded_beam()));
    auto tube = loaded_beam();
    tube->section_form = "Tube";
    tube->standard_section = kFalse;
    tube->section_d = 250.0F;
    seeds.push_back(project_bytes(*tube));
    return seeds;
}

// One damage: a cut, changed bytes, an integer or float of the record set to an
// extreme, bytes put in or taken out.
Bytes damage(Bytes b, std::mt19937& rng)
{
    const auto pick = [&rng](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng);
    };
    const auto any_byte = [&rng] {
        return static_cast<std::byte>(std::uniform_int_distribution<int>(0, 255)(rng));
    };
    switch (pick(6)) {
    case 0:
        b.resize(pick(b.size()));
        break;
    case 1:
        for (std::size_t n = 1 + pick(4); n > 0; --n) {
            b[pick(b.size())] = any_byte();
        }
        break;
    case 2: { // an integer of the record
        const std::int16_t extremes[] = {-32768, -2, -1, 0, 1, 2, 5, 6, 7, 11, 400, 32767};
        const std::size_t at = b.size() - 2 - pick(2600);
        const auto v = static_cast<std::uint16_t>(extremes[pick(std::size(extremes))]);
        b[at] = static_cast<std::byte>(v & 0xFF);
        b[at + 1] = static_cast<std::byte>(v >> 8);
        break;
    }
    case 3: { // a float of the record: huge, tiny, negative
        const float values[] = {1e30F, -1e30F, 1e-30F, -5.0F, 0.0F, 40000.0F, 0.001F};
        const std::size_t at = b.size() - 4 - pick(2600);
        std::uint32_t v = 0;
        std::memcpy(&v, &values[pick(std::size(values))], 4);
        for (std::size_t k = 0; k < 4; ++k) {
            b[at + k] = static_cast<std::byte>((v >> (8 * k)) & 0xFF);
        }
        break;
    }
    case 4: {
        const auto at = static_cast<std::ptrdiff_t>(pick(b.size()));
        b.insert(b.begin() + at, 1 + pick(8), any_byte());
        break;
    }
    default: {
        const std::size_t at = pick(b.size());
        const std::size_t n = std::min(b.size() - at, 1 + pick(8));
        b.erase(b.begin() + static_cast<std::ptrdiff_t>(at), b.begin() + static_cast<std::ptrdiff_t>(at + n));
        break;
    }
    }
    return b;
}

// Thousands of damaged versions of real project files: each one opens or is
// refused, a refused one changes nothing, and an opened one recalculates and
// draws every picture without a fault (run it under the asan preset to see one).
TEST(Pictures, EveryDamagedProjectOpensAndDrawsOrChangesNothing)
{
    const std::vector<Bytes> seeds = seed_projects();
    std::mt19937 rng(20261122);
    const auto base = example_beam();
    auto m = std::make_unique<Model>();
    int opened = 0, refused = 0;
    for (int trial = 0; trial < 2000; ++trial) {
        *m = *base;
        LoadDialogs dialogs;
        const auto why =
            ReadProjectBytes(*m, damage(seeds[static_cast<std::size_t>(trial) % seeds.size()], rng), dialogs);
        if (why) {
            ++refused;
            ASSERT_FALSE(why->empty());
            ASSERT_TRUE(*m == *base) << "trial " << trial << ": refused (" << *why
                                     << ") but changed the model";
            continue;
        }
        // What the window does next: the checks of the boxes, then the recalculation.
        check_all_boxes(*m);
        RecordingScreen screen;
        MainCalc(*m, screen, scratch_folder());
        ASSERT_EQ(m->nnodes, m->nf + 1) << "trial " << trial;
        const Pictures p(*m);
        ASSERT_EQ(count(p[Picture::Picresult], Qt::magenta), 0) << "trial " << trial;
        ++opened;
    }
    // Both outcomes occur often enough for the test to mean something.
    EXPECT_GT(opened, 400);
    EXPECT_GT(refused, 400);
}

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
        int n = 0;
        for (int x = 0; x < image.width(); ++x) {
            n += image.pixelColor(x, y) == color ? 1 : 0;
        }
        const bool found = n >= 20;
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
        EXPECT_EQ(strips.front().spans, spans_of(Q1_pattern(nf, 2)));
        for (std::size_t k = 1; k + 1 < strips.size(); ++k) {
            EXPECT_EQ(strips[k].spans, spans_of(Q1_pattern(nf, static_cast<int>(k) + 1)));
        }
        EXPECT_EQ(strips.back().caption, "Variable load Q2");
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
