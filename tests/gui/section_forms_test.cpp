// The forms of the window, driven from it: the buckling input by keys and
// clicks, the section properties, the table of effective lengths, the section
// finder, the detailed results and the result grid; the reference dialogs as
// the main window's help buttons open them, and the documents of the help
// menu, which the build lays out beside the program.

#include "recalc/main_calc.h"
#include "tests/gui/window_flow.h"
#include "ui/result_grid.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

namespace kvelder::test {
namespace {

TEST_F(MainWindowFlow, BucklingInputChecksEachBoxAndRecalculatesWhatPasses)
{
    start(); // two spans of 5 m, h 405
    click("Check_vipping");
    click("Cmd_input_vipping");
    ASSERT_NE(front("frm_Kvelder_vipp_input"), nullptr);
    // l_stag 5 x 0.9, and twice the height for a load on the top.
    EXPECT_EQ(get<InputBox>("Txt_l_stag_0")->text(), "5.00");
    EXPECT_EQ(text("Lbl_leff_0"), "5.31");
    EXPECT_EQ(text("Lbl_felt_nr_vipp_1"), " 2");
    // Spans the beam does not have take no input and show nothing.
    EXPECT_TRUE(get<InputBox>("Txt_l_stag_2")->text().isEmpty() && !get("Txt_l_stag_2")->isEnabled());
    EXPECT_TRUE(text("Lbl_felt_nr_vipp_2").isEmpty() && text("Lbl_crit_2").isEmpty());

    // Braces beyond the span: refused, green, the focus kept, and the beam
    // keeps its braces, to which the form comes back.
    EXPECT_EQ(type("Txt_l_stag_0", "9"), 0);
    EXPECT_EQ(prompter.messages, QStringList{" l_stag =< 0.30 m or > span"});
    EXPECT_TRUE(green("Txt_l_stag_0"));
    EXPECT_EQ(QApplication::focusWidget(), get("Txt_l_stag_0"));
    EXPECT_EQ(model->l_stag(1), 5.0F);
    close_front();
    click("Cmd_input_vipping");
    ASSERT_NE(front(), nullptr);
    EXPECT_EQ(get<InputBox>("Txt_l_stag_0")->text(), "5.00");
    EXPECT_FALSE(green("Txt_l_stag_0"));

    // A value that passes is shown in its format and runs the beam; Enter walks on.
    prompter.messages.clear();
    type("Txt_l_stag_0", "2,5", false);
    QTest::keyClick(get("Txt_l_stag_0"), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), get("Txt_le_fak_0"));
    EXPECT_EQ(get<InputBox>("Txt_l_stag_0")->text(), "2.50");
    EXPECT_EQ(text("Lbl_leff_0"), "3.06");
    EXPECT_EQ(text("Lbl_crit_0"), QString::number(model->k_crit(1), 'f', 2));
    EXPECT_EQ(type("Txt_le_fak_0", "2.1"), 0);
    EXPECT_EQ(prompter.messages, QStringList{"lef_faktor < 0.2 or > 2.0 "});
    EXPECT_EQ(type("Txt_le_fak_0", "1"), 1);
    EXPECT_EQ(text("Lbl_leff_0"), "3.31");

    // The load at the bottom shortens every effective length by half the height.
    const int runs = window->runs();
    click("Opt_angrepspunkt_1");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(text("Lbl_leff_1"), "4.30");

    click("Cmd_lef");
    EXPECT_NE(front("frm_Kvelder_vipp_le"), nullptr);
    close_front();
    click("cmdOK");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MainWindowFlow, SectionPropertiesShowOneRowPerSpanAndTheGrossAreaUnderAzz)
{
    start();
    click("optRect");
    type("txt_b1", "100");
    type("txt_h1", "200");
    click("Cmd_tverrsnitt");
    ASSERT_NE(front("frm_Kvelder_Prop"), nullptr);
    for (const char* k : {"0", "1"}) {
        const auto cell = [this, k](const char* base) { return text((std::string(base) + "_" + k).c_str()); };
        EXPECT_EQ(cell("Lblfelt_prop"), QString::number(std::atoi(k) + 1));
        EXPECT_EQ(cell("Lbl_iyy_val"), "6.667E+07");
        EXPECT_EQ(cell("Lbl_wyy_val"), "6.667E+05");
        EXPECT_EQ(cell("Lbl_azz_val"), "2.000E+04"); // Axx; the shear area would be 1.340E+04
    }
    EXPECT_TRUE(text("Lblfelt_prop_2").isEmpty() && text("Lbl_azz_val_4").isEmpty());
    close_front();
}

TEST_F(MainWindowFlow, FindSectionOffersTheLightestAndChangesTheBeamOnlyWhenOneIsChosen)
{
    // Light loads on timber, whose smaller profiles carry them.
    auto beam = example_beam();
    choose_family(*beam, 0);
    beam->G = LoadGroup{}, beam->Q1 = LoadGroup{};
    add_uniform(beam->G, 1, 0.5F), add_uniform(beam->G, 2, 0.5F);
    add_uniform(beam->Q1, 1, 1.0F), add_uniform(beam->Q1, 2, 1.0F);
    for (int node = 1; node <= 3; ++node) {
        beam->bearing_length(node) = 300;
    }
    start(write("light.kvel", *beam).toStdString());
    const int profile = model->prof_index;
    const int runs = window->runs();

    click("Cmd_finn_tverrsnitt");
    QDialog* finder = front("frm_Kvelder_finn_tverrsnitt");
    ASSERT_NE(finder, nullptr);
    auto* list = finder->findChild<QListWidget*>("Lst_kandidater");
    ASSERT_GE(list->count(), 1);
    // Searching tried the family without touching the beam or running it.
    EXPECT_EQ(model->prof_index, profile);
    EXPECT_EQ(window->runs(), runs);

    QTest::mouseClick(finder->findChild<QPushButton*>("Cmd_velg"), Qt::LeftButton);
    EXPECT_FALSE(finder->isVisible());
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_TRUE(list->item(0)->text().startsWith(get<QComboBox>("cboProf")->currentText()));
    EXPECT_EQ(get<InputBox>("txt_b1")->text(), QString::number(model->section_b));
}

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

TEST_F(HelpFlow, HelpButtonsTheTableAndTheAboutBoxSpeakTheBeamsLanguageAndThePatternsNeedTwoSpans)
{
    start(); // in English
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
    for (const auto& [button, form, title] : cases) {
        EXPECT_EQ(open_by(button), std::pair(QString(form), QString(title)));
    }

    QImage english;
    for (const std::string language : {"Eng", "Nor"}) {
        choose_language(*model, language);
        window->refresh();
        ASSERT_TRUE(window->open_form("frm_Kvelder_vipp_le"));
        const bool eng = language == "Eng";
        EXPECT_EQ(get("Pic_le_eng")->isVisible(), eng);
        EXPECT_EQ(get("Pic_le_nor")->isVisible(), !eng);
        EXPECT_EQ(front()->windowTitle(), eng ? "Effective length lef / l" : "Effektiv lengde lef / l");
        const QImage shown = get<PictureBox>(eng ? "Pic_le_eng" : "Pic_le_nor")->image();
        EXPECT_FALSE(blank(eng ? "Pic_le_eng" : "Pic_le_nor"));
        EXPECT_TRUE(eng || shown != english); // its own words
        english = shown;
        close_front();

        get<QAction>("mnuabout")->trigger();
        ASSERT_NE(front("frmAbout"), nullptr);
        EXPECT_EQ(text("lblDescription"),
                  eng ? "Analysis of a beam according to EC5" : "Beregning av en bjelke if\u00f8lge EC5");
        click("cmdOK");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    // In Norwegian, the patterns.
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
    EXPECT_EQ(prompter.opened, (QStringList{to_qstring(built / "Kvelder manual.pdf"),
                                            to_qstring(built / "Kvelder Update information.pdf")}));
    EXPECT_TRUE(prompter.messages.isEmpty());

    // A folder without them: nothing is handed to the desktop, and the path is named.
    help_folder = m_folder;
    start();
    menu("mnuUpdate", "mnuHjelp");
    EXPECT_EQ(prompter.opened.size(), 2);
    EXPECT_EQ(prompter.messages,
              QStringList{"Can't open " + to_qstring(m_folder / "Kvelder Update information.pdf")});
}

TEST_F(MainWindowFlow, ATrialHeightChangesTheBeamAndTheMainWindowOrIsRefusedKeepingThePicture)
{
    start();
    click("optRect");
    click("cmd_detres");
    QDialog* d = front("frm_Kvelder_detailedresult");
    ASSERT_NE(d, nullptr);
    const auto text_picture = [d] { return d->findChild<PictureBox*>("Pic_detailed")->image(); };
    EXPECT_FALSE(d->findChild<QLineEdit*>("Txt_stand_dim")->isVisible());
    EXPECT_TRUE(d->findChild<QWidget*>("Optspandet_1")->isVisible());
    EXPECT_FALSE(d->findChild<QWidget*>("Optspandet_2")->isVisible());
    const QImage span_1 = text_picture();
    QTest::mouseClick(d->findChild<QWidget*>("Optspandet_1"), Qt::LeftButton, {}, QPoint(6, 8));
    EXPECT_NE(text_picture(), span_1);

    const QString usage = text("lbl_mom_0");
    const QImage before = text_picture();
    const int runs = window->runs();
    type("txt_h1", "200", true, d);
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(get<InputBox>("txt_h1")->text(), "200");
    EXPECT_NE(text("lbl_mom_0"), usage);
    const QImage after = text_picture();
    EXPECT_NE(after, before);

    // A height of 0: the message, the focus stays, the picture and results stand.
    type("txt_h1", "0", true, d);
    EXPECT_EQ(prompter.messages, QStringList{" h =< 0 "});
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(text_picture(), after);
    EXPECT_EQ(QApplication::focusWidget(), d->findChild<InputBox*>("txt_h1"));
    EXPECT_TRUE(green("txt_h1"));
    EXPECT_TRUE(data_missing(*model)); // no result for it, and no save
    QTest::mouseClick(d->findChild<QPushButton*>("Cmd_ok"), Qt::LeftButton);
    EXPECT_TRUE(d->isVisible()); // the refused box keeps the window
    EXPECT_EQ(prompter.messages.size(), 2);

    // Esc gives the refused height up: the beam is the one its results are for.
    QTest::keyClick(d, Qt::Key_Escape);
    EXPECT_EQ(model->section_h, 200.0F);
    EXPECT_EQ(get<InputBox>("txt_h1")->text(), "200");
    EXPECT_FALSE(green("txt_h1"));
    click("Opt_610b");
    EXPECT_EQ(window->runs(), runs + 2);
    EXPECT_EQ(prompter.messages.size(), 2);

    // A run stopped at the gate leaves nothing to show until the next that passes.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    type("txt_h1", "0");
    click("Opt_610a");
    EXPECT_EQ(prompter.messages.last(), "Data  missing, no executing of stiffness analysis");
    EXPECT_FALSE(get("cmd_detres")->isEnabled());
    EXPECT_FALSE(get("Cmd_grid_krefter")->isEnabled());
    type("txt_h1", "300");
    EXPECT_TRUE(get("cmd_detres")->isEnabled());
}

TEST_F(MainWindowFlow, TheGridListsTheBeamFromTheLastRunEachTimeItOpens)
{
    start();
    click("Cmd_grid_krefter");
    QDialog* d = front("frm_B_grid_mom_Shear_disp_comb");
    ASSERT_NE(d, nullptr);
    auto* grid = d->findChild<QTableWidget*>("Grid");
    const ResultGrid texts = result_grid(*model);
    ASSERT_EQ(grid->rowCount(), kGridHeadRows + static_cast<int>(texts.rows.size()));
    EXPECT_EQ(grid->columnSpan(0, 0), 6);
    EXPECT_EQ(grid->item(4, 6)->text(), QString::fromStdString(texts.rows[0].cells[6]));
    EXPECT_EQ(grid->item(4, 6)->background().color(), QColor(192, 192, 192));
    EXPECT_EQ(grid->item(5, 6)->text(), "");
    // The heads stand still over the values as they scroll.
    d->resize(d->width(), 300);
    QApplication::processEvents();
    const QRect heads(grid->viewport()->pos(),
                      QSize(grid->viewport()->width(), grid->rowViewportPosition(kGridHeadRows)));
    const QImage top = grid->grab(heads).toImage();
    grid->scrollToBottom();
    ASSERT_GT(grid->verticalScrollBar()->value(), 0);
    EXPECT_EQ(grid->grab(heads).toImage(), top);
    d->reject();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));

    // A Norwegian project of three spans, at the next opening.
    auto three = three_spans();
    three->language = "Nor";
    prompter.file_names = {write("three.kvel", *three)};
    keys(QKeySequence::Open);
    click("Cmd_grid_krefter");
    d = front("frm_B_grid_mom_Shear_disp_comb");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->windowTitle(), "Resultater langs bjelken");
    EXPECT_EQ(grid->rowCount(), kGridHeadRows + static_cast<int>(result_grid(*model).rows.size()));
    EXPECT_EQ(grid->item(1, 0)->text(), "Felt");
}

} // namespace
} // namespace kvelder::test
