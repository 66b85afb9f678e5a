// The recent files in the user's settings: the names under which they are kept,
// and the paths given back letter for letter.

#include "files/path_text.h"
#include "gui/recent_files_settings.h"

#include <QSettings>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

TEST(RecentFilesSettings, KeptUnderTheApplicationSectionAndKeysLetterForLetter)
{
    // The test main keeps the settings in the scratch folder; each run starts from none.
    QSettings(QSettings::NativeFormat, QSettings::UserScope, "Kvelder", "Kvelder").remove("Recent Files");
    const std::vector<std::string> names{"/projects/bjelke p\u00e5 loftet.kvel",
                                         "/projects/B\u201312 \u20ac.kvel", "/projects/\u03a9-bjelke.kvel"};
    {
        RecentFilesSettings store;
        EXPECT_TRUE(ShowRecentFiles(store).empty());
        for (const std::string& name : names) {
            MoveRecentFile(store, path_from_utf8(name));
        }
    }
    // A later start of the program reads them back, newest first.
    RecentFilesSettings later;
    EXPECT_EQ(ShowRecentFiles(later),
              (std::vector<std::string>{"1. " + names[2], "2. " + names[1], "3. " + names[0]}));

    QSettings raw(QSettings::NativeFormat, QSettings::UserScope, "Kvelder", "Kvelder");
    EXPECT_EQ(raw.value("Recent Files/RecentFile1").toString(), QString::fromStdString(names[2]));
}

} // namespace
} // namespace kvelder::test
