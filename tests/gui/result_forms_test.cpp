// The detailed results and the result grid as the engineer opens and drives them.

#include "recalc/main_calc.h"
#include "tests/gui/window_flow.h"
#include "ui/result_grid.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>

namespace kvelder::test {
namespace {

class ResultFormsFlow : public MainWindowFlow {
protected:
    // Types into a box of the dialog in front and leaves it by Tab.
    static void type_in(QDialog* dialog, const char* name, const QString& text)
    {
        auto* box = dialog->findChild<InputBox*>(name);
        ASSERT_NE(box, nullptr) << name;
        QTest::mouseClick(box, Qt::LeftButton);
        QApplication::processEvents();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Tab);
    }
    static QImage text_picture(QDialog* dialog)
    {
        return dialog->findChild<PictureBox*>("Pic_detailed")->image();
    }
};

TEST_F(ResultFormsFlow, ATrialHeightChangesTheBeamAndTheMainWindowOrIsRefusedKeepingThePicture)
{
    start();
    click("optRect");
    click("cmd_detres");
    QDialog* d = front("frm_Kvelder_detailedresult");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->windowTitle(), "Detailed results");
    EXPECT_FALSE(d->findChild<QLineEdit*>("Txt_stand_dim")->isVisible());
    EXPECT_TRUE(d->findChild<QWidget*>("Optspandet_1")->isVisible());
    EXPECT_FALSE(d->findChild<QWidget*>("Optspandet_2")->isVisible());
    const QImage span_1 = text_picture(d);
    QTest::mouseClick(d->findChild<QWidget*>("Optspandet_1"), Qt::LeftButton, {}, QPoint(6, 8));
    EXPECT_NE(text_picture(d), span_1);

    const QString usage = text("lbl_mom_0");
    const QImage before = text_picture(d);
    const int runs = window->runs();
    type_in(d, "txt_h1", "200");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(get<InputBox>("txt_h1")->text(), "200");
    EXPECT_NE(text("lbl_mom_0"), usage);
    const QImage after = text_picture(d);
    EXPECT_NE(after, before);

    // A height of 0: the message, the focus stays, the picture and results stand.
    type_in(d, "txt_h1", "0");
    EXPECT_EQ(prompter.messages, QStringList{" h =< 0 "});
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(text_picture(d), after);
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

TEST_F(ResultFormsFlow, TheGridListsTheBeamFromTheLastRunEachTimeItOpens)
{
    start();
    click("Cmd_grid_krefter");
    QDialog* d = front("frm_B_grid_mom_Shear_disp_comb");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->windowTitle(), "Results along the beam");
    auto* grid = d->findChild<QTableWidget*>("Grid");
    const ResultGrid texts = result_grid(*model);
    ASSERT_EQ(grid->rowCount(), kGridHeadRows + static_cast<int>(texts.rows.size()));
    EXPECT_EQ(grid->columnSpan(0, 0), 6);
    EXPECT_EQ(grid->item(1, 2)->text(), "Shear (kN)");
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
