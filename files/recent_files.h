#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace kvelder {

// The per-user settings that keep the recent files: section "Recent Files",
// keys "RecentFile1" (newest) to "RecentFile4". An empty path is no value.
class RecentFileStore {
public:
    virtual ~RecentFileStore() = default;
    virtual std::filesystem::path value(int number) const = 0;
    virtual void set_value(int number, const std::filesystem::path& path) = 0;
};

// A store that keeps the list for one run only: for a program that must not
// touch the user's settings, and for tests.
class RecentFilesInMemory final : public RecentFileStore {
public:
    std::filesystem::path value(int number) const override
    {
        const auto it = keys.find(number);
        return it == keys.end() ? std::filesystem::path() : it->second;
    }
    void set_value(int number, const std::filesystem::path& path) override { keys[number] = path; }

    std::map<int, std::filesystem::path> keys;
};

constexpr int kRecentFiles = 4;

// The captions of the recent-file menu items, "1. " and the path's UTF-8 text, newest first;
// none while the first key has no value.
std::vector<std::string> ShowRecentFiles(const RecentFileStore& store);

// The path of a menu item's caption.
std::filesystem::path recent_file_path(const std::string& caption);

// After a save under a new name: the list moves down one and the path goes in
// front. A path already in the list is not looked for.
void AddRecentFile(RecentFileStore& store, const std::filesystem::path& path);

// After opening: a path in the list comes to the front, the entries before it
// moving down one; a new path goes in front and the fourth entry drops out.
void MoveRecentFile(RecentFileStore& store, const std::filesystem::path& path);

} // namespace kvelder
