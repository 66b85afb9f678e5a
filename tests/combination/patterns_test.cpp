// The load patterns of Q1, and that a Q1 row takes part in exactly the patterns
// that load its span.

#include "combination/patterns.h"
#include "files/byte_record.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <vector>

namespace kvelder::test {
namespace {

std::vector<int> spans_of(int nf, int p)
{
    const auto s = Q1_pattern(nf, p);
    return {s.begin(), s.end()};
}

TEST(Patterns, FirstHasNoQ1AndSecondHasItEverywhereThenEachSpanAlone)
{
    EXPECT_EQ(pattern_count(1), 1);
    const int counts[] = {4, 8, 13, 17};
    for (int nf = 2; nf <= 5; ++nf) {
        EXPECT_EQ(pattern_count(nf), counts[nf - 2]);
        EXPECT_TRUE(spans_of(nf, 1).empty());
        std::vector<int> all;
        for (int i = 1; i <= nf; ++i) {
            all.push_back(i);
            EXPECT_EQ(spans_of(nf, 2 + i), std::vector<int>{i}) << nf << " spans";
        }
        EXPECT_EQ(spans_of(nf, 2), all);
    }
}

TEST(Patterns, EveryPatternIsADifferentSetOfSpansOnTheBeam)
{
    for (int nf = 2; nf <= 5; ++nf) {
        std::set<std::set<int>> seen;
        for (int p = 1; p <= pattern_count(nf); ++p) {
            const auto s = spans_of(nf, p);
            for (const int span : s) {
                EXPECT_GE(span, 1);
                EXPECT_LE(span, nf);
            }
            EXPECT_TRUE(seen.insert({s.begin(), s.end()}).second) << nf << " spans, pattern " << p;
        }
    }
}

TEST(Patterns, TheIrregularOnesInTheirOrder)
{
    EXPECT_EQ(spans_of(3, 6), (std::vector<int>{1, 3}));
    EXPECT_EQ(spans_of(4, 12), (std::vector<int>{1, 2, 4}));
    EXPECT_EQ(spans_of(4, 13), (std::vector<int>{3, 4, 1}));
    // Every second span from span 1 up to span 4: span 5 is not in it.
    EXPECT_EQ(spans_of(5, 8), (std::vector<int>{1, 3}));
    EXPECT_EQ(spans_of(5, 9), (std::vector<int>{2, 4}));
    EXPECT_EQ(spans_of(5, 16), (std::vector<int>{4, 5, 2}));
    EXPECT_EQ(spans_of(5, 17), (std::vector<int>{2, 3, 5}));
}

// Sum of the support forces that record p of the trace holds.
float traced_support_force(int p)
{
    std::ifstream in(scratch_folder() / "Resultater", std::ios::binary);
    ByteRecord r(28040);
    in.seekg(static_cast<std::streamoff>(28040) * (p - 1));
    in.read(reinterpret_cast<char*>(r.data()), 28040);
    float sum = 0;
    for (int k = 1; k <= 6; ++k) {
        sum += r.get_f32(27984 + 4 * static_cast<std::size_t>(k));
    }
    return sum;
}

TEST(PatternedRun, AQ1RowActsInExactlyThePatternsThatLoadItsSpanAndGAndQ2InAll)
{
    auto m = make_beam({4.0F, 4.0F, 4.0F, 4.0F});
    m->loadcomb_option = 2;
    add_uniform(m->Q1, 3, 5.0F);
    add_uniform(m->G, 1, 1.0F);
    add_point(m->Q2, 4, 6.0F, 2.5F);
    recalculate(*m);

    ASSERT_EQ(m->npatterns, 13);
    const std::set<int> loading_span_3 = {2, 5, 7, 10, 11, 13};
    for (int p = 1; p <= 13; ++p) {
        const double expected = 4.0 + 6.0 + (loading_span_3.count(p) ? 20.0 : 0.0);
        EXPECT_NEAR(traced_support_force(p), expected, 1e-4) << "pattern " << p;
    }
}

} // namespace
} // namespace kvelder::test
