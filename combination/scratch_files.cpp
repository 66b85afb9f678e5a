#include "combination/scratch_files.h"

#include <utility>

namespace kvelder {
namespace scratch {

void fill_results(const Model& m, ByteRecord& record)
{
    record.clear();
    for (int i = 1; i <= m.nf; ++i) {
        for (int j = 1; j <= m.nxtot_s(i); ++j) {
            record.put_f32(cell(kOffsetV, i, j), m.C_V(i, j));
            record.put_f32(cell(kOffsetM, i, j), m.C_M(i, j));
            record.put_f32(cell(kOffsetW, i, j), m.C_W(i, j));
        }
    }
    for (int k = 1; k <= m.nsup; ++k) {
        record.put_f32(kOffsetR + 4 * static_cast<std::size_t>(k), m.C_R(k));
        record.put_f32(kOffsetMR + 4 * static_cast<std::size_t>(k), m.C_MR(k));
    }
}

// Updates a geometry record in place: what lies beyond the spans and points of
// this beam stays as an earlier run left it.
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

ScratchFiles::ScratchFiles(std::filesystem::path folder) : m_folder(std::move(folder)) {}

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
    if (m_geometry_failed || !open(m_geometry, scratch::kGeometryFile)) {
        m_geometry_failed = true;
        return;
    }
    m_geometry_record.clear();
    m_geometry.clear();
    m_geometry.seekg(0);
    m_geometry.read(reinterpret_cast<char*>(m_geometry_record.data()),
                    static_cast<std::streamsize>(m_geometry_record.size()));
    m_geometry.clear(); // a short or new file reads as much as it has

    scratch::fill_geometry(m, m_geometry_record);
    m_geometry.seekp(0);
    m_geometry.write(reinterpret_cast<const char*>(m_geometry_record.data()),
                     static_cast<std::streamsize>(m_geometry_record.size()));
    m_geometry.flush();
    m_geometry_failed = !m_geometry;
}

void ScratchFiles::write_results(const Model& m, int pattern)
{
    if (m_results_failed || !open(m_results, scratch::kResultsFile)) {
        m_results_failed = true;
        return;
    }
    scratch::fill_results(m, m_results_record);
    const auto offset = static_cast<std::streamoff>(scratch::kResultsLength) * (pattern - 1);
    m_results.seekp(offset);
    m_results.write(reinterpret_cast<const char*>(m_results_record.data()),
                    static_cast<std::streamsize>(m_results_record.size()));
    m_results.flush();
    m_results_failed = !m_results;
}

} // namespace kvelder
