// Where the pictures put their bands and labels, as numbers rather than pixels.

#include "drawing/load_plot.h"
#include "drawing/result_plot.h"
#include "files/number_format.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace kvelder::test {
namespace {

std::vector<std::string> texts(const CurveMarks& marks)
{
    std::vector<std::string> out;
    for (const DiagramText& t : marks.texts) {
        out.push_back(t.text);
    }
    return out;
}

CurveMarks marks_of(const Model& m, Diagram d, bool upper)
{
    const Table2<float, kMaxSpans, kMaxPoints>& values = d == Diagram::Moment  ? (upper ? m.M_max : m.M_min)
                                                         : d == Diagram::Shear ? (upper ? m.V_max : m.V_min)
                                                                               : (upper ? m.W_max : m.W_min);
    const float maximum =
        d == Diagram::Moment  ? std::max(MaxAbsOverSpans(m, m.M_max), MaxAbsOverSpans(m, m.M_min))
        : d == Diagram::Shear ? std::max(MaxAbsOverSpans(m, m.V_max), MaxAbsOverSpans(m, m.V_min))
                              : std::max(MaxAbsOverSpans(m, m.W_max), MaxAbsOverSpans(m, m.W_min));
    return curve_marks(m, d, values, upper, PlotSpanWidths(m, 2.0F, 96.0F), screen_place(d, maximum));
}

TEST(LoadBands, EachBandStandsOnTheOnesBelowIt)
{
    LoadGroup g;
    add_moment(g, 1, 1.0F, 1.0F);
    EXPECT_EQ(band_bases(g, 10, 11).moment, 10.0F); // alone, at the base
    add_uniform(g, 1, 1.0F);
    add_trapezoid(g, 1, 1, 2, 0, 1);
    add_point(g, 1, 1, 1);
    const BandBases all = band_bases(g, 10, 11);
    EXPECT_EQ(all.uniform, 10.0F);
    EXPECT_EQ(all.trapezoid, 10.0F + 11 + 1.5F * 7);
    EXPECT_EQ(all.point, 10.0F + 2 * 11 + 2 * 7);
    EXPECT_EQ(all.moment, 64.0F);
    LoadGroup no_uniform;
    add_trapezoid(no_uniform, 1, 1, 2, 0, 1);
    add_moment(no_uniform, 1, 1, 1);
    EXPECT_EQ(band_bases(no_uniform, 20, 10).trapezoid, 20.0F);
    EXPECT_EQ(band_bases(no_uniform, 20, 10).moment, 37.0F);
}

TEST(ResultLabels, MomentPeaksEndsAndZeroCrossings)
{
    for (const std::int16_t machine : {kPointMachine, kCommaMachine}) {
        const auto m = calculated(example_beam(machine)); // two spans of 5 m, total load
        // The labels are written in the machine's separator.
        const auto shown = [machine](std::string text) {
            std::replace(text.begin(), text.end(), '.', machine == kCommaMachine ? ',' : '.');
            return text;
        };
        const auto lower = texts(marks_of(*m, Diagram::Moment, false));
        // One sagging peak in each span, and the two points where the moment comes back to 0.
        EXPECT_EQ(std::count(lower.begin(), lower.end(), shown("-12.1")), 2);
        EXPECT_EQ(std::count(lower.begin(), lower.end(), "x ="), 2);
        const auto upper = texts(marks_of(*m, Diagram::Moment, true));
        EXPECT_EQ(std::count(upper.begin(), upper.end(), shown("21.6")), 1); // the left end of span 2 only
        EXPECT_EQ(std::count(upper.begin(), upper.end(), "x ="), 2);
        // The crossings lie on the grid points beside 3.75 m and 1.25 m.
        EXPECT_NE(std::find(upper.begin(), upper.end(), shown("3.700")), upper.end());
        EXPECT_NE(std::find(lower.begin(), lower.end(), shown("3.800")), lower.end());
        // Every value label has its drop line.
        const CurveMarks marks = marks_of(*m, Diagram::Moment, false);
        EXPECT_EQ(marks.strokes.size(), 2U + 2U); // two drop lines, two crossing ticks
    }
}

// Curves of known values on a beam of two spans of 4 m.
TEST(ResultLabels, PeaksOnlyInALoadedSpanAndShearEndsOnlyAboveTheThreshold)
{
    auto m = make_beam({4.0F, 4.0F});
    recalculate(*m);
    const SpanColumns c = PlotSpanWidths(*m, 2.0F, 96.0F);
    Table2<float, kMaxSpans, kMaxPoints> v, shear;
    for (int k = 1; k <= m->nxtot_s(2); ++k) {
        const float x = m->xl_s(2, k);
        v(2, k) = -x * (4.0F - x); // a sagging peak in the middle of span 2
        shear(2, k) = 0.05F;
    }
    const auto labels = [&] {
        return texts(curve_marks(*m, Diagram::Moment, v, false, c, screen_place(Diagram::Moment, 4.0F)));
    };
    EXPECT_TRUE(labels().empty());
    m->profile_weight_on = kTrue;
    EXPECT_EQ(labels(), std::vector<std::string>{"-4.0"});
    m->profile_weight_on = kFalse;
    add_point(m->Q2, 2, 1.0F, 2.0F);
    EXPECT_EQ(labels(), std::vector<std::string>{"-4.0"});

    shear(2, 2) = 3.0F; // the right end
    const DiagramPlace place = screen_place(Diagram::Shear, 3.0F);
    const CurveMarks marks = curve_marks(*m, Diagram::Shear, shear, true, c, place);
    EXPECT_EQ(texts(marks), std::vector<std::string>{"3.0"});
    EXPECT_FLOAT_EQ(marks.texts[0].x, 98.0F - 5);
    // The lower curve labels only values below 0.
    EXPECT_TRUE(curve_marks(*m, Diagram::Shear, shear, false, c, place).texts.empty());
}

TEST(ResultLabels, ACantileverShowsItsDeflectionAsAPartOfItsLength)
{
    auto beam = cantilever(3.0F);
    add_uniform(beam->Q1, 1, 4.0F);
    const auto m = calculated(std::move(beam));
    const CurveMarks marks = marks_of(*m, Diagram::Deflection, false);
    const float tip = m->W_min(1, 2);
    ASSERT_LT(tip, -0.01F);
    const auto t = texts(marks);
    EXPECT_NE(std::find(t.begin(), t.end(), format_number(tip, "##0.0")), t.end());
    EXPECT_NE(std::find(t.begin(), t.end(), "= L / "), t.end());
    EXPECT_NE(std::find(t.begin(), t.end(), format_number(std::abs(3.0F * 1000 / tip), "0")), t.end());
    // The free end's drop line stands at the right end of the beam.
    EXPECT_TRUE(std::any_of(marks.strokes.begin(), marks.strokes.end(),
                            [](const DiagramStroke& s) { return s.x1 == 98.0F && s.y1 == 60.0F; }));
    EXPECT_TRUE(texts(marks_of(*m, Diagram::Deflection, true)).empty()); // nothing rises
}

} // namespace
} // namespace kvelder::test
