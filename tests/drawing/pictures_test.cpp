// The six pictures drawn into images: the colours of the beam, the load bands
// and the curves appear where they must, and beams without anything to scale
// still draw what they can.

#include "drawing/load_sketches.h"
#include "drawing/pictures.h"
#include "files/project_file.h"
#include "recalc/main_calc.h"
#include "tests/support/beams.h"
#include "tests/support/damaged_projects.h"
#include "ui/input_checks.h"

#include <QImage>
#include <gtest/gtest.h>

#include <array>
#include <functional>

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

} // namespace
} // namespace kvelder::test
