#include "gui/main_window.h"

#include "drawing/path_qstring.h"
#include "drawing/pictures.h"
#include "drawing/plot_surface.h"
#include "files/path_text.h"
#include "gui/annex_dialog.h"
#include "gui/buckling_dialog.h"
#include "gui/captioning.h"
#include "gui/class_dialog.h"
#include "gui/detailed_result_dialog.h"
#include "gui/factor_panel.h"
#include "gui/input_box.h"
#include "gui/load_dialog.h"
#include "gui/load_panel.h"
#include "gui/picture_box.h"
#include "gui/prompter.h"
#include "gui/result_grid_dialog.h"
#include "gui/result_panel.h"
#include "gui/section_finder_dialog.h"
#include "gui/section_forms.h"
#include "gui/section_panel.h"
#include "gui/setup_dialog.h"
#include "gui/span_panel.h"
#include "help/help_dialog.h"
#include "recalc/main_calc.h"
#include "report/print_report.h"
#include "report/report_pdf.h"
#include "ui/annex_table.h"
#include "ui/captions.h"
#include "ui/class_dialog.h"
#include "ui/load_dialog.h"
#include "ui/messages.h"
#include "ui/result_grid.h"
#include "ui/section_finder.h"
#include "ui/section_forms.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace kvelder {
namespace {

QGroupBox* picture_frame(const char* frame_name, const char* picture_name, QWidget* parent)
{
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(frame_name);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(new PictureBox(picture_name, frame));
    return frame;
}

// Holds the window's one guard for as long as a rule or a message box runs.
class GuardScope {
public:
    explicit GuardScope(bool& guard) : m_guard(guard), m_before(guard) { m_guard = true; }
    ~GuardScope() { m_guard = m_before; }
    GuardScope(const GuardScope&) = delete;
    GuardScope& operator=(const GuardScope&) = delete;

private:
    bool& m_guard;
    bool m_before;
};

} // namespace

MainWindow::MainWindow(Model& m, LoadDialogs& dialogs, Prompter& prompter, RecentFileStore& recent,
                       WindowFolders folders)
    : m_model(m), m_dialogs(dialogs), m_prompter(prompter), m_recent(recent), m_folders(std::move(folders)),
      m_trace(m_folders.scratch)
{
    setObjectName("frmMain");
    // Frame titles in the program's blue.
    setStyleSheet(QStringLiteral("QGroupBox { font-weight: bold; } "
                                 "QGroupBox::title { color: rgb(0, 85, 152); } "
                                 "QGroupBox * { font-weight: normal; }"));
    auto* central = new QWidget(this);
    auto* grid = new QGridLayout(central);
    grid->setContentsMargins(4, 2, 4, 4);
    grid->setSpacing(4);

    // Top: the program's heading and the project's.
    auto* top = new QHBoxLayout;
    m_headline = new QLabel(central);
    m_headline->setObjectName("lblHeadline");
    top->addWidget(m_headline);
    top->addSpacing(12);
    m_project = new InputBox("txtprosjekt", central);
    m_id = new InputBox("txtid", central);
    auto* project_label = new QLabel(central);
    project_label->setObjectName("lbl_prosjekt");
    auto* id_label = new QLabel(central);
    id_label->setObjectName("lblid");
    top->addWidget(project_label);
    top->addWidget(m_project, 1);
    top->addWidget(id_label);
    top->addWidget(m_id, 1);
    grid->addLayout(top, 0, 0, 1, 3);

    // Left: the beam input.
    auto* left_column = new QWidget(central);
    left_column->setMaximumWidth(310);
    auto* left = new QVBoxLayout(left_column);
    left->setContentsMargins(0, 0, 0, 0);
    auto* beam = new QGroupBox(left_column);
    beam->setObjectName("frabjelk");
    auto* beam_column = new QVBoxLayout(beam);
    beam_column->setContentsMargins(4, 2, 4, 2);
    m_spans = new SpanPanel(*this, beam);
    m_loads = new LoadPanel(*this, beam);
    beam_column->addWidget(m_spans);
    beam_column->addWidget(m_loads);
    left->addWidget(beam);
    left->addStretch();
    grid->addWidget(left_column, 1, 0);

    // Middle: the beam and its loads drawn to scale, and the diagrams.
    auto* middle = new QVBoxLayout;
    auto* loads = new QGroupBox(central);
    loads->setObjectName("frageolast");
    auto* loads_column = new QVBoxLayout(loads);
    loads_column->setContentsMargins(2, 2, 2, 2);
    loads_column->setSpacing(2);
    loads_column->addWidget(picture_frame("Fraegenlast", "Picegenlast", loads), 5);
    loads_column->addWidget(new PictureBox("Picnyttelast", loads), 4);
    loads_column->addWidget(new PictureBox("Picnyttelast_2", loads), 4);
    middle->addWidget(loads, 5);
    middle->addWidget(picture_frame("Fraresult", "Picresult", central), 3);
    middle->addWidget(picture_frame("Fradisp", "Picdisp", central), 2);
    grid->addLayout(middle, 1, 1);

    // Right: section, material, classes and factors.
    auto* right_column = new QWidget(central);
    right_column->setMaximumWidth(310);
    auto* right = new QVBoxLayout(right_column);
    right->setContentsMargins(0, 0, 0, 0);
    m_section = new SectionPanel(*this, right_column);
    m_factors = new FactorPanel(*this, right_column);
    right->addWidget(m_section);
    right->addWidget(m_factors);
    right->addStretch();
    grid->addWidget(right_column, 1, 2);

    m_results = new ResultPanel(*this, central);
    grid->addWidget(m_results, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    setCentralWidget(central);

    for (std::size_t k = 0; k < std::size(kPictures); ++k) {
        m_pictures[k] = findChild<PictureBox*>(picture_name(kPictures[k]));
        connect(m_pictures[k], &PictureBox::resized, this, &MainWindow::schedule_redraw);
    }
    for (const LoadGroupId id : kLoadGroups) {
        m_load_dialogs[static_cast<std::size_t>(id)] = new LoadDialog(*this, id, this);
        register_form(qs(load_dialog_name(id)), [this, id] { show_load_dialog(id); });
        connect(findChild<PictureBox*>(picture_name(picture_of(id))), &PictureBox::clicked, this,
                [this, id] { show_load_dialog(id); });
    }
    // The heading is kept as typed and needs no recalculation.
    for (auto [box, field] : {std::pair{m_project, &Model::prosjekt_s}, {m_id, &Model::id_s}}) {
        box->set_rule([this, box = box, field = field] {
            return run_box_rule(
                *box,
                [this, box, field] {
                    m_model.*field = box->text().toStdString();
                    return BoxResult{box->text(), std::nullopt, nullptr};
                },
                false);
        });
    }

    // The help buttons carry a question mark only.
    for (const char* name : {"Cmd_opplegg", "Cmd_loadcomb2", "Cmd_610a_b", "Cmd_vipp_text"}) {
        findChild<QWidget*>(name)->setMaximumWidth(28);
    }
    for (const HelpForm help : kHelpForms) {
        register_form(qs(help_form_name(help)), [this, help] { show_help(help); });
    }
    auto* setup = new SetupDialog(*this, m_folders.data, this);
    auto* classes = new ClassDialog(*this, this);
    auto* detailed = new DetailedResultDialog(*this, *findChild<QWidget*>("frmDimension"), this);
    auto* along = new ResultGridDialog(*this, this);
    auto* finder = new SectionFinderDialog(*this, this);
    const std::pair<const char*, std::function<void()>> forms[] = {
        {kPropertiesForm, [this] { open_section_properties(m_model, front()); }},
        {kBucklingForm, [this] { open_buckling_input(*this, front()); }},
        {kLefTableForm, [this] { open_lef_table(m_model.language, front()); }},
        {kAboutForm, [this] { open_about(m_model.language, front()); }},
        {kSetupForm, [setup] { setup->open_setup(); }},
        {kClassForm, [classes] { classes->open_classes(); }},
        {kDetailedResultForm, [detailed] { detailed->open_first_span(); }},
        {kResultGridForm, [along] { along->open(); }},
        {kSectionFinderForm, [finder] { finder->open_search(); }},
        {kAnnexForm, [this] { open_annexes(*this, front()); }},
    };
    // The box being typed in commits first; one that refuses keeps the focus
    // and no form opens.
    for (const auto& [name, open] : forms) {
        register_form(QString::fromLatin1(name), [this, open = open] {
            if (commit_focused_box()) {
                open();
            }
        });
    }
    for (auto [button, name] : {std::pair{"Cmd_tverrsnitt", kPropertiesForm},
                                {"Cmd_input_vipping", kBucklingForm},
                                {"cmd_detres", kDetailedResultForm},
                                {"Cmd_grid_krefter", kResultGridForm},
                                {"Cmd_finn_tverrsnitt", kSectionFinderForm}}) {
        connect(findChild<QPushButton*>(button), &QPushButton::clicked, this, [this, name = name] {
            if (!focus_on_refused_box()) {
                open_form(QString::fromLatin1(name));
            }
        });
    }
    build_menu();
    kvelder::apply_captions(*this, form_captions());
    resize(1024, 737);
}

MainWindow::~MainWindow() = default;

void MainWindow::build_menu()
{
    const auto item = [this](QMenu* menu, const char* name, const std::function<void()>& action,
                             QKeySequence keys = {}) {
        QAction* a = menu->addAction(QString());
        a->setObjectName(name);
        a->setShortcut(keys);
        connect(a, &QAction::triggered, this, action);
        return a;
    };
    m_file_menu = menuBar()->addMenu(QString());
    m_file_menu->setObjectName("mnufile");
    item(
        m_file_menu, "mnunew", [this] { file_new(); }, QKeySequence::New);
    item(
        m_file_menu, "mnufileitem_1", [this] { file_open(); }, QKeySequence::Open);
    item(
        m_file_menu, "mnufileitem_2", [this] { file_save(false); }, QKeySequence::Save);
    item(
        m_file_menu, "mnufileitem_3", [this] { file_save(true); }, QKeySequence::SaveAs);
    m_recent_separator = m_file_menu->addSeparator();
    m_recent_separator->setObjectName("mnuspace");
    for (int k = 0; k < kRecentFiles; ++k) {
        const QString name = QStringLiteral("mnurecentfile_%1").arg(k + 1);
        m_recent_items[static_cast<std::size_t>(k)] =
            item(m_file_menu, name.toLatin1().constData(), [this, k] { open_recent(k); });
    }
    m_file_menu->addSeparator();
    item(
        m_file_menu, "mnuexit", [this] { close(); }, QKeySequence::Quit);

    QMenu* print = menuBar()->addMenu(QString());
    print->setObjectName("mnuutskrift");
    item(print, "mnumax1", [this] { print_report(false); });
    item(print, "mnumax2", [this] { print_report(true); });
    print->addSeparator();
    item(print, "mnupdf", [this] { save_report_pdf(); });
    for (const auto& [name, form] : {std::pair{"mnusetup", kSetupForm}, {"mnuklasse", kClassForm}}) {
        QAction* a = menuBar()->addAction(QString());
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, [this, form = form] { open_form(form); });
    }
    QMenu* help = menuBar()->addMenu(QString());
    help->setObjectName("mnuHjelp");
    item(help, "mnuman", [this] { open_document("Kvelder manual.pdf"); });
    item(help, "mnuUpdate", [this] { open_document("Kvelder Update information.pdf"); });
    item(help, "mnuabout", [this] { open_form(QString::fromLatin1(kAboutForm)); });
    show_recent_files();
}

void MainWindow::begin(const std::vector<DataFileNote>& notes, const std::optional<std::string>& project)
{
    m_model.loading_flag = kTrue;
    m_session.current_dir = std::filesystem::current_path();
    fill();
    refresh(); // the notes come over the window in the beam's language
    for (const DataFileNote& note : notes) {
        show_message(data_file_message(m_model.language, note));
    }
    if (project) {
        // A project that cannot be opened leaves the example beam, as it stands.
        if (auto failure = open_file(m_model, m_session, command_line_path(*project), m_dialogs, m_recent)) {
            show_message(*failure);
        }
        fill();
        show_recent_files();
    }
    recalculate();
    m_model.loading_flag = kFalse;
    mark_unchanged(m_model, m_session);
    m_project->setFocus();
}

void MainWindow::recalculate()
{
    if (m_running) {
        return;
    }
    m_running = true;
    const bool past_gate = !data_missing(m_model);
    RecordingScreen screen;
    MainCalc(m_model, m_dialogs, screen, m_trace);
    // A loader's run clears the flag also when the beam stops at the gate.
    m_model.loading_flag = kFalse;
    if (past_gate) {
        m_blank.clear();
    }
    ++m_runs;
    m_running = false;
    // A failing load row leaves results of the rows before it only.
    m_results->set_checks_run(results_stand(m_model));
    refresh();
    // The failing load row's dialog and the messages of the run come now that
    // it is over, so that nothing modal opens inside it.
    for (const LoadRowFailure& failure : screen.load_failures) {
        m_load_dialogs[static_cast<std::size_t>(failure.group)]->open_rows(failure);
    }
    for (const Message& message : screen.messages) {
        show_message(message);
    }
    emit recalculated();
}

void MainWindow::refresh()
{
    apply_captions();
    m_spans->refresh();
    m_section->refresh();
    m_loads->refresh();
    m_factors->refresh();
    m_results->refresh();
    setWindowTitle(qs(window_title(m_model, m_session)));
    redraw_pictures();
}

void MainWindow::apply_captions()
{
    std::vector<Caption> captions =
        window_captions(m_model.language, m_model.comb_rule, m_model.duration_class);
    if (captions == m_captions) {
        return;
    }
    kvelder::apply_captions(*this, captions);
    m_captions = std::move(captions);
    // A panel's size follows the new words only when every level is told.
    for (QWidget* w : findChildren<QWidget*>()) {
        w->updateGeometry();
    }
    m_headline->setText(
        QStringLiteral("<span style='color: rgb(0, 85, 152); font-size: 13pt; font-weight: "
                       "bold'>%1</span> &nbsp; <span style='color: rgb(0, 85, 152)'>%2</span>")
            .arg(qs(program_title()), qs(program_line(m_model.language)).toHtmlEscaped()));
}

void MainWindow::fill()
{
    m_project->setText(qs(m_model.prosjekt_s));
    m_id->setText(qs(m_model.id_s));
    m_spans->fill();
    m_section->fill();
}

void MainWindow::redraw_pictures()
{
    m_redraw_due = false;
    std::array<QSize, std::size(kPictures)> sizes;
    for (std::size_t k = 0; k < sizes.size(); ++k) {
        sizes[k] = m_pictures[k]->size();
    }
    PictureImages images = draw_pictures(m_model, sizes, m_pictures[0]->devicePixelRatio());
    for (std::size_t k = 0; k < images.size(); ++k) {
        if (m_blank.count(kPictures[k]) != 0) {
            images[k].fill(Qt::white);
        }
        m_pictures[k]->set_image(std::move(images[k]));
    }
}

void MainWindow::schedule_redraw()
{
    if (!m_redraw_due) {
        m_redraw_due = true;
        QTimer::singleShot(0, this, [this] {
            if (m_redraw_due) {
                redraw_pictures();
            }
        });
    }
}

void MainWindow::show_message(const Message& message)
{
    const GuardScope guard(m_guard);
    const QString title = message.title.empty() ? qs(program_title()) : qs(message.title);
    m_prompter.message(front(), title, qs(message.text), false);
}

bool MainWindow::run_box_rule(InputBox& box, const std::function<BoxResult()>& apply, bool recalc)
{
    if (m_guard || m_running || filling()) {
        return true;
    }
    BoxResult result;
    {
        const GuardScope guard(m_guard);
        result = apply();
        box.setText(result.text);
        if (result.failure) {
            fail_box(result.focus != nullptr ? *result.focus : box, *result.failure);
            return false;
        }
        box.set_failed(false);
    }
    if (recalc) {
        recalculate();
    }
    return true;
}

void MainWindow::fail_box(InputBox& box, const std::optional<Message>& message)
{
    const GuardScope guard(m_guard);
    box.set_failed(true);
    box.setFocus();
    if (message) {
        show_message(*message);
        box.setFocus();
    }
    box.selectAll();
}

void MainWindow::show_load_dialog(LoadGroupId id)
{
    if (!focus_on_refused_box() && commit_focused_box()) {
        m_load_dialogs[static_cast<std::size_t>(id)]->open_rows();
    }
}

void MainWindow::show_help(HelpForm form)
{
    if (!focus_on_refused_box() && commit_focused_box()) {
        open_help(form, m_model, front());
    }
}

QWidget* MainWindow::front()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : this;
}

void MainWindow::register_form(const QString& name, std::function<void()> open)
{
    m_forms.emplace_back(name, std::move(open));
}

QStringList MainWindow::form_names() const
{
    QStringList names;
    for (const auto& form : m_forms) {
        names << form.first;
    }
    return names;
}

bool MainWindow::open_form(const QString& name)
{
    for (const auto& [form, open] : m_forms) {
        if (form == name) {
            open();
            return true;
        }
    }
    return false;
}

bool MainWindow::may_report()
{
    if (!commit_focused_box()) {
        return false;
    }
    if (!results_stand(m_model)) {
        show_message(report_refused(m_model.language));
        return false;
    }
    return true;
}

void MainWindow::print_report(bool detailed)
{
    if (!may_report()) {
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    if (!m_prompter.choose_printer(this, printer)) {
        return; // nothing printed, nothing said
    }
    // Once asked for, the detailed pages come with every later printout too.
    m_print.detail_mode = m_print.detail_mode || detailed;
    PlotSurface surface(printer);
    PrintReport(surface, m_model, report_stamp(m_session.project_path), m_print);
    surface.EndDoc();
}

void MainWindow::save_report_pdf()
{
    if (!may_report()) {
        return;
    }
    std::filesystem::path initial = m_session.project_path;
    initial.replace_extension(".pdf");
    const std::optional<QString> name = m_prompter.pdf_file_name(this, to_qstring(initial.filename()));
    if (!name) {
        return;
    }
    std::filesystem::path file = to_path(*name);
    if (!file.has_extension()) {
        file += ".pdf";
    }
    if (auto failed = write_report_pdf(m_model, file, report_stamp(m_session.project_path), m_print)) {
        show_message(report_unwritten(m_model.language, *failed));
    }
}

bool MainWindow::commit_focused_box()
{
    auto* box = qobject_cast<InputBox*>(QApplication::focusWidget());
    return box == nullptr || box->commit();
}

bool MainWindow::may_discard()
{
    if (!has_unsaved_changes(m_model, m_session)) {
        return true;
    }
    const Message q = save_changes_question(m_model.language, m_session);
    switch (m_prompter.save_changes(this, qs(q.title), qs(q.text))) {
    case Prompter::Answer::Save:
        file_save(false);
        return !has_unsaved_changes(m_model, m_session);
    case Prompter::Answer::Discard:
        return true;
    case Prompter::Answer::Cancel:
        break;
    }
    return false;
}

void MainWindow::load(const std::function<std::optional<Message>()>& loader)
{
    if (const std::optional<Message> failure = loader()) {
        show_message(*failure);
        return; // nothing has changed
    }
    fill();
    show_recent_files();
    recalculate();
    m_model.loading_flag = kFalse;
    mark_unchanged(m_model, m_session);
}

void MainWindow::file_new()
{
    if (!commit_focused_box() || !may_discard()) {
        return;
    }
    load([this]() -> std::optional<Message> {
        new_file(m_model, m_session, m_dialogs);
        return std::nullopt;
    });
}

void MainWindow::file_open()
{
    if (!commit_focused_box() || !may_discard()) {
        return;
    }
    const std::optional<QString> name = m_prompter.open_file_name(this, to_qstring(m_session.current_dir));
    if (!name) {
        show_message(cancel_message());
        return;
    }
    open_path(to_path(*name));
}

void MainWindow::open_path(const std::filesystem::path& path)
{
    load([this, &path] { return open_file(m_model, m_session, path, m_dialogs, m_recent); });
}

void MainWindow::open_recent(int index)
{
    if (!commit_focused_box() || !may_discard()) {
        return;
    }
    const std::vector<std::string> captions = ShowRecentFiles(m_recent);
    if (index < static_cast<int>(captions.size())) {
        open_path(recent_file_path(captions[static_cast<std::size_t>(index)]));
    }
}

void MainWindow::file_save(bool save_as)
{
    if (!commit_focused_box()) {
        return;
    }
    std::filesystem::path path = m_session.project_path;
    if (save_as) {
        const std::optional<QString> name = m_prompter.save_file_name(this, to_qstring(path));
        if (!name) {
            show_message(cancel_message());
            return;
        }
        path = with_default_extension(to_path(*name));
        std::error_code ec;
        if (std::filesystem::exists(path, ec)) {
            const Message q = overwrite_question(m_model.language, path);
            if (!m_prompter.yes_no(this, qs(q.title.empty() ? program_title() : q.title), qs(q.text))) {
                return;
            }
        }
    }
    if (const std::optional<Message> failure = save_file(m_model, m_session, path, save_as, m_recent)) {
        show_message(*failure);
        return;
    }
    show_recent_files();
    recalculate();
    mark_unchanged(m_model, m_session);
}

void MainWindow::show_recent_files()
{
    const std::vector<std::string> captions = ShowRecentFiles(m_recent);
    m_recent_separator->setVisible(!captions.empty());
    for (std::size_t k = 0; k < m_recent_items.size(); ++k) {
        const bool shown = k < captions.size();
        m_recent_items[k]->setVisible(shown);
        m_recent_items[k]->setText(shown ? qs(menu_text(captions[k])) : QString());
    }
}

void MainWindow::open_document(const std::string& name)
{
    const std::filesystem::path path = m_folders.help / path_from_utf8(name);
    std::error_code ec;
    if (!std::filesystem::exists(path, ec) || !m_prompter.open_document(to_qstring(path))) {
        show_message(document_missing(m_model.language, path));
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (commit_focused_box() && may_discard()) {
        event->accept();
    } else {
        event->ignore();
    }
}

} // namespace kvelder
