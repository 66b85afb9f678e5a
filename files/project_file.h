#pragma once

#include "files/project_model.h"
#include "model/model.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kvelder {

// Why a project could not be opened or saved.
struct ProjectFailure {
    enum class Kind {
        FileNotFound, // no file of that name
        PathNotFound, // no folder of that name
        NotAProject,  // the bytes are no project (detail says where and why)
        Unreadable,   // there, but it cannot be read
        Unwritable,   // the new file could not be written; the old one stands
        ReadOnly,     // the file is marked read-only; nothing was written
        InUse,        // another program holds the file open; the old one stands
        TooLong,      // a text is too long for the file (detail names it)
    };
    Kind kind;
    std::filesystem::path path;
    std::string detail;
};

// Opens a project: the whole file is read and checked before anything of it
// is used, so on failure the model, its catalogues and setup, and `dialogs` are
// exactly as they were. On success the catalogues and setup of the file replace
// those of the model and the beam follows (see ModelFromRecord); loading_flag is
// left set for the recalculation that follows to clear. The window's checks of
// spans and supports are the caller's (open_project).
std::optional<ProjectFailure> ReadProject(Model& m, const std::filesystem::path& path, LoadDialogs& dialogs);

// The same from the bytes of a file; why they are no project, if they are not.
std::optional<std::string> ReadProjectBytes(Model& m, std::span<const std::byte> bytes, LoadDialogs& dialogs);

// Saves the project in one step: the file on disk is either the old one or the
// whole new one. Two saves of the same beam give the same bytes. On success the
// active factors are kept in the setup row and the interior nodes are simple
// supports, as the file says; on failure the model is untouched.
std::optional<ProjectFailure> WriteProject(Model& m, const std::filesystem::path& path);

// The bytes a save of the beam writes.
std::vector<std::byte> project_bytes(const Model& m);

} // namespace kvelder
