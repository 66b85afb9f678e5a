// The help menu opens the manual and the update information that the build
// lays out beside the program.

#include "tests/gui/window_flow.h"

namespace kvelder::test {
namespace {

TEST_F(MainWindowFlow, HelpMenuOpensTheDocumentsOfTheHelpFolderOrSaysWhichIsMissing)
{
    const fs::path built = KVELDER_HELP_DIR;
    help_folder = built;
    start();
    menu("mnuman", "mnuHjelp");
    menu("mnuUpdate", "mnuHjelp");
    EXPECT_EQ(prompter.opened, (QStringList{qpath(built / "Kvelder manual.pdf"),
                                            qpath(built / "Kvelder Update information.pdf")}));
    EXPECT_TRUE(prompter.messages.isEmpty());

    // A folder without them: nothing is handed to the desktop, and the path is named.
    help_folder = m_folder;
    start();
    menu("mnuUpdate", "mnuHjelp");
    EXPECT_EQ(prompter.opened.size(), 2);
    EXPECT_EQ(prompter.messages,
              QStringList{"Can't open " + qpath(m_folder / "Kvelder Update information.pdf")});
}

} // namespace
} // namespace kvelder::test
