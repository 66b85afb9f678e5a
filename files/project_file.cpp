#include "files/project_file.h"

#include "files/project_layout.h"
#include "files/replace_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace kvelder {
namespace {

namespace fs = std::filesystem;

// No project comes near this size: every text of the file at its longest.
constexpr std::uintmax_t kLargestProject = 128U * 1024U * 1024U;

ProjectFailure failure(ProjectFailure::Kind kind, const fs::path& path, std::string detail = {})
{
    return ProjectFailure{kind, path, std::move(detail)};
}

// The bytes of a file, or why there are none.
std::optional<ProjectFailure> read_bytes(const fs::path& path, std::vector<std::byte>& bytes)
{
    std::error_code ec;
    const fs::path folder = path.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ec)) {
        return failure(ProjectFailure::Kind::PathNotFound, path);
    }
    const fs::file_status status = fs::status(path, ec);
    if (status.type() == fs::file_type::not_found) {
        return failure(ProjectFailure::Kind::FileNotFound, path);
    }
    if (ec) {
        return failure(ProjectFailure::Kind::Unreadable, path, ec.message());
    }
    if (!fs::is_regular_file(status)) {
        return failure(ProjectFailure::Kind::Unreadable, path,
                       fs::is_directory(status) ? "it is a folder" : "it is not a file");
    }
    const std::uintmax_t size = fs::file_size(path, ec);
    if (ec) {
        return failure(ProjectFailure::Kind::Unreadable, path, ec.message());
    }
    if (size > kLargestProject) {
        return failure(ProjectFailure::Kind::NotAProject, path, "the file is larger than any project");
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return failure(ProjectFailure::Kind::Unreadable, path, "it cannot be opened");
    }
    bytes.resize(static_cast<std::size_t>(size));
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (static_cast<std::uintmax_t>(in.gcount()) != size) {
        return failure(ProjectFailure::Kind::Unreadable, path, "reading it failed");
    }
    return std::nullopt;
}

ProjectFile project_of(const Model& m)
{
    ProjectFile file;
    RecordFromModel(m, file);
    RecordFromSection(m, file);
    return file;
}

} // namespace

std::optional<ProjectFailure> ReadProject(Model& m, const fs::path& path, LoadDialogs& dialogs)
{
    std::vector<std::byte> bytes;
    if (auto failed = read_bytes(path, bytes)) {
        return failed;
    }
    if (auto why = ReadProjectBytes(m, bytes, dialogs)) {
        return failure(ProjectFailure::Kind::NotAProject, path, std::move(*why));
    }
    return std::nullopt;
}

std::optional<std::string> ReadProjectBytes(Model& m, std::span<const std::byte> bytes, LoadDialogs& dialogs)
{
    ProjectFile file;
    try {
        file = decode_project(bytes);
    } catch (const NotAProject& e) {
        return e.what();
    }
    ModelFromRecord(m, file, dialogs);
    SectionFromRecord(m, file);
    return std::nullopt;
}

std::vector<std::byte> project_bytes(const Model& m)
{
    return encode_project(project_of(m));
}

std::optional<ProjectFailure> WriteProject(Model& m, const fs::path& path)
{
    const ProjectFile file = project_of(m);
    std::vector<std::byte> bytes;
    try {
        bytes = encode_project(file);
    } catch (const std::length_error& e) {
        return failure(ProjectFailure::Kind::TooLong, path, e.what());
    }
    if (const std::optional<ReplaceFailure> failed = replace_file(path, bytes)) {
        switch (failed->kind) {
        case ReplaceFailure::Kind::ReadOnly:
            return failure(ProjectFailure::Kind::ReadOnly, path);
        case ReplaceFailure::Kind::InUse:
            return failure(ProjectFailure::Kind::InUse, path);
        case ReplaceFailure::Kind::Unwritable:
            break;
        }
        return failure(ProjectFailure::Kind::Unwritable, path, failed->error.message());
    }
    m.setup = file.setup;
    for (int node = 2; node <= m.nnodes - 1; ++node) {
        m.support_kind(node) = kSimple;
    }
    return std::nullopt;
}

} // namespace kvelder
