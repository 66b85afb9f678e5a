// The reference dialogs as the main window's help buttons open them.

#include "tests/gui/window_flow.h"

#include <QDialog>

namespace kvelder::test {
namespace {

class HelpFlow : public MainWindowFlow {
protected:
    // Clicks a help button and closes what opened by its OK; the name and the
    // title of what opened.
    std::pair<QString, QString> open_by(const char* button)
    {
        click(button);
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            ADD_FAILURE() << button << " opened nothing";
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

    struct Case {
        const char* button;
        const char* form;
        const char* eng;
        const char* nor;
    };
    const Case cases[] = {
        {"Cmd_opplegg", "frmHelpOpplegg", "Definition of support", "Definisjon av oppleggsvariable"},
        {"Cmd_610a_b", "frmHelpLoadCombNo", "Design situation 6.10a og 6.10b, Norway",
         "Design situasjon 6.10a og 6.10b, Norge"},
        {"Cmd_vipp_text", "frmHelpVipp", "Lateral torsional buckling", "Vipping"},
        // The total load is in force: its picture, though the patterns are not chosen.
        {"Cmd_loadcomb2", "frmHelpComb1", "Permanent + total variable load",
         "Permanent + total variabel last"},
    };
    for (const char* language : {"Eng", "Nor"}) {
        choose_language(*model, language);
        window->refresh();
        for (const Case& c : cases) {
            EXPECT_EQ(open_by(c.button),
                      std::pair(QString(c.form), QString(language == std::string("Eng") ? c.eng : c.nor)));
        }
    }

    click("Opt_loadcomb2");
    EXPECT_EQ(open_by("Cmd_loadcomb2"),
              std::pair(QString("frmHelpComb2"), QString("Permanent + ulike variable lasttilfeller")));
    EXPECT_EQ(prompter.messages, QStringList{});
    // One span has no patterns to show.
    click("Optfelt_0");
    EXPECT_FALSE(get("Cmd_loadcomb2")->isEnabled());
}

} // namespace
} // namespace kvelder::test
