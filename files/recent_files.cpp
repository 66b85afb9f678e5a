#include "files/recent_files.h"

#include "files/path_text.h"

namespace kvelder {

std::vector<std::string> ShowRecentFiles(const RecentFileStore& store)
{
    std::vector<std::string> captions;
    if (store.value(1).empty()) {
        return captions;
    }
    for (int k = 1; k <= kRecentFiles; ++k) {
        const std::filesystem::path path = store.value(k);
        if (!path.empty()) {
            captions.push_back(std::to_string(captions.size() + 1) + ". " + utf8_text(path));
        }
    }
    return captions;
}

std::filesystem::path recent_file_path(const std::string& caption)
{
    return caption.size() > 3 ? path_from_utf8(std::string_view(caption).substr(3)) : std::filesystem::path();
}

void AddRecentFile(RecentFileStore& store, const std::filesystem::path& path)
{
    for (int k = kRecentFiles - 1; k >= 1; --k) {
        const std::filesystem::path value = store.value(k);
        if (!value.empty()) {
            store.set_value(k + 1, value);
        }
    }
    store.set_value(1, path);
}

void MoveRecentFile(RecentFileStore& store, const std::filesystem::path& path)
{
    if (path.empty()) {
        return;
    }
    int found = 0;
    for (int k = 1; k <= kRecentFiles && found == 0; ++k) {
        if (store.value(k) == path) {
            found = k;
        }
    }
    if (found == 1) {
        return;
    }
    // The entries in front of the path (all of them when it is new) move down one.
    const int last = found == 0 ? kRecentFiles - 1 : found - 1;
    for (int k = last; k >= 1; --k) {
        const std::filesystem::path value = store.value(k);
        if (!value.empty()) {
            store.set_value(k + 1, value);
        }
    }
    store.set_value(1, path);
}

} // namespace kvelder
