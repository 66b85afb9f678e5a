#pragma once

#include "files/recent_files.h"
#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The file menu without its dialogs: the window asks for the paths and the
// answers, these keep the project's path and whether it has changed. The
// window recalculates after each of them.

struct ProjectSession {
    std::filesystem::path project_path = "New file"; // shown in the title
    std::filesystem::path current_dir;               // where the last dialog was
    std::vector<std::byte> unchanged;                // project_bytes when last opened, saved or new
};

// The window's caption: title_suffix followed by the project path.
std::string window_title(const Model& m, const ProjectSession& s);

// Takes the beam as it stands as the one on disk. After an open or a new
// project the window calls it once the recalculation has run, since that run
// computes the load factors afresh.
void mark_unchanged(const Model& m, ProjectSession& s);

// Whether a save would now write other bytes than those last marked unchanged.
bool has_unsaved_changes(const Model& m, const ProjectSession& s);

// "Save changes to <path>?", asked before New, Open, a recent project and Exit
// throw away a changed beam. The answers are Save, Discard and Cancel.
Message save_changes_question(const std::string& language, const ProjectSession& s);

// What a cancelled file dialog says.
Message cancel_message();

// The project named on the command line ("kvelder [PROJECT]"), given as UTF-8
// text: surrounding double quotes are taken off only where both are there.
std::filesystem::path command_line_path(std::string_view argument);

// A name from the save dialog without an extension gets ".kvel".
std::filesystem::path with_default_extension(std::filesystem::path path);

// A recent-file caption as a menu item shows it: every "&" doubled, so that
// none of them becomes a shortcut.
std::string menu_text(std::string_view caption);

// Open, from the dialog, a recent project or the command line. On success the
// path becomes the project's, its folder the current one, and it comes to the
// front of the recent files; on failure the message, and nothing has changed.
// The window marks the beam unchanged after the recalculation.
std::optional<Message> open_file(Model& m, ProjectSession& s, const std::filesystem::path& path,
                                 LoadDialogs& dialogs, RecentFileStore& recent);

// Save (save_as false, path s.project_path) and Save As (the path from the
// dialog). A relative path, as that of a project never saved, is taken in the
// current folder. Refused with the first failing box of the window; a failed
// save gives its message. Either way the file on disk and the session stay as
// they were. On success the path is the project's, its folder the current one,
// the recent files take it (in front after Save As, moved there after Save),
// and the beam is unchanged.
std::optional<Message> save_file(Model& m, ProjectSession& s, const std::filesystem::path& path, bool save_as,
                                 RecentFileStore& recent);

// New: the example beam, named "New File" in English and "New file" in
// Norwegian, the words the program has always shown. The window marks it
// unchanged after the recalculation.
void new_file(Model& m, ProjectSession& s, LoadDialogs& dialogs);

} // namespace kvelder
