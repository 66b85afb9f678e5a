#include "ui/file_command.h"

#include "files/path_text.h"
#include "files/project_file.h"
#include "files/setup_file.h"
#include "ui/input_checks.h"
#include "ui/messages.h"
#include "ui/project_actions.h"

#include <stdexcept>
#include <system_error>

namespace kvelder {
namespace {

namespace fs = std::filesystem;

// The recent files and the title keep whole paths, so that an entry still
// opens after the working folder has changed.
fs::path absolute_or_as_is(const fs::path& path)
{
    std::error_code ec;
    fs::path full = fs::absolute(path, ec);
    return ec ? path : full;
}

} // namespace

std::string window_title(const Model& m, const ProjectSession& s)
{
    return m.title_suffix + utf8_text(s.project_path);
}

void mark_unchanged(const Model& m, ProjectSession& s)
{
    try {
        s.unchanged = project_bytes(m);
    } catch (const std::length_error&) {
        // A text too long for the file: no save could match it, so it stays changed.
        s.unchanged.clear();
    }
}

bool has_unsaved_changes(const Model& m, const ProjectSession& s)
{
    try {
        return project_bytes(m) != s.unchanged;
    } catch (const std::length_error&) {
        return true;
    }
}

Message save_changes_question(const std::string& language, const ProjectSession& s)
{
    const std::string title(kProductTitle);
    const std::string path = utf8_text(s.project_path);
    return language == "Eng" ? Message{0, title, "Save changes to " + path + "?"}
                             : Message{0, title, "Lagre endringene i " + path + "?"};
}

Message cancel_message()
{
    return Message{0, "", "Cancel were pressed"};
}

fs::path command_line_path(std::string_view argument)
{
    if (argument.size() >= 2 && argument.front() == '"' && argument.back() == '"') {
        argument = argument.substr(1, argument.size() - 2);
    }
    return path_from_utf8(argument);
}

fs::path with_default_extension(fs::path path)
{
    if (!path.has_extension()) {
        path += ".kvel";
    }
    return path;
}

std::string menu_text(std::string_view caption)
{
    std::string text;
    text.reserve(caption.size());
    for (const char c : caption) {
        if (c == '&') {
            text += '&';
        }
        text += c;
    }
    return text;
}

std::optional<Message> open_file(Model& m, ProjectSession& s, const fs::path& path, LoadDialogs& dialogs,
                                 RecentFileStore& recent)
{
    if (const auto failure = open_project(m, path, dialogs)) {
        return project_message(m.language, *failure);
    }
    const fs::path full = absolute_or_as_is(path);
    s.project_path = full;
    s.current_dir = full.parent_path();
    MoveRecentFile(recent, s.project_path);
    return std::nullopt;
}

std::optional<Message> save_file(Model& m, ProjectSession& s, const fs::path& path, bool save_as,
                                 RecentFileStore& recent)
{
    if (auto refused = window_box_failure(m)) {
        return refused;
    }
    const fs::path full =
        absolute_or_as_is(path.is_relative() && !s.current_dir.empty() ? s.current_dir / path : path);
    if (const auto failure = save_project(m, full)) {
        return project_message(m.language, *failure);
    }
    s.project_path = full;
    s.current_dir = full.parent_path();
    if (save_as) {
        AddRecentFile(recent, s.project_path);
    } else {
        MoveRecentFile(recent, s.project_path);
    }
    mark_unchanged(m, s);
    return std::nullopt;
}

void new_file(Model& m, ProjectSession& s, LoadDialogs& dialogs)
{
    new_project(m, dialogs);
    s.project_path = m.setup.setup_language == "Eng" ? "New File" : "New file";
}

} // namespace kvelder
