#pragma once

// The main window as the engineer drives it, for flows of keys and clicks:
// every box and dialog is answered by a script.

#include "drawing/path_qstring.h"
#include "files/path_text.h"
#include "files/project_file.h"
#include "files/start_values.h"
#include "gui/input_box.h"
#include "gui/main_window.h"
#include "gui/picture_box.h"
#include "gui/prompter.h"
#include "tests/support/beams.h"
#include "ui/edits.h"
#include "ui/load_checks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include <deque>
#include <fstream>

// Texts as the failures of the checks show them.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace kvelder::test {

namespace fs = std::filesystem;
using Answer = Prompter::Answer;

// Answers from queues and keeps every text it was shown. Each box takes the
// activation from the window while it is up and gives it back, as a modal box
// does, so that the focus-outs it causes reach the boxes; none waits for a person.
class ScriptedPrompter final : public Prompter {
public:
    QStringList messages;  // every message, in order
    QStringList questions; // save-changes and yes/no questions
    std::deque<Answer> save_answers;
    std::deque<bool> yes_answers;
    std::deque<std::optional<QString>> file_names;

    void message(QWidget* p, const QString&, const QString& text, bool) override
    {
        modal(p);
        messages << text;
    }
    Answer save_changes(QWidget* p, const QString&, const QString& text) override
    {
        return next(p, save_answers, Answer::Cancel, text);
    }
    bool yes_no(QWidget* p, const QString&, const QString& text) override
    {
        return next(p, yes_answers, false, text);
    }
    std::optional<QString> open_file_name(QWidget* p, const QString&) override { return next(p, file_names); }
    std::optional<QString> save_file_name(QWidget* p, const QString&) override { return next(p, file_names); }
    QStringList opened; // the documents the window had opened, in order
    bool open_document(const QString& path) override
    {
        opened << path;
        return true;
    }
    // A printer that writes a PDF to `printer_file`; cancelled while it is empty.
    QString printer_file;
    bool choose_printer(QWidget* p, QPrinter& printer) override
    {
        modal(p);
        if (printer_file.isEmpty()) {
            return false;
        }
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(printer_file);
        return true;
    }
    std::optional<QString> pdf_file_name(QWidget* p, const QString&) override { return next(p, file_names); }

private:
    template <typename T>
    T next(QWidget* parent, std::deque<T>& queue, T otherwise = {}, QString question = {})
    {
        modal(parent);
        if (!question.isEmpty()) {
            questions << question;
        }
        if (queue.empty()) {
            ADD_FAILURE() << "a question the script does not answer";
            return otherwise;
        }
        otherwise = queue.front();
        queue.pop_front();
        return otherwise;
    }
    void modal(QWidget* parent)
    {
        m_box.show();
        m_box.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_box));
        m_box.hide();
        QWidget* window = parent->window();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
    }
    QWidget m_box;
};

class MainWindowFlow : public ::testing::Test {
protected:
    void SetUp() override
    {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }

    // The window as the program starts it, on the data folder of the sources
    // and on a point machine whatever this one is.
    void start(const std::optional<std::string>& project = {})
    {
        window.reset();
        model = std::make_unique<Model>();
        recent.keys.clear();
        prompter.messages.clear();
        // A copy of the shipped data that the setup dialog may rewrite; a second
        // start in the same test reads what the first left there.
        const fs::path data = m_folder / "data";
        if (!fs::exists(data)) {
            fs::copy(source_data_dir(), data);
        }
        const std::vector<DataFileNote> notes = start_up(*model, data, kPointMachine);
        dialogs = load_dialogs(*model);
        window = std::make_unique<MainWindow>(*model, dialogs, prompter, recent,
                                              WindowFolders{help_folder, m_folder, data});
        window->show();
        window->begin(notes, project);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    // A control of the window itself before one of its forms: the detailed
    // results have their txt_b1 and txt_h1 too.
    template <typename W = QWidget> W* get(const char* name) const
    {
        W* w = window->centralWidget()->findChild<W*>(name);
        if (w == nullptr) {
            w = window->findChild<W*>(name);
        }
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    QString text(const char* label) const { return get<QLabel>(label)->text(); }
    QString frame(const char* name) const { return get<QGroupBox>(name)->title(); }
    QString item(const char* name) const { return get<QAction>(name)->text(); }
    bool blank(const char* picture) const
    {
        const QImage image = get<PictureBox>(picture)->image();
        QImage white = image;
        white.fill(Qt::white);
        return !image.isNull() && image == white;
    }
    bool green(const char* box) const
    {
        return get(box)->palette().color(QPalette::Base) == QColor(0, 255, 0);
    }
    bool focus_on(const char* name)
    {
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get()) && QApplication::focusWidget() == get(name);
    }

    // An option takes the click on its mark, at its left end.
    void click(const char* name)
    {
        QWidget* w = get(name);
        const bool button = qobject_cast<QAbstractButton*>(w) != nullptr;
        QTest::mouseClick(w, Qt::LeftButton, {}, button ? QPoint(6, w->height() / 2) : w->rect().center());
    }
    // Types over the whole text of a box of the window (or of the dialog `in`),
    // clicking into it unless it has the focus, and leaves it by Tab; the
    // recalculations that the leaving ran.
    int type(const char* name, const QString& text, bool leave = true, QWidget* in = nullptr)
    {
        InputBox* box = in != nullptr ? in->findChild<InputBox*>(name) : get<InputBox>(name);
        if (!box->hasFocus()) {
            QTest::mouseClick(box, Qt::LeftButton);
        }
        QApplication::processEvents();
        EXPECT_TRUE(box->hasFocus() && box->selectedText() == box->text()) << name;
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
        const int runs = window->runs();
        if (leave) {
            QTest::keyClick(box, Qt::Key_Tab);
        }
        return window->runs() - runs;
    }
    void keys(QKeySequence::StandardKey key)
    {
        ASSERT_FALSE(QKeySequence(key).isEmpty());
        QWidget* target = QApplication::focusWidget();
        QTest::keySequence(target != nullptr ? target : window.get(), QKeySequence(key));
    }
    // Opens a menu with the mouse and clicks one of its items.
    void menu(const char* name, const char* menu_name = "mnufile")
    {
        auto* file = get<QMenu>(menu_name);
        QMenuBar* bar = window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(file->menuAction()).center());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(file));
        QTest::mouseClick(file, Qt::LeftButton, {}, file->actionGeometry(get<QAction>(name)).center());
    }

    // The dialog in front, made active (without a window manager nothing
    // activates it) and checked by name; null when another or none is in front.
    static QDialog* front(const char* form = nullptr)
    {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (d == nullptr || (form != nullptr && d->objectName() != form)) {
            ADD_FAILURE() << (form != nullptr ? form : "a dialog") << " is not in front";
            return nullptr;
        }
        d->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([d] { return QApplication::activeWindow() == d; }));
        return d;
    }
    // Whether the focus is on that control of the dialog in front.
    static bool focus_in(const char* name)
    {
        QDialog* d = front();
        return d != nullptr && QApplication::focusWidget() == d->findChild<QWidget*>(name);
    }
    // Closes the dialog in front by Esc and lets it go, so that the next one
    // opened is the one found by name.
    static void close_front()
    {
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString write(const std::string& name, Model& m)
    {
        EXPECT_FALSE(WriteProject(m, m_folder / name).has_value()) << name;
        return to_qstring(m_folder / name);
    }
    // The example beam on three spans of 4, 5 and 6 m, with G and Q1 on span 3.
    static std::unique_ptr<Model> three_spans()
    {
        auto m = example_beam();
        set_span_count(*m, 3);
        m->ffl_s(1) = 4.0F, m->ffl_s(3) = 6.0F;
        add_uniform(m->G, 3, 1.5F);
        add_point(m->Q1, 3, 7.5F, 3.0F);
        return m;
    }

    const fs::path m_folder = scratch_folder() / "window";
    fs::path help_folder; // where the window finds its manual
    ScriptedPrompter prompter;
    RecentFilesInMemory recent;
    std::unique_ptr<Model> model;
    LoadDialogs dialogs{};
    std::unique_ptr<MainWindow> window;
};

} // namespace kvelder::test
