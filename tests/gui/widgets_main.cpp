// Test main for the widgets: they need a QApplication, and a display there
// need not be. The user's own settings stay out of reach of every test.

#include "drawing/headless_platform.h"
#include "drawing/path_qstring.h"
#include "tests/support/beams.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    kvelder::without_platform_notes();
    QStandardPaths::setTestModeEnabled(true);
    const QString settings = kvelder::to_qstring(kvelder::test::scratch_folder() / "settings");
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, settings);
        QSettings::setPath(format, QSettings::SystemScope, settings);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
