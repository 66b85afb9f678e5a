#pragma once

#include "combination/scratch_files.h"
#include "files/data_files.h"
#include "files/recent_files.h"
#include "gui/workspace.h"
#include "report/print_report.h"
#include "ui/captions.h"
#include "ui/file_command.h"

#include <QMainWindow>
#include <QStringList>

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QAction;
class QLabel;
class QMenu;

namespace kvelder {

class ClassDialog;
class FactorPanel;
class InputBox;
class LoadDialog;
class LoadPanel;
class PictureBox;
class Prompter;
class ResultPanel;
class SectionPanel;
class SetupDialog;
class SpanPanel;

// Where the window finds its documents and leaves the trace of every run.
struct WindowFolders {
    std::filesystem::path help;    // the manual and the update information
    std::filesystem::path scratch; // "Resultater" and "Geometri"
    std::filesystem::path data;    // the setup file the program started with, rewritten by the setup dialog
};

// The one window of the program. It assembles the panels and the menu, and
// owns the one recalculation entry point: every change of the beam ends there,
// and every picture and label is redrawn from the beam after it.
class MainWindow : public QMainWindow, public Workspace {
    Q_OBJECT
public:
    MainWindow(Model& m, LoadDialogs& dialogs, Prompter& prompter, RecentFileStore& recent,
               WindowFolders folders);
    ~MainWindow() override;

    // The start after the window is shown: the notes on the data files, the
    // project of the command line (UTF-8) if any, and the one recalculation.
    void begin(const std::vector<DataFileNote>& notes, const std::optional<std::string>& project);

    // How many recalculations have run, for the tests and the benchmarks.
    int runs() const { return m_runs; }
    const ProjectSession& session() const { return m_session; }

    // Workspace
    Model& model() override { return m_model; }
    LoadDialogs& dialogs() override { return m_dialogs; }
    void recalculate() override;
    void refresh() override;
    void fill_boxes() override { fill(); }
    void blank(Picture picture) override { m_blank.insert(picture); }
    void show_message(const Message& message) override;
    void fail_box(InputBox& box, const std::optional<Message>& message) override;
    void show_load_dialog(LoadGroupId id) override;
    void show_help(HelpForm form) override;
    bool run_box_rule(InputBox& box, const std::function<BoxResult()>& apply,
                      bool recalculate = true) override;
    bool filling() const override { return is_true(m_model.loading_flag); }

    // Redraws the six pictures from the beam at the size of their boxes.
    void redraw_pictures();

    // Every form the window opens, by its objectName, opened as its button or
    // menu item opens it; false for a name the window has no form of.
    QStringList form_names() const;
    bool open_form(const QString& name) override;

signals:
    void recalculated();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void build_menu();
    void apply_captions();
    // Puts the beam's texts into the boxes; the panels follow at the next refresh.
    void fill();
    void show_recent_files();
    // The box being edited takes its value first, as leaving it would. A menu
    // takes no focus, so a box that refused says why again; a button, which
    // took the focus and ran the rule, asks focus_on_refused_box instead.
    bool commit_focused_box();
    // The box with the focus commits, and the results belong to the input.
    bool may_report();
    void print_report(bool detailed);
    void save_report_pdf();
    // Asks about a changed beam; false when the engineer cancels.
    bool may_discard();
    void load(const std::function<std::optional<Message>()>& loader);
    void file_new();
    void file_open();
    void open_path(const std::filesystem::path& path);
    void file_save(bool save_as);
    void open_recent(int index);
    void open_document(const std::string& name);
    void schedule_redraw();
    // The dialog in front, over which a message or a form opened from it comes;
    // the window itself when none is open.
    QWidget* front();
    // A form that open_form reaches, opened by `open`.
    void register_form(const QString& name, std::function<void()> open);

    Model& m_model;
    LoadDialogs& m_dialogs;
    Prompter& m_prompter;
    RecentFileStore& m_recent;
    WindowFolders m_folders;
    ProjectSession m_session;
    ScratchFiles m_trace; // kept open from one run to the next
    PrintSession m_print;

    SpanPanel* m_spans = nullptr;
    SectionPanel* m_section = nullptr;
    LoadPanel* m_loads = nullptr;
    FactorPanel* m_factors = nullptr;
    ResultPanel* m_results = nullptr;
    InputBox* m_project = nullptr;
    InputBox* m_id = nullptr;
    QLabel* m_headline = nullptr;
    std::array<PictureBox*, 6> m_pictures{};
    std::array<LoadDialog*, 3> m_load_dialogs{};
    std::array<QAction*, kRecentFiles> m_recent_items{};
    QAction* m_recent_separator = nullptr;
    QMenu* m_file_menu = nullptr;

    std::vector<std::pair<QString, std::function<void()>>> m_forms;
    std::vector<Caption> m_captions; // as last applied
    std::set<Picture> m_blank;
    bool m_running = false; // a recalculation is under way
    bool m_guard = false;   // a box's rule or a message box is open
    bool m_redraw_due = false;
    int m_runs = 0;
};

} // namespace kvelder
