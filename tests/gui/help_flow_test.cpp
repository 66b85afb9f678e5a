// The reference dialogs as the main window's help buttons open them, and the
// documents of the help menu, which the build lays out beside the program.

#include "tests/gui/window_flow.h"

namespace kvelder::test {
namespace {

class HelpFlow : public MainWindowFlow {
protected:
    // Clicks a help button and closes what opened by its OK; the name and the
    // title of what opened.
    std::pair<QString, QString> open_by(const char* button)
    {
        click(button);
        QDialog* dialog = front();
        if (dialog == nullptr) {
            return {};
        }
        std::pair opened{dialog->objectName(), dialog->windowTitle()};
        QTest::mouseClick(dialog->findChild<QWidget*>("Cmd_ok"), Qt::LeftButton);
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << button;
        return opened;
    }
};

TEST_F(HelpFlow, EachHelpButtonOpensItsFormInTheLanguageAndThePatternsNeedTwoSpans)
{
    start();
    ASSERT_EQ(model->annex, "Nor");
    ASSERT_EQ(model->nf, 2);
    click("Check_vipping");

    const char* const cases[][3] = {
        {"Cmd_opplegg", "frmHelpOpplegg", "Definition of support"},
        {"Cmd_610a_b", "frmHelpLoadCombNo", "Design situation 6.10a og 6.10b, Norway"},
        {"Cmd_vipp_text", "frmHelpVipp", "Lateral torsional buckling"},
        // The total load is in force: its picture, though the patterns are not chosen.
        {"Cmd_loadcomb2", "frmHelpComb1", "Permanent + total variable load"},
    };
    choose_language(*model, "Eng");
    window->refresh();
    for (const auto& [button, form, title] : cases) {
        EXPECT_EQ(open_by(button), std::pair(QString(form), QString(title)));
    }

    // In Norwegian, the patterns.
    choose_language(*model, "Nor");
    window->refresh();
    click("Opt_loadcomb2");
    EXPECT_EQ(open_by("Cmd_loadcomb2"),
              std::pair(QString("frmHelpComb2"), QString("Permanent + ulike variable lasttilfeller")));
    EXPECT_EQ(prompter.messages, QStringList{});
    // One span has no patterns to show.
    click("Optfelt_0");
    EXPECT_FALSE(get("Cmd_loadcomb2")->isEnabled());
}

TEST_F(MainWindowFlow, HelpMenuOpensTheDocumentsOfTheHelpFolderOrSaysWhichIsMissing)
{
    const fs::path built = path_from_utf8(KVELDER_HELP_DIR);
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
