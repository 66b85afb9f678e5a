#pragma once

#include "files/project_file.h"
#include "model/load_dialogs.h"
#include "model/model.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace kvelder {

// The example beam again, keeping the catalogues, the setup and the language:
// the New of the file menu. loading_flag is set for the recalculation that follows.
void new_project(Model& m, LoadDialogs& dialogs);

// Opens a project as the window and kvelder-cli do: on failure nothing has
// changed. The file's beam then meets the window's checks of spans and
// supports, so that a beam that cannot be calculated stops at the gate of the
// recalculation that follows, with loading_flag still set for it to clear.
std::optional<ProjectFailure> open_project(Model& m, const std::filesystem::path& path, LoadDialogs& dialogs);
// The same from the bytes of a file; why they are no project, if they are not.
std::optional<std::string> open_project_bytes(Model& m, std::span<const std::byte> bytes,
                                              LoadDialogs& dialogs);

// Saves the beam in one step; on failure the file on disk and the beam are as they were.
std::optional<ProjectFailure> save_project(Model& m, const std::filesystem::path& path);

} // namespace kvelder
