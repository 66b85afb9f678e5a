// Factoring of the load cases into a combination, the load patterns of Q1, and
// the trace files of a run.

#include "analysis/points.h"
#include "combination/patterns.h"
#include "files/byte_record.h"
#include "recalc/run_analysis.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <vector>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

std::unique_ptr<Model> factored_beam(const char* rule)
{
    auto m = make_beam({5.0F});
    m->comb_rule = rule;
    m->gamma_G_a = 1.35F;
    m->gamma_G_b = 1.2F;
    m->gamma_Q1_a = 1.05F;
    m->gamma_Q1_b = 1.5F;
    m->creep_G = 1.6F;
    m->creep_Q1 = 1.3F;
    add_uniform(m->G, 1, 2.0F);
    add_uniform(m->Q1, 1, 4.0F);
    recalculate(*m);
    return m;
}

TEST(Combination, TheExpressionChoosesTheForceFactorsAndCreepScalesOnlyTheLongTermDeflection)
{
    auto a = factored_beam("610a");
    auto b = factored_beam("610b");
    auto other = factored_beam("xxxx");
    // q L / 2 at each support.
    EXPECT_NEAR(a->C_R(1), (1.35 * 2 + 1.05 * 4) * 2.5, 1e-4);
    EXPECT_NEAR(b->C_R(1), (1.2 * 2 + 1.5 * 4) * 2.5, 1e-4);
    EXPECT_EQ(other->C_R, b->C_R);
    // Deflections do not depend on the expression.
    EXPECT_EQ(a->C_W, b->C_W);

    const int mid = 3 + 24; // x = 25 dx = L / 2
    ASSERT_FLOAT_EQ(a->xl_s(1, mid), 2.5F);
    const double w = -1000 * 5.0 * 625 / (384 * kEI); // per kN/m
    EXPECT_NEAR(a->C_Winst(1, mid), 6 * w, 1e-5 * std::fabs(w));
    EXPECT_NEAR(a->C_W(1, mid), (1.6 * 2 + 1.3 * 4) * w, 1e-5 * std::fabs(w));
}

std::vector<int> spans_of(int nf, int p)
{
    const auto s = Q1_pattern(nf, p);
    return {s.begin(), s.end()};
}

// The first pattern has no Q1, the second has it everywhere, then each span
// alone, then the irregular ones in their order; every pattern is a different
// set of spans on the beam.
TEST(Patterns, OfEveryBeamInTheirOrder)
{
    EXPECT_EQ(pattern_count(1), 1);
    const int counts[] = {4, 8, 13, 17};
    for (int nf = 2; nf <= 5; ++nf) {
        ASSERT_EQ(pattern_count(nf), counts[nf - 2]);
        EXPECT_TRUE(spans_of(nf, 1).empty());
        std::vector<int> all;
        for (int i = 1; i <= nf; ++i) {
            all.push_back(i);
            EXPECT_EQ(spans_of(nf, 2 + i), std::vector<int>{i}) << nf << " spans";
        }
        EXPECT_EQ(spans_of(nf, 2), all);
        std::set<std::set<int>> seen;
        for (int p = 1; p <= pattern_count(nf); ++p) {
            const auto s = spans_of(nf, p);
            for (const int span : s) {
                EXPECT_TRUE(span >= 1 && span <= nf) << nf << " spans, pattern " << p;
            }
            EXPECT_TRUE(seen.insert({s.begin(), s.end()}).second) << nf << " spans, pattern " << p;
        }
    }
    EXPECT_EQ(spans_of(3, 6), (std::vector<int>{1, 3}));
    EXPECT_EQ(spans_of(4, 12), (std::vector<int>{1, 2, 4}));
    EXPECT_EQ(spans_of(4, 13), (std::vector<int>{3, 4, 1}));
    // Every second span from span 1 up to span 4: span 5 is not in it.
    EXPECT_EQ(spans_of(5, 8), (std::vector<int>{1, 3}));
    EXPECT_EQ(spans_of(5, 9), (std::vector<int>{2, 4}));
    EXPECT_EQ(spans_of(5, 16), (std::vector<int>{4, 5, 2}));
    EXPECT_EQ(spans_of(5, 17), (std::vector<int>{2, 3, 5}));
}

ByteRecord read_record(const fs::path& file, std::size_t length, int number)
{
    std::ifstream in(file, std::ios::binary);
    ByteRecord r(length);
    in.seekg(static_cast<std::streamoff>(length) * (number - 1));
    in.read(reinterpret_cast<char*>(r.data()), static_cast<std::streamsize>(length));
    EXPECT_TRUE(in) << file << " record " << number;
    return r;
}

std::unique_ptr<Model> two_span_beam()
{
    auto m = make_beam({4.0F, 6.0F}, kBuiltIn, kSimple);
    m->loadcomb_option = 2;
    add_uniform(m->G, 1, 2.0F);
    add_uniform(m->Q1, 2, 3.0F);
    add_point(m->Q1, 1, 5.0F, 1.7F);
    add_moment(m->Q2, 2, 4.0F, 2.0F);
    return m;
}

// A run into a folder, or through a trace kept open as the window keeps it.
void run_in(Model& m, auto&& trace)
{
    build_calculation_grids(m);
    run_analysis(m, trace);
}

TEST(ScratchFiles, ARunLeavesWhatItDoesNotWriteAsTheRunBeforeLeftIt)
{
    const fs::path folder = scratch_folder() / "trace";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const auto three = [] {
        auto b = make_beam({3.0F, 4.0F, 5.0F});
        b->loadcomb_option = 2;
        add_uniform(b->Q1, 3, 1.0F);
        return b;
    };
    run_in(*three(), folder);

    // Fewer spans and patterns: the older records and span 3 stay.
    auto m = two_span_beam();
    run_in(*m, folder);
    ASSERT_EQ(m->npatterns, 4);
    EXPECT_EQ(fs::file_size(folder / "Resultater"), 8u * 28040u);
    const ByteRecord g = read_record(folder / "Geometri", 9398, 1);
    EXPECT_EQ(g.get_i16(0), 2);
    EXPECT_EQ(g.get_f32(4 + 12), 5.0F);

    // A total run writes the pattern count of the run before.
    m->loadcomb_option = 1;
    run_in(*m, folder);
    EXPECT_EQ(m->npatterns, 1);
    EXPECT_EQ(read_record(folder / "Geometri", 9398, 1).get_i16(2), 4);
    run_in(*m, folder);
    EXPECT_EQ(read_record(folder / "Geometri", 9398, 1).get_i16(2), 1);

    // The same runs through one trace kept open leave the same bytes.
    const fs::path kept = scratch_folder() / "trace_kept";
    fs::remove_all(kept);
    fs::create_directories(kept);
    {
        ScratchFiles trace(kept);
        m = two_span_beam();
        run_in(*three(), trace);
        run_in(*m, trace);
        m->loadcomb_option = 1;
        run_in(*m, trace);
        run_in(*m, trace);
    }
    for (const char* file : {"Resultater", "Geometri"}) {
        EXPECT_EQ(contents(kept / file), contents(folder / file)) << file;
    }
}

TEST(ScratchFiles, AFolderThatCannotBeWrittenCostsTheCalculationNothing)
{
    auto traced = two_span_beam();
    run_in(*traced, scratch_folder());

    // A regular file where the folder should be: nothing can be created below it.
    const fs::path blocked = scratch_folder() / "not-a-folder";
    std::ofstream(blocked) << "x";
    auto untraced = two_span_beam();
    run_in(*untraced, blocked);

    EXPECT_TRUE(*untraced == *traced);
    EXPECT_TRUE(fs::is_regular_file(blocked));
}

} // namespace
} // namespace kvelder::test
