// The recent files in the user's settings: the names under which they are kept.

#include "gui/recent_files_settings.h"

#include <QSettings>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(RecentFilesSettings, KeptUnderTheApplicationSectionAndKeys)
{
    // The test main keeps the settings in the scratch folder; each run starts from none.
    QSettings(QSettings::NativeFormat, QSettings::UserScope, "Kvelder", "Kvelder").remove("Recent Files");
    {
        RecentFilesSettings store;
        EXPECT_TRUE(ShowRecentFiles(store).empty());
        MoveRecentFile(store, "/projects/hall \u00e5s.kvel");
        MoveRecentFile(store, "/projects/roof.kvel");
    }
    // A later start of the program reads them back.
    RecentFilesSettings later;
    EXPECT_EQ(ShowRecentFiles(later),
              (std::vector<std::string>{"1. /projects/roof.kvel", "2. /projects/hall \u00e5s.kvel"}));

    QSettings raw(QSettings::NativeFormat, QSettings::UserScope, "Kvelder", "Kvelder");
    EXPECT_EQ(raw.value("Recent Files/RecentFile1").toString().toStdString(), "/projects/roof.kvel");
}

} // namespace
} // namespace kvelder::test
