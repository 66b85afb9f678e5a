// The main window driven as the engineer drives it: keys and clicks into its
// boxes, options and file menu, with every box and dialog answered by a script.

#include "tests/gui/window_flow.h"

namespace kvelder::test {
namespace {

TEST_F(MainWindowFlow, StartsOnTheExampleOrTheProjectOfTheCommandLineWithOneRun)
{
    start();
    EXPECT_EQ(window->runs(), 1);
    EXPECT_TRUE(prompter.messages.isEmpty());
    EXPECT_TRUE(focus_on("txtprosjekt"));
    EXPECT_FALSE(get<QAction>("mnuspace")->isVisible()); // a fresh store lists no project
    const QString example_moment = text("lbl_mom_0");

    // The project of the command line is the only beam calculated: its results show.
    const QString three = write("three spans.kvel", *three_spans());
    start("\"" + three.toStdString() + "\"");
    EXPECT_EQ(window->runs(), 1);
    EXPECT_EQ(get<InputBox>("Txtfelt_2")->text(), "6.000");
    EXPECT_TRUE(get("lbl_mom_2")->isVisible() && !text("lbl_mom_2").isEmpty());
    EXPECT_NE(text("lbl_mom_0"), example_moment);
    EXPECT_EQ(item("mnurecentfile_1"), "1. " + three);

    // A file that is not there leaves the example beam, calculated once.
    start(utf8_text(m_folder / "gone.kvel"));
    EXPECT_EQ(prompter.messages, QStringList{" Can't find file "});
    EXPECT_EQ(window->runs(), 1);
    EXPECT_EQ(text("lbl_mom_0"), example_moment);
    EXPECT_FALSE(get<QAction>("mnurecentfile_1")->isVisible());
}

TEST_F(MainWindowFlow, ListsOptionsAndChecksRecalculateAndSetWhatTheyEnable)
{
    start();
    // Kerto by the keyboard: free rectangles only, and its sizes in the boxes.
    auto* family = get<QComboBox>("cboProfType");
    family->setFocus();
    int runs = window->runs();
    QTest::keyClick(family, Qt::Key_Down);
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_FALSE(get("optStandard")->isEnabled() || get("optCircle")->isEnabled() ||
                 get("cboProf")->isEnabled());
    EXPECT_TRUE(get("txt_b1")->isEnabled() && get<QRadioButton>("optRect")->isChecked());
    EXPECT_EQ(get<InputBox>("txt_h1")->text().toStdString(),
              std::to_string(static_cast<int>(model->section_h)));
    QTest::keyClick(family, Qt::Key_Up);

    // Self weight, buckling and the patterns of Q1, each with one run.
    runs = window->runs();
    click("Check_profilvekt");
    click("Check_vipping");
    click("Opt_loadcomb2");
    EXPECT_EQ(window->runs(), runs + 3);
    EXPECT_EQ(model->profile_weight_on, kTrue);
    EXPECT_TRUE(get("Cmd_input_vipping")->isVisible() && !text("lbl_vipp_0").isEmpty());
    // One span has no patterns; a circle has no buckling check and no bearing rows.
    click("Optfelt_0");
    EXPECT_TRUE(get<QRadioButton>("Opt_loadcomb1")->isChecked());
    EXPECT_FALSE(get("Opt_loadcomb2")->isEnabled());
    click("optCircle");
    EXPECT_FALSE(get("Check_vipping")->isVisible() || get("txt_b1")->isEnabled());
    EXPECT_TRUE(get("txt_d")->isEnabled() && text("Lbl_uf_trykk_0").isEmpty());
    EXPECT_TRUE(prompter.messages.isEmpty());
}

TEST_F(MainWindowFlow, LeavingASpanBoxRecalculatesOrAsksForTheLengthOnce)
{
    start();
    // An emptied span keeps the focus: a click into another box leaves it again,
    // one message more, the other box untouched.
    type("Txtfelt_0", "");
    const int runs = window->runs();
    click("Txt_kc90");
    EXPECT_EQ(prompter.messages.size(), 2);
    EXPECT_TRUE(focus_on("Txtfelt_0"));
    EXPECT_FALSE(green("Txt_kc90"));
    EXPECT_EQ(window->runs(), runs);
    type("Txtfelt_0", "5", false);
    QTest::keyClick(get("Txtfelt_0"), Qt::Key_Return); // Enter leaves a box as Tab does
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(prompter.messages.size(), 2);
}

TEST_F(MainWindowFlow, EveryNumberBoxTakesAnyTextAndChangesOnlyItsOwnValue)
{
    start();
    const auto inputs = [this] {
        const Model& m = *model;
        return std::array<float, 7>{m.ffl_s(1), m.section_b,       m.section_h,        m.section_d,
                                    m.ffl_s(2), m.bearing_kc90(1), m.bearing_length(1)};
    };
    struct Case {
        const char* box;
        const char* option; // that enables it
        QString message;
        std::size_t input;
    };
    const Case cases[] = {{"Txtfelt_0", nullptr, "Length of span is missing", 0},
                          {"Txt_kc90", nullptr, " kc90 < 0 ", 5},
                          {"Txt_opp_L", nullptr, "Support length =< 0 ", 6},
                          {"txt_b1", "optRect", " b =< 0 ", 1},
                          {"txt_h1", "optRect", " h =< 0 ", 2},
                          {"txt_d", "optCircle", " d =< 0 ", 3}};
    const QStringList texts{"", "abc", "1e999", "-0", "nan", ",", "1,5", "1.5", QString(300, '9')};
    for (const Case& c : cases) {
        if (c.option != nullptr) {
            click(c.option);
        }
        const QString original = get<InputBox>(c.box)->text();
        const auto others = inputs();
        for (const QString& t : texts) {
            prompter.messages.clear();
            const int runs = type(c.box, t);
            const bool passes = t == "1,5" || t == "1.5";
            const std::string where = c.box + (" " + t.toStdString());
            EXPECT_EQ(prompter.messages, passes ? QStringList{} : QStringList{c.message}) << where;
            EXPECT_EQ(runs, passes ? 1 : 0) << where;
            EXPECT_EQ(green(c.box), !passes) << where;
            auto now = inputs();
            now[c.input] = others[c.input];
            EXPECT_EQ(now, others) << where;
        }
        type(c.box, original);
        EXPECT_EQ(inputs(), others) << c.box;
    }
}

TEST_F(MainWindowFlow, FewerSpansDropTheirLoadsAndLooseEndsBlankTheResults)
{
    start(); // the example's results stand until the project's run
    prompter.file_names = {write("three.kvel", *three_spans())};
    keys(QKeySequence::Open);
    ASSERT_EQ(model->nf, 3);
    click("Optfelt_1");
    EXPECT_EQ(model->G.uni_n, 2);
    EXPECT_EQ(model->Q1.pt_n, 0);
    EXPECT_FALSE(get("Txtfelt_2")->isVisible());
    EXPECT_EQ(window->runs(), 3);

    // One free end stands on two spans; two do not, and the results go blank.
    click("optSuppLeft_0");
    EXPECT_EQ(window->runs(), 4);
    click("optSuppRight_0");
    EXPECT_EQ(prompter.messages, QStringList{"Number of restraints are insufficient,the beam is unstable"});
    EXPECT_EQ(window->runs(), 4);
    EXPECT_TRUE(blank("Picresult") && blank("Picdisp"));
    click("optSuppRight_1");
    EXPECT_EQ(window->runs(), 5);
    EXPECT_FALSE(blank("Picresult"));

    // Back to three spans: the new span asks for its length, and its loads stay gone.
    click("Optfelt_2");
    EXPECT_EQ(prompter.messages.last(), "Length of span is missing");
    EXPECT_TRUE(focus_on("Txtfelt_2"));
    EXPECT_TRUE(get<QRadioButton>("optSuppLeft_1")->isChecked());
    EXPECT_EQ(type("Txtfelt_2", "6"), 1);
    EXPECT_EQ(window->runs(), 6);
    EXPECT_EQ(model->G.uni_n + model->Q1.pt_n, 2);
}

TEST_F(MainWindowFlow, FileMenuOpensAndSavesWhatTheWindowShowsOrChangesNothing)
{
    start();
    // A project that stops at the gate still leaves a window that works.
    auto no_span = example_beam();
    no_span->ffl_s(2) = 0;
    const QString gate = write("gate.kvel", *no_span);
    prompter.file_names = {gate};
    keys(QKeySequence::Open);
    click("Opt_610b");
    EXPECT_EQ(window->runs(), 3);
    EXPECT_EQ(type("Txtfelt_1", "4"), 1);

    // A file that is not there changes nothing.
    prompter.messages.clear();
    const auto listed = recent.keys;
    prompter.save_answers = {Answer::Discard};
    prompter.file_names = {to_qstring(m_folder / "gone.kvel")};
    keys(QKeySequence::Open);
    EXPECT_EQ(prompter.messages, QStringList{" Can't find file "});
    EXPECT_EQ(window->session().project_path, to_path(gate));
    EXPECT_EQ(recent.keys, listed);

    // Save takes what a box holds before it is left.
    type("txtprosjekt", "Hall & Co", false);
    keys(QKeySequence::Save);
    Model reread;
    LoadDialogs read{};
    EXPECT_FALSE(ReadProject(reread, to_path(gate), read).has_value());
    EXPECT_EQ(reread.prosjekt_s, "Hall & Co");

    // Save As onto a file that is there asks first: No keeps it, Yes replaces it.
    const fs::path other = m_folder / "other.kvel";
    std::ofstream(other) << "not a project";
    prompter.file_names = {to_qstring(other), to_qstring(other), std::nullopt};
    prompter.yes_answers = {false, true};
    menu("mnufileitem_3");
    EXPECT_EQ(prompter.questions.last(), to_qstring(other) + " already exists. Do you want to replace it?");
    EXPECT_EQ(contents(other), "not a project");
    EXPECT_EQ(window->session().project_path, to_path(gate));
    menu("mnufileitem_3");
    EXPECT_EQ(contents(other), contents(to_path(gate)));
    EXPECT_EQ(window->windowTitle().toStdString(), model->title_suffix + utf8_text(other));
    menu("mnufileitem_3");
    EXPECT_EQ(prompter.messages.last(), "Cancel were pressed");

    // The recent files show a path as it is, its "&" too.
    const QString amp = to_qstring(m_folder / "R&D.kvel");
    prompter.file_names = {amp};
    menu("mnufileitem_3");
    EXPECT_TRUE(get<QAction>("mnuspace")->isVisible() && get<QAction>("mnurecentfile_2")->isVisible());
    EXPECT_EQ(item("mnurecentfile_1"), "1. " + QString(amp).replace("&", "&&"));
    EXPECT_EQ(item("mnurecentfile_2"), "2. " + to_qstring(other));

    // A recent project opens in front of the others, after the question about the change.
    click("Opt_610a");
    prompter.save_answers = {Answer::Discard};
    const int runs = window->runs();
    menu("mnurecentfile_2");
    EXPECT_EQ(prompter.questions.last(), "Save changes to " + amp + "?");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(item("mnurecentfile_1"), "1. " + to_qstring(other));

    // A box that refuses its value refuses the save with its message.
    click("optRect");
    type("txt_b1", "0");
    const std::string saved = contents(other);
    prompter.messages.clear();
    menu("mnufileitem_2");
    EXPECT_EQ(prompter.messages, QStringList{" b =< 0 "});
    EXPECT_EQ(contents(other), saved);
}

TEST_F(MainWindowFlow, CaptionsFollowTheDesignSituationAndTheLanguageOfTheProject)
{
    start();
    EXPECT_EQ(frame("Fraresult"), "Results  (6.10a)");
    click("Opt_610b");
    EXPECT_EQ(frame("Fraresult"), "Results  (6.10b)");

    // A Norwegian project turns the window Norwegian, but for the words the form keeps.
    auto nor = example_beam();
    choose_language(*nor, "Nor");
    prompter.save_answers = {Answer::Discard};
    prompter.file_names = {write("norsk.kvel", *nor)};
    keys(QKeySequence::Open);
    EXPECT_EQ(prompter.questions, QStringList{"Save changes to New file?"});
    EXPECT_EQ(get<QMenu>("mnufile")->title(), "Fil ");
    EXPECT_EQ(item("mnuexit"), "Exit");
    EXPECT_EQ(text("Lblcontrvipp"), "Tor. buck");
    EXPECT_EQ(text("Lbl_lastvarig2"), "Halv\u00e5rs");
    EXPECT_EQ(get<QRadioButton>("optStandard")->text(), "Standerd");
    EXPECT_EQ(type("Txtfelt_0", ""), 0);
    EXPECT_EQ(prompter.messages, QStringList{"Feltlengde mangler"});
}

TEST_F(MainWindowFlow, AChangedBeamIsAskedAboutBeforeItIsThrownAway)
{
    start();
    // New commits the box first, so the typed span counts as a change.
    type("Txtfelt_0", "6", false);
    prompter.save_answers = {Answer::Cancel, Answer::Cancel};
    keys(QKeySequence::New);
    EXPECT_EQ(prompter.questions, QStringList{"Save changes to New file?"});
    EXPECT_EQ(get<InputBox>("Txtfelt_0")->text(), "6.000");
    EXPECT_EQ(window->runs(), 2);
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(prompter.questions.size(), 2);

    // Discard: the example beam, calculated once, and nothing to ask about.
    click("txtprosjekt"); // a box whose leaving does not recalculate
    const int runs = window->runs();
    prompter.save_answers = {Answer::Discard};
    keys(QKeySequence::New);
    EXPECT_EQ(get<InputBox>("Txtfelt_0")->text(), "5.000");
    EXPECT_EQ(window->runs(), runs + 1);
    EXPECT_EQ(window->session().project_path, "New File");
    keys(QKeySequence::New);
    EXPECT_EQ(window->runs(), runs + 2);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(prompter.questions.size(), 3);
}

// The pages of a PDF that Qt wrote, by its page objects.
int pdf_pages(const fs::path& pdf)
{
    const std::string bytes = contents(pdf);
    int pages = 0;
    for (std::size_t at = bytes.find("/Type /Page"); at != std::string::npos;
         at = bytes.find("/Type /Page", at + 1)) {
        pages += bytes.compare(at, 12, "/Type /Pages") != 0 ? 1 : 0;
    }
    return pages;
}

TEST_F(MainWindowFlow, PrintingGoesToTheChosenPrinterKeepsTheDetailAndRefusesStaleResults)
{
    start(); // two spans: two pages, three with the detailed pages
    const fs::path printed = m_folder / "printed.pdf";
    get<QAction>("mnumax2")->trigger(); // the print dialog cancelled: nothing at all
    EXPECT_FALSE(fs::exists(printed));
    prompter.printer_file = to_qstring(printed);
    get<QAction>("mnumax1")->trigger();
    EXPECT_EQ(pdf_pages(printed), 2);
    get<QAction>("mnumax2")->trigger();
    EXPECT_EQ(pdf_pages(printed), 3);
    get<QAction>("mnumax1")->trigger(); // detailed from now on
    EXPECT_EQ(pdf_pages(printed), 3);

    const fs::path saved = m_folder / "report";
    prompter.file_names = {to_qstring(saved)};
    get<QAction>("mnupdf")->trigger();
    EXPECT_EQ(pdf_pages(m_folder / "report.pdf"), 3);

    // A span being typed commits first, and a failing one stops the printing.
    fs::remove(printed);
    type("Txtfelt_0", "", false);
    get<QAction>("mnumax1")->trigger();
    EXPECT_FALSE(fs::exists(printed));
    EXPECT_EQ(prompter.messages.last(), "Length of span is missing");
    type("Txtfelt_0", "5");
    // Results of a beam that no longer stands are not printed.
    click("optSuppLeft_0");
    click("optSuppRight_0");
    get<QAction>("mnupdf")->trigger();
    get<QAction>("mnumax1")->trigger();
    EXPECT_FALSE(fs::exists(printed));
    EXPECT_EQ(prompter.messages.last(),
              "The results do not match the input. Correct the input before printing.");
    EXPECT_EQ(prompter.messages.count(prompter.messages.last()), 2);
}

} // namespace
} // namespace kvelder::test
