// The load dialogs, and the setup and classes dialogs, driven from the main
// window with keys and clicks.

#include "gui/load_dialog.h"
#include "tests/gui/window_flow.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <array>

namespace kvelder::test {
namespace {

class DialogFlow : public MainWindowFlow {
protected:
    // Types into the box with the focus and walks on with `key`.
    void enter(const QString& text, Qt::Key key = Qt::Key_Return)
    {
        QWidget* box = QApplication::focusWidget();
        ASSERT_NE(box, nullptr);
        QTest::keyClicks(box, text);
        QTest::keyClick(box, key);
    }
    QString box(const char* name) { return get<QLineEdit>(name)->text(); }
    QDialog* open_by_menu(const char* item, const char* form)
    {
        QMenuBar* bar = window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(get<QAction>(item)).center());
        return front(form);
    }
    // The setup and classes dialogs have their Cmd_ok.
    void ok(QDialog* d) { QTest::mouseClick(d->findChild<QPushButton*>("Cmd_ok"), Qt::LeftButton); }
    void choose(const char* combo, Qt::Key key)
    {
        auto* c = get<QComboBox>(combo);
        c->setFocus(Qt::TabFocusReason);
        QTest::keyClick(c, key);
    }
};

TEST_F(DialogFlow, EnterAndTabWalkTheBoxesToOkAndALoadEnteredSoLandsInTheBeam)
{
    start();
    click("Cmdnyttelast_2"); // Q2 has no rows: every box starts empty
    QDialog* q2 = front("frm_B_nyttelast_2");
    ASSERT_NE(q2, nullptr);
    // Every row filled: each box once, row by row and frame by frame, then OK.
    for (const LoadTable table : kLoadTables) {
        for (int r = 0; r < capacity(table); ++r) {
            for (int b = 0; b <= value_count(table); ++b) {
                const std::string name = load_box_name(LoadGroupId::Q2, table, b, r);
                ASSERT_TRUE(focus_in(name.c_str())) << name;
                enter(b == 0 ? "1" : ""); // an empty value box walks on as a filled one
            }
        }
    }
    EXPECT_TRUE(focus_in("Cmdok_n"));

    // The dialogs of Q1 and Q2 share the names of their buttons.
    QTest::mouseClick(q2->findChild<QPushButton*>("cmd_n_last_clear"), Qt::LeftButton);
    enter("1");
    enter("2,5");
    enter("", Qt::Key_Tab); // Tab walks as Enter does: an empty span box, on to the trapezoids
    EXPECT_TRUE(focus_in("TxtfeltN_2_t_0"));
    enter("");
    enter("2");
    enter("10");
    enter("1");
    enter("");
    enter(""); // the moments' empty span box ends on OK
    EXPECT_TRUE(focus_in("Cmdok_n"));

    const int runs = window->runs();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(q2->isVisible());
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(model->Q2.uni_n, 1);
    EXPECT_EQ(model->Q2.uni_q(1), 2.5F);
    ASSERT_EQ(model->Q2.pt_n, 1);
    EXPECT_EQ(model->Q2.pt_span(1), 2);
    EXPECT_EQ(model->Q2.pt_P(1), 10.0F);
    EXPECT_TRUE(prompter.messages.isEmpty());
}

TEST_F(DialogFlow, OkStaysOnAFailingRowUntilItIsPutRightAndClosingChangesNothing)
{
    start(); // G 2.0 kN/m on spans 1 and 2
    const QString moment_before = text("lbl_mom_0");
    click("Picegenlast"); // the picture opens the dialog as the button does
    QDialog* g = front("frm_B_egenlast");
    ASSERT_NE(g, nullptr);
    type("TxtQE_j_1", "5");
    type("TxtfeltE_j_1", "1");
    const int runs = window->runs();
    click("Cmdok_e");
    EXPECT_EQ(prompter.messages, QStringList{"Only one load for each span"});
    EXPECT_TRUE(g->isVisible());
    EXPECT_TRUE(green("TxtfeltE_j_1"));
    EXPECT_TRUE(focus_in("TxtfeltE_j_1"));
    EXPECT_EQ(model->G.uni_span(2), 2);
    EXPECT_EQ(model->G.uni_q(2), 2.0F);
    EXPECT_EQ(window->runs(), runs);

    // The title bar's close: the beam and the boxes as they were.
    const LoadDialogs texts_before = dialogs;
    g->reject();
    EXPECT_EQ(dialogs, texts_before);
    click("Cmdegenlast");
    front("frm_B_egenlast");
    EXPECT_EQ(box("TxtQE_j_1"), "2.00");
    EXPECT_FALSE(green("TxtfeltE_j_1"));

    // Put right, with a gap before it: the rows close up and the results follow.
    type("TxtfeltE_j_0", "");
    type("TxtQE_j_1", "5");
    click("Cmdok_e");
    EXPECT_FALSE(g->isVisible());
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(model->G.uni_n, 1);
    EXPECT_EQ(model->G.uni_q(1), 5.0F);
    EXPECT_NE(text("lbl_mom_0"), moment_before);
    click("Cmdegenlast");
    front("frm_B_egenlast");
    EXPECT_EQ(box("TxtfeltE_j_0"), "2");
    EXPECT_EQ(box("TxtfeltE_j_1"), "");

    // Remove all loads, then OK: the group is empty.
    click("cmd_e_last_clear");
    EXPECT_EQ(box("TxtfeltE_j_0"), "");
    click("Cmdok_e");
    EXPECT_TRUE(model->G.empty());
    EXPECT_EQ(prompter.messages.size(), 1);
}

TEST_F(DialogFlow, ARowThatFailsInARecalculationOpensItsDialogOnceOnItsBox)
{
    auto beam = example_beam();
    add_point(beam->Q2, 2, 3.0F, 4.5F);
    add_moment(beam->Q1, 2, 1.0F, 2.0F); // a project does not restore its span
    start(write("q2.kvel", *beam).toStdString());
    EXPECT_TRUE(prompter.messages.isEmpty());
    EXPECT_EQ(model->Q1.mom_span(1), 2); // read from the dialog's box

    // Q2 is not fitted to a shorter span: its point now lies beyond it.
    type("Txtfelt_1", "4");
    QDialog* q2 = front("frm_B_nyttelast_2");
    ASSERT_NE(q2, nullptr);
    EXPECT_EQ(prompter.messages, QStringList{"c > lenght of span"});
    EXPECT_TRUE(green("TxtcN_2_0"));
    EXPECT_TRUE(focus_in("TxtcN_2_0"));
    EXPECT_FALSE(get("cmd_detres")->isEnabled()); // no results of the whole beam to show

    type("TxtcN_2_0", "3");
    QTest::mouseClick(q2->findChild<QPushButton*>("Cmdok_n"), Qt::LeftButton);
    EXPECT_FALSE(q2->isVisible());
    EXPECT_EQ(model->Q2.pt_a(1), 3.0F);
    EXPECT_EQ(prompter.messages.size(), 1);
    EXPECT_TRUE(get("cmd_detres")->isEnabled());
}

TEST_F(DialogFlow, EveryBoxShowsWhatItTookOrSaysWhyAndClosingKeepsTheBeam)
{
    start();
    click("Cmdnyttelast");
    QDialog* q1 = front("frm_B_nyttelast");
    const Model before = *model;
    const QString digits(300, '9'), low = "Number is  <= 0 ", nan = "The text is not a number";
    // Typed, shown after leaving, and the message. Each box ends on a sound text,
    // so that leaving it for the next raises nothing.
    const std::vector<std::array<QString, 3>> spans{
        {"", "", ""},      {"2.6", "3", ""},        {"0", "0", low},         {"-0", "0", low},
        {"abc", "0", low}, {"1e999", "1e999", nan}, {"99999", "99999", nan}, {digits, digits, nan},
        {"2", "2", ""}};
    const std::vector<std::array<QString, 3>> values{
        {"", "", ""},        {"-0", "0.00", ""},      {",", "0.00", ""},
        {"nan", "0.00", ""}, {"1e999", "1e999", nan}, {digits, digits, nan},
        {"1,5", "1.50", ""}};
    for (const LoadTable table : kLoadTables) {
        for (int b = 0; b <= value_count(table); ++b) {
            const std::string name = load_box_name(LoadGroupId::Q1, table, b, 1);
            for (const auto& [typed, shown, message] : b == 0 ? spans : values) {
                prompter.messages.clear();
                type(name.c_str(), typed);
                const std::string where = name + " " + typed.left(9).toStdString();
                EXPECT_EQ(box(name.c_str()), shown) << where;
                EXPECT_EQ(prompter.messages, message.isEmpty() ? QStringList{} : QStringList{message})
                    << where;
                EXPECT_EQ(green(name.c_str()), !message.isEmpty()) << where;
            }
        }
    }
    EXPECT_TRUE(q1->isVisible());
    q1->reject();
    EXPECT_EQ(project_bytes(*model), project_bytes(before));
}

TEST_F(DialogFlow, ACountryTakesEffectOnOkAndTheSavedSetupWithItsLanguageIsWhatTheNextStartReads)
{
    start(); // the Norwegian annex, a laminated beam: gamma_M 1.15
    auto* safety = get<QGroupBox>("frmSafety");
    const auto kfi = [safety] { return safety->findChild<QLabel*>("Lbl_kfi_1")->text(); };
    QDialog* setup = open_by_menu("mnusetup", "frmSetup");
    EXPECT_TRUE(get("Fra_class_nor")->isVisible());
    // The reliability class scales the variable loads at once, and the window shows it.
    int runs = window->runs();
    click("Opt_class_nor_1");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(kfi(), "Kfi = 0.90");
    click("Opt_class_nor_2_4");
    EXPECT_EQ(kfi(), "Kfi = 1.00");

    runs = window->runs();
    choose("cmbCountry", Qt::Key_End); // "EC5 + EN 1990 recommended"
    EXPECT_FALSE(get("Fra_class_nor")->isVisible());
    EXPECT_EQ(get<QLineEdit>("Txt_gamma_lam")->text(), "1.25");
    EXPECT_EQ(window->runs(), runs); // nothing counts before OK
    EXPECT_EQ(text("Lbl_gamma2"), "1.15 ");
    ok(setup);
    EXPECT_FALSE(setup->isVisible());
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(text("Lbl_gamma2"), "1.25 ");
    EXPECT_TRUE(window->windowTitle().contains("EN 1990 recommended"));
    EXPECT_FALSE(safety->isVisible()); // the recommended values know no classes

    // An edit recalculates at once; Norwegian turns the window and the dialog,
    // and the window's lists keep their choices.
    open_by_menu("mnusetup", "frmSetup");
    EXPECT_EQ(type("Txt_gamma_lam", "1,4"), 1);
    EXPECT_EQ(text("Lbl_gamma2"), "1.40 ");
    // The annexes side by side take the factors as edited, and change nothing.
    runs = window->runs();
    click("Cmd_tillegg");
    QDialog* annexes = front("frm_Kvelder_tillegg");
    ASSERT_NE(annexes, nullptr);
    auto* grid = annexes->findChild<QTableWidget*>("Grid_tillegg");
    ASSERT_EQ(grid->columnCount(), 3);
    int gamma_M = 0;
    while (gamma_M < grid->rowCount() && grid->verticalHeaderItem(gamma_M)->text() != "gamma_M") {
        ++gamma_M;
    }
    ASSERT_LT(gamma_M, grid->rowCount());
    EXPECT_EQ(grid->item(gamma_M, 0)->text(), "1.15"); // Norway as its row stands
    EXPECT_EQ(grid->item(gamma_M, 2)->text(), "1.40"); // the recommended values as edited
    EXPECT_EQ(window->runs(), runs);
    close_front();
    front("frmSetup");
    const int family = get<QComboBox>("cboProfType")->currentIndex();
    click("Cmd_nor");
    EXPECT_EQ(frame("Fra_beam"), "Bjelketype og Material");
    EXPECT_EQ(get<QComboBox>("cboProfType")->currentIndex(), family);
    EXPECT_EQ(frame("Fra_part_fac"), "Partialfaktorer");
    EXPECT_EQ(setup->windowTitle(), "Setup");

    const std::string shipped = contents(m_folder / "data" / "Kveldersetup.csv");
    click("Cmd_save");
    EXPECT_TRUE(prompter.messages.isEmpty()) << prompter.messages.join('|').toStdString();
    EXPECT_NE(contents(m_folder / "data" / "Kveldersetup.csv"), shipped);
    ok(setup);

    start();
    EXPECT_EQ(text("Lbl_gamma2"), "1.40 ");
    EXPECT_EQ(frame("Fra_beam"), "Bjelketype og Material");
}

TEST_F(DialogFlow, AFactorOfPointOneHoldsTheDialogAndTheTitleBarLeavesAWorkingWindow)
{
    start();
    const std::string file = contents(m_folder / "data" / "Kveldersetup.csv");
    QDialog* setup = open_by_menu("mnusetup", "frmSetup");
    int runs = window->runs();
    EXPECT_EQ(type("Txt_kcr_lam", "0.1"), 0);
    EXPECT_EQ(prompter.messages, QStringList{"Number is <= 0.1 "});
    EXPECT_TRUE(green("Txt_kcr_lam"));

    // Neither OK nor Save gets past it, and no run starts.
    ok(setup);
    click("Cmd_save");
    EXPECT_TRUE(setup->isVisible());
    EXPECT_TRUE(focus_in("Txt_kcr_lam"));
    EXPECT_EQ(contents(m_folder / "data" / "Kveldersetup.csv"), file);
    EXPECT_EQ(window->runs(), runs);

    EXPECT_EQ(type("Txt_kcr_lam", "0.11"), 1);
    EXPECT_FALSE(green("Txt_kcr_lam"));
    EXPECT_EQ(model->kcr_lam, 0.11F);

    // The title bar closes on a refused value, which gives way to the last
    // taken, and on a new country, which gives way to the one in force.
    prompter.messages.clear();
    const std::string annex = model->annex;
    choose("cmbCountry", Qt::Key_End);
    EXPECT_NE(model->annex, annex);
    EXPECT_EQ(type("Txt_kcr_lam", "0"), 0);
    setup->close();
    EXPECT_EQ(model->annex, annex);
    EXPECT_EQ(model->kcr_lam, 0.11F);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_EQ(type("Txtfelt_0", "7"), 1);
    EXPECT_EQ(prompter.messages.size(), 1);
}

TEST_F(DialogFlow, TheClassesOfAnLvlBeamLackServiceClassThreeAndKsysHoldsTheDialogAbove1Point2)
{
    start();
    choose("cboProfType", Qt::Key_Down); // laminated to kerto
    ASSERT_EQ(model->material_family, "kerto     ");
    QDialog* classes = open_by_menu("mnuklasse", "frmClass");
    EXPECT_FALSE(get("Opt_klimaklasse_2")->isEnabled());

    int runs = window->runs();
    click("Opt_Lastvarighet_4");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(text("Lbl_kmod2"), "1.10 ");

    EXPECT_EQ(type("Txt_ksy", "1.2"), 1);
    runs = window->runs();
    EXPECT_EQ(type("Txt_ksy", "1.21"), 0);
    EXPECT_EQ(prompter.messages, QStringList{" 1 <= ksys <= 1.2"});
    EXPECT_TRUE(green("Txt_ksy"));
    ok(classes);
    EXPECT_TRUE(classes->isVisible());
    EXPECT_TRUE(focus_in("Txt_ksy"));
    EXPECT_EQ(window->runs(), runs);

    EXPECT_EQ(type("Txt_ksy", "1.1"), 1);
    ok(classes);
    EXPECT_FALSE(classes->isVisible());
    EXPECT_EQ(text("Lbl_ksy2"), "1.10");
}

} // namespace
} // namespace kvelder::test
