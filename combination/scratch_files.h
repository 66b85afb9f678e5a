#pragma once

#include "files/byte_record.h"
#include "model/model.h"

#include <cstddef>
#include <filesystem>
#include <fstream>

namespace kvelder {

// The trace of the last run: "Resultater" keeps one record of the combination
// per load pattern, "Geometri" one record of the geometry. Nothing reads them
// back; they are there for whoever wants to look at a run from outside.
namespace scratch {

constexpr const char* kResultsFile = "Resultater";
constexpr const char* kGeometryFile = "Geometri";

// Fixed bounds of the record tables: spans 0..10, points 0..211, supports 0..6.
constexpr std::size_t kSpanSlots = 11;
constexpr std::size_t kPointSlots = 212;
constexpr std::size_t kSupportSlots = 7;
constexpr std::size_t kTableBytes = 4 * kSpanSlots * kPointSlots; // 9328

constexpr std::size_t kResultsLength = 28040;
constexpr std::size_t kOffsetV = 0;
constexpr std::size_t kOffsetM = kOffsetV + kTableBytes;        // 9328
constexpr std::size_t kOffsetW = kOffsetM + kTableBytes;        // 18656
constexpr std::size_t kOffsetR = kOffsetW + kTableBytes;        // 27984
constexpr std::size_t kOffsetMR = kOffsetR + 4 * kSupportSlots; // 28012

constexpr std::size_t kGeometryLength = 9398;
constexpr std::size_t kOffsetNf = 0;
constexpr std::size_t kOffsetPatterns = 2;
constexpr std::size_t kOffsetSpans = 4;
constexpr std::size_t kOffsetCounts = 48;
constexpr std::size_t kOffsetPositions = 70;

// Byte offset of entry (i, j) of a span-by-point table that starts at `base`.
constexpr std::size_t cell(std::size_t base, int i, int j)
{
    return base + 4 * (static_cast<std::size_t>(i) + kSpanSlots * static_cast<std::size_t>(j));
}

static_assert(kOffsetMR + 4 * kSupportSlots == kResultsLength);
static_assert(kOffsetPositions + kTableBytes == kGeometryLength);

// The record contents, apart from any file.
void fill_results(const Model& m, ByteRecord& record);
void fill_geometry(const Model& m, ByteRecord& record);

} // namespace scratch

// Writes the two files of one run in a folder. The files open on first use and
// close with the object. A folder that cannot be written leaves no trace and no
// error: the trace must never stand in the way of a calculation.
class ScratchFiles {
public:
    explicit ScratchFiles(std::filesystem::path folder);

    void write_geometry(const Model& m);
    void write_results(const Model& m, int pattern);

private:
    bool open(std::fstream& file, const char* name);

    std::filesystem::path m_folder;
    std::fstream m_results;
    std::fstream m_geometry;
    bool m_results_failed = false;
    bool m_geometry_failed = false;
    ByteRecord m_results_record{scratch::kResultsLength};
    ByteRecord m_geometry_record{scratch::kGeometryLength};
};

} // namespace kvelder
