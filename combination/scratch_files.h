#pragma once

#include "files/byte_record.h"
#include "model/model.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

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

// The cells of a results record that hold numbers: every point of every span
// and every support, as the beam of one run has them.
struct RecordLayout {
    int nf = 0;
    int nsup = 0;
    std::int16_t points[kSpanSlots] = {};
};
RecordLayout layout_of(const Model& m);

// Puts the combination of the model into a results record that holds zeros
// but for the cells of `before`.
void fill_results(const Model& m, std::byte* record, const RecordLayout& before);
// Updates a geometry record in place: what lies beyond the spans and points of
// this beam stays as an earlier run left it.
void fill_geometry(const Model& m, ByteRecord& record);

} // namespace scratch

// The trace of the runs of one process in a folder. A run traces its geometry
// and the combination of each pattern; write_run then writes each file in one
// piece. The files stay open, and the records in memory as the files hold
// them, from one run to the next. A folder that cannot be written leaves no
// trace and no error: the trace must never stand in the way of a calculation.
class ScratchFiles {
public:
    explicit ScratchFiles(std::filesystem::path folder);
    // No trace at all: for the trial runs that are no recalculation of the
    // engineer's beam, which must not overwrite its trace.
    ScratchFiles() = default;
    ScratchFiles(const ScratchFiles&) = delete;
    ScratchFiles& operator=(const ScratchFiles&) = delete;

    void write_geometry(const Model& m);
    void write_results(const Model& m, int pattern);
    // Writes what the run traced, and starts the next run.
    void write_run();

private:
    bool open(std::fstream& file, const char* name);

    std::filesystem::path m_folder;
    bool m_traced = false;
    std::fstream m_results;
    std::fstream m_geometry;
    bool m_results_failed = false;
    bool m_geometry_failed = false;
    // Records 1, 2, ... as the results file holds them, each zero but for the
    // cells of its layout.
    std::vector<std::byte> m_results_records;
    std::vector<scratch::RecordLayout> m_layouts;
    int m_patterns = 0; // records traced in this run
    ByteRecord m_geometry_record{scratch::kGeometryLength};
    bool m_geometry_read = false;
    bool m_geometry_due = false;
};

} // namespace kvelder
