// Test main for the widgets: they need a QApplication, and a display there
// need not be. The user's own settings stay out of reach of every test.

#include "tests/support/beams.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

QtMessageHandler qt_messages = nullptr;

// The offscreen platform tells of every window feature it lacks; nothing else is kept back.
void without_platform_notes(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        qt_messages(type, context, text);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    qt_messages = qInstallMessageHandler(without_platform_notes);
    QStandardPaths::setTestModeEnabled(true);
    const QString settings = QString::fromStdString((kvelder::test::scratch_folder() / "settings").string());
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, settings);
        QSettings::setPath(format, QSettings::SystemScope, settings);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
