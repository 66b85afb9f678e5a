// The setup and classes dialogs driven from the menu with keys and clicks.

#include "tests/gui/window_flow.h"

#include <QDialog>
#include <QPushButton>
#include <QTableWidget>

namespace kvelder::test {
namespace {

class SetupDialogFlow : public MainWindowFlow {
protected:
    QDialog* open_by_menu(const char* item, const char* form)
    {
        QMenuBar* bar = window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(get<QAction>(item)).center());
        return front(form);
    }
    bool focus_in(const char* name) { return front() != nullptr && QApplication::focusWidget() == get(name); }
    // Both dialogs have their Cmd_ok.
    void ok(QDialog* d) { QTest::mouseClick(d->findChild<QPushButton*>("Cmd_ok"), Qt::LeftButton); }
    void choose(const char* combo, Qt::Key key)
    {
        auto* c = get<QComboBox>(combo);
        c->setFocus(Qt::TabFocusReason);
        QTest::keyClick(c, key);
    }
};

TEST_F(SetupDialogFlow, ACountryTakesEffectOnOkAndTheSavedSetupWithItsLanguageIsWhatTheNextStartReads)
{
    start(); // the Norwegian annex, a laminated beam: gamma_M 1.15
    EXPECT_EQ(text("Lbl_gamma2"), "1.15 ");
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
    runs = window->runs();
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

    // A change of country keeps what was edited in the row left.
    choose("cmbCountry", Qt::Key_Home);
    choose("cmbCountry", Qt::Key_End);
    EXPECT_EQ(get<QLineEdit>("Txt_gamma_lam")->text(), "1.40");

    const std::string shipped = contents(m_folder / "data" / "Kveldersetup.csv");
    click("Cmd_save");
    EXPECT_TRUE(prompter.messages.isEmpty()) << prompter.messages.join('|').toStdString();
    EXPECT_NE(contents(m_folder / "data" / "Kveldersetup.csv"), shipped);
    ok(setup);

    start();
    EXPECT_EQ(model->gamma_lam, 1.4F);
    EXPECT_EQ(text("Lbl_gamma2"), "1.40 ");
    EXPECT_EQ(frame("Fra_beam"), "Bjelketype og Material");
}

TEST_F(SetupDialogFlow, AFactorOfPointOneHoldsTheDialogAndTheTitleBarLeavesAWorkingWindow)
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
    EXPECT_EQ(model->loading_flag, kFalse);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_EQ(type("Txtfelt_0", "7"), 1);
    EXPECT_EQ(prompter.messages.size(), 1);
}

TEST_F(SetupDialogFlow, TheClassesOfAnLvlBeamLackServiceClassThreeAndKsysHoldsTheDialogAbove1Point2)
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
    EXPECT_EQ(text("Lbl_ksy2"), "1.20");
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
