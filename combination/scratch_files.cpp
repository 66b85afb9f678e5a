#include "combination/scratch_files.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace kvelder {
namespace scratch {
namespace {

void put_f32(std::byte* record, std::size_t offset, float v)
{
    store_le(record + offset, std::bit_cast<std::uint32_t>(v), 4);
}

// Each cell of a layout, as fn(offset, span, point) for the three tables of
// forces and deflections and fn(offset, 0, support) for the two of supports.
template <typename Fn> void each_cell(const RecordLayout& layout, Fn&& fn)
{
    for (int i = 1; i <= layout.nf; ++i) {
        for (int j = 1; j <= layout.points[i]; ++j) {
            fn(cell(kOffsetV, i, j), i, j);
            fn(cell(kOffsetM, i, j), i, j);
            fn(cell(kOffsetW, i, j), i, j);
        }
    }
    for (int k = 1; k <= layout.nsup; ++k) {
        fn(kOffsetR + 4 * static_cast<std::size_t>(k), 0, k);
        fn(kOffsetMR + 4 * static_cast<std::size_t>(k), 0, k);
    }
}

} // namespace

RecordLayout layout_of(const Model& m)
{
    RecordLayout layout;
    layout.nf = m.nf;
    layout.nsup = m.nsup;
    for (int i = 1; i <= m.nf; ++i) {
        layout.points[i] = m.nxtot_s(i);
    }
    return layout;
}

void fill_results(const Model& m, std::byte* record, const RecordLayout& before)
{
    each_cell(before, [record](std::size_t offset, int, int) { std::memset(record + offset, 0, 4); });
    for (int i = 1; i <= m.nf; ++i) {
        for (int j = 1; j <= m.nxtot_s(i); ++j) {
            put_f32(record, cell(kOffsetV, i, j), m.C_V(i, j));
            put_f32(record, cell(kOffsetM, i, j), m.C_M(i, j));
            put_f32(record, cell(kOffsetW, i, j), m.C_W(i, j));
        }
    }
    for (int k = 1; k <= m.nsup; ++k) {
        put_f32(record, kOffsetR + 4 * static_cast<std::size_t>(k), m.C_R(k));
        put_f32(record, kOffsetMR + 4 * static_cast<std::size_t>(k), m.C_MR(k));
    }
}

void fill_geometry(const Model& m, ByteRecord& record)
{
    record.put_i16(kOffsetNf, m.nf);
    record.put_i16(kOffsetPatterns, m.npatterns);
    for (int i = 1; i <= m.nf; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        record.put_f32(kOffsetSpans + 4 * slot, m.ffl_s(i));
        record.put_i16(kOffsetCounts + 2 * slot, m.nxtot_s(i));
        for (int j = 1; j <= m.nxtot_s(i); ++j) {
            record.put_f32(cell(kOffsetPositions, i, j), m.xl_s(i, j));
        }
    }
}

} // namespace scratch

ScratchFiles::ScratchFiles(std::filesystem::path folder) : m_folder(std::move(folder)), m_traced(true) {}

bool ScratchFiles::open(std::fstream& file, const char* name)
{
    if (file.is_open()) {
        return true;
    }
    const auto path = m_folder / name;
    constexpr auto mode = std::ios::in | std::ios::out | std::ios::binary;
    file.open(path, mode);
    if (!file.is_open()) {
        // A new file: create it empty, then open it for reading and writing.
        std::ofstream create(path, std::ios::binary);
        if (!create) {
            return false;
        }
        create.close();
        file.open(path, mode);
    }
    return file.is_open();
}

void ScratchFiles::write_geometry(const Model& m)
{
    if (!m_traced || m_geometry_failed || !open(m_geometry, scratch::kGeometryFile)) {
        m_geometry_failed = true;
        return;
    }
    if (!m_geometry_read) {
        // What lies beyond this beam stays as the file has it.
        m_geometry.clear();
        m_geometry.seekg(0);
        m_geometry.read(reinterpret_cast<char*>(m_geometry_record.data()),
                        static_cast<std::streamsize>(m_geometry_record.size()));
        m_geometry.clear(); // a short or new file reads as much as it has
        m_geometry_read = true;
    }
    scratch::fill_geometry(m, m_geometry_record);
    m_geometry_due = true;
}

void ScratchFiles::write_results(const Model& m, int pattern)
{
    if (!m_traced || pattern < 1) {
        return;
    }
    const auto p = static_cast<std::size_t>(pattern);
    if (m_layouts.size() < p) {
        m_layouts.resize(p);
        m_results_records.resize(p * scratch::kResultsLength);
    }
    std::byte* record = m_results_records.data() + (p - 1) * scratch::kResultsLength;
    scratch::fill_results(m, record, m_layouts[p - 1]);
    m_layouts[p - 1] = scratch::layout_of(m);
    m_patterns = std::max(m_patterns, pattern);
}

void ScratchFiles::write_run()
{
    if (m_geometry_due) {
        m_geometry.seekp(0);
        m_geometry.write(reinterpret_cast<const char*>(m_geometry_record.data()),
                         static_cast<std::streamsize>(m_geometry_record.size()));
        m_geometry.flush();
        m_geometry_failed = !m_geometry;
    }
    if (m_patterns > 0 && !m_results_failed && open(m_results, scratch::kResultsFile)) {
        m_results.seekp(0);
        m_results.write(
            reinterpret_cast<const char*>(m_results_records.data()),
            static_cast<std::streamsize>(static_cast<std::size_t>(m_patterns) * scratch::kResultsLength));
        m_results.flush();
        m_results_failed = !m_results;
    } else if (m_patterns > 0) {
        m_results_failed = true;
    }
    m_geometry_due = false;
    m_patterns = 0;
}

} // namespace kvelder
