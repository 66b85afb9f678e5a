// kvelder: the window.
//
//     kvelder [PROJECT]
//     kvelder --screenshots DIR [PROJECT]
//
// The second form starts the window without a display, writes what it shows
// as DIR/frmMain.png after the start and its recalculation, and quits.

#include "drawing/headless_platform.h"
#include "drawing/path_qstring.h"
#include "files/data_files.h"
#include "files/path_text.h"
#include "files/program_folders.h"
#include "files/start_values.h"
#include "gui/main_window.h"
#include "gui/prompter.h"
#include "gui/recent_files_settings.h"
#include "ui/edits.h"
#include "ui/load_checks.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QStringList>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

namespace {

namespace fs = std::filesystem;

struct Arguments {
    std::optional<fs::path> screenshots;
    std::optional<std::string> project; // UTF-8, as typed
};

// The arguments as Qt reads them, in the user's own letters on every platform.
std::optional<Arguments> parse(const QStringList& arguments)
{
    Arguments a;
    for (qsizetype k = 1; k < arguments.size(); ++k) {
        const QString& arg = arguments[k];
        if (arg == "--screenshots" && k + 1 < arguments.size() && !a.screenshots) {
            a.screenshots = kvelder::to_path(arguments[++k]);
        } else if (!arg.startsWith("--") && !a.project) {
            a.project = arg.toStdString();
        } else {
            return std::nullopt;
        }
    }
    return a;
}

bool wants_screenshots(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc,
                       [](const char* arg) { return std::string(arg) == "--screenshots"; });
}

bool write_screenshot(QWidget& widget, const fs::path& folder)
{
    const fs::path file = folder / kvelder::to_path(widget.objectName() + ".png");
    if (!widget.grab().save(kvelder::to_qstring(file), "PNG")) {
        std::cerr << "kvelder: " << kvelder::utf8_text(file) << ": cannot be written\n";
        return false;
    }
    std::cout << kvelder::utf8_text(file) << '\n';
    return true;
}

// The window, then every form it opens, each as its button opens it.
int write_forms(kvelder::MainWindow& window, const fs::path& folder)
{
    std::error_code ec;
    fs::create_directories(folder, ec);
    QApplication::processEvents();
    window.redraw_pictures();
    if (!write_screenshot(window, folder)) {
        return 2;
    }
    for (const QString& name : window.form_names()) {
        window.open_form(name);
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog->objectName() != name) {
            std::cerr << "kvelder: the form " << name.toStdString() << " did not open\n";
            return 2;
        }
        QApplication::processEvents();
        const bool written = write_screenshot(*dialog, folder);
        dialog->reject();
        QApplication::processEvents();
        if (!written) {
            return 2;
        }
    }
    return 0;
}

// Every form in the beam's language in DIR, then in the other language in a
// folder of its name ("Nor" or "Eng").
int write_screenshots(kvelder::MainWindow& window, const fs::path& folder)
{
    const std::string language = window.model().language;
    if (const int failed = write_forms(window, folder)) {
        return failed;
    }
    const std::string other = language == "Eng" ? "Nor" : "Eng";
    kvelder::choose_language(window.model(), other);
    window.refresh();
    return write_forms(window, folder / other);
}

} // namespace

int main(int argc, char** argv)
{
    // The platform is chosen before the application starts.
    if (wants_screenshots(argc, argv)) {
        kvelder::choose_headless_platform();
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("Kvelder");
    if (wants_screenshots(argc, argv)) {
        kvelder::without_platform_notes();
    }
    const std::optional<Arguments> args = parse(QApplication::arguments());
    if (!args) {
        std::cerr << "usage: kvelder [--screenshots DIR] [PROJECT]\n";
        return 2;
    }

    auto model = std::make_unique<kvelder::Model>();
    const fs::path data = kvelder::user_data_dir();
    kvelder::fill_data_dir(data);
    const std::vector<kvelder::DataFileNote> notes = kvelder::start_up(*model, data);
    kvelder::LoadDialogs dialogs = kvelder::load_dialogs(*model);

    // A screenshot run leaves the user's recent files alone.
    std::unique_ptr<kvelder::RecentFileStore> recent;
    std::unique_ptr<kvelder::Prompter> prompter;
    if (args->screenshots) {
        recent = std::make_unique<kvelder::RecentFilesInMemory>();
        prompter = std::make_unique<kvelder::UnattendedPrompter>(&std::cerr);
    } else {
        recent = std::make_unique<kvelder::RecentFilesSettings>();
        prompter = std::make_unique<kvelder::DialogPrompter>();
    }
    const fs::path help = kvelder::help_dir(kvelder::program_dir());
    kvelder::MainWindow window(*model, dialogs, *prompter, *recent, {help, {}, data});
    window.show();
    window.begin(notes, args->project);
    if (args->screenshots) {
        return write_screenshots(window, *args->screenshots);
    }
    return QApplication::exec();
}
