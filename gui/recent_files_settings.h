#pragma once

#include "files/recent_files.h"

#include <QSettings>

namespace kvelder {

// The recent files in the platform's per-user settings of the application
// "Kvelder" (the registry on Windows, a .conf file elsewhere).
class RecentFilesSettings final : public RecentFileStore {
public:
    RecentFilesSettings();

    std::filesystem::path value(int number) const override;
    void set_value(int number, const std::filesystem::path& path) override;

private:
    mutable QSettings m_settings;
};

} // namespace kvelder
