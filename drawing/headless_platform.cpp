#include "drawing/headless_platform.h"

#include "drawing/path_qstring.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <filesystem>

namespace kvelder {
namespace {

QtMessageHandler g_qt_messages = nullptr;

void pass_all_but_platform_notes(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")) && g_qt_messages != nullptr) {
        g_qt_messages(type, context, text);
    }
}

} // namespace

void choose_headless_platform()
{
#ifndef Q_OS_WIN
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt wants a private runtime folder and complains on stderr without one.
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        std::error_code ec;
        const std::filesystem::path runtime = std::filesystem::temp_directory_path(ec) /
                                              to_path("kvelder-runtime-" + qEnvironmentVariable("USER"));
        std::filesystem::create_directory(runtime, ec);
        std::filesystem::permissions(runtime, std::filesystem::perms::owner_all, ec);
        if (!ec) {
            qputenv("XDG_RUNTIME_DIR", to_qstring(runtime).toUtf8());
        }
    }
#endif
}

void without_platform_notes()
{
    if (g_qt_messages == nullptr) {
        g_qt_messages = qInstallMessageHandler(pass_all_but_platform_notes);
    }
}

} // namespace kvelder
