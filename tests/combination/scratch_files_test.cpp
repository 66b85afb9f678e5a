// The trace files of a run: record lengths, where each field lies, and that a
// folder without write access costs the calculation nothing.

#include "analysis/points.h"
#include "files/byte_record.h"
#include "recalc/run_analysis.h"
#include "tests/support/beams.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

ByteRecord read_record(const fs::path& file, std::size_t length, int number)
{
    std::ifstream in(file, std::ios::binary);
    ByteRecord r(length);
    in.seekg(static_cast<std::streamoff>(length) * (number - 1));
    in.read(reinterpret_cast<char*>(r.data()), static_cast<std::streamsize>(length));
    EXPECT_TRUE(in) << file << " record " << number;
    return r;
}

// A folder of its own for one test.
fs::path fresh_folder(const char* name)
{
    const fs::path p = scratch_folder() / name;
    fs::remove_all(p);
    fs::create_directories(p);
    return p;
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

void run_in(Model& m, const fs::path& folder)
{
    build_calculation_grids(m);
    run_analysis(m, folder);
}

TEST(ScratchFiles, ResultRecordHoldsTheFinalCombinationOfItsPattern)
{
    const auto folder = fresh_folder("results");
    auto m = two_span_beam();
    run_in(*m, folder);
    EXPECT_EQ(fs::file_size(folder / "Resultater"), 4u * 28040u);
    EXPECT_EQ(fs::file_size(folder / "Geometri"), 9398u);

    // The combination in memory is that of the last pattern.
    const ByteRecord r = read_record(folder / "Resultater", 28040, 4);
    auto at = [](std::size_t base, int i, int j) { return base + 4 * static_cast<std::size_t>(i + 11 * j); };
    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= m->nxtot_s(i); ++j) {
            ASSERT_EQ(r.get_f32(at(0, i, j)), m->C_V(i, j));
            ASSERT_EQ(r.get_f32(at(9328, i, j)), m->C_M(i, j));
            ASSERT_EQ(r.get_f32(at(18656, i, j)), m->C_W(i, j));
        }
        EXPECT_EQ(r.get_f32(at(0, i, m->nxtot_s(i) + 1)), 0.0F);
        EXPECT_EQ(r.get_f32(at(0, i, 0)), 0.0F);
    }
    EXPECT_EQ(r.get_f32(at(0, 3, 1)), 0.0F);
    for (int k = 1; k <= m->nsup; ++k) {
        EXPECT_EQ(r.get_f32(27984 + 4 * static_cast<std::size_t>(k)), m->C_R(k));
        EXPECT_EQ(r.get_f32(28012 + 4 * static_cast<std::size_t>(k)), m->C_MR(k));
    }
    EXPECT_NE(m->C_MR(1), 0.0F);
    EXPECT_EQ(r.get_f32(27984), 0.0F);
    ASSERT_EQ(m->nsup, 3);
    EXPECT_EQ(r.get_f32(27984 + 4 * 4), 0.0F);
}

TEST(ScratchFiles, GeometryRecordHoldsSpansCountsAndPositions)
{
    const auto folder = fresh_folder("geometry");
    auto m = two_span_beam();
    run_in(*m, folder);

    const ByteRecord g = read_record(folder / "Geometri", 9398, 1);
    EXPECT_EQ(g.get_i16(0), 2);
    EXPECT_EQ(g.get_i16(2), 4);
    EXPECT_EQ(g.get_f32(4 + 4), 4.0F);
    EXPECT_EQ(g.get_f32(4 + 8), 6.0F);
    EXPECT_EQ(g.get_i16(48 + 2), m->nxtot_s(1));
    EXPECT_EQ(g.get_i16(48 + 4), m->nxtot_s(2));
    EXPECT_EQ(m->nxtot_s(1), 53);
    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= m->nxtot_s(i); ++j) {
            ASSERT_EQ(g.get_f32(70 + 4 * static_cast<std::size_t>(i + 11 * j)), m->xl_s(i, j));
        }
    }
}

TEST(ScratchFiles, ABeamWithFewerSpansLeavesTheOlderRecordsBehind)
{
    const auto folder = fresh_folder("stale");
    auto three = make_beam({3.0F, 4.0F, 5.0F});
    three->loadcomb_option = 2;
    add_uniform(three->Q1, 3, 1.0F);
    run_in(*three, folder);

    auto m = two_span_beam();
    run_in(*m, folder);
    EXPECT_EQ(fs::file_size(folder / "Resultater"), 8u * 28040u);
    const ByteRecord g = read_record(folder / "Geometri", 9398, 1);
    EXPECT_EQ(g.get_i16(0), 2);
    EXPECT_EQ(g.get_f32(4 + 12), 5.0F); // span 3 of the beam before
}

TEST(ScratchFiles, TotalRunWritesThePatternCountOfTheRunBefore)
{
    const auto folder = fresh_folder("total");
    auto m = two_span_beam();
    run_in(*m, folder);
    ASSERT_EQ(m->npatterns, 4);

    m->loadcomb_option = 1;
    run_in(*m, folder);
    EXPECT_EQ(m->npatterns, 1);
    EXPECT_EQ(read_record(folder / "Geometri", 9398, 1).get_i16(2), 4);
    run_in(*m, folder);
    EXPECT_EQ(read_record(folder / "Geometri", 9398, 1).get_i16(2), 1);
}

TEST(ScratchFiles, AFolderThatCannotBeWrittenCostsTheCalculationNothing)
{
    auto traced = two_span_beam();
    run_in(*traced, fresh_folder("written"));

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
