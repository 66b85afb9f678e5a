#include "gui/recent_files_settings.h"

#include <QString>

namespace kvelder {
namespace {

QString key(int number)
{
    return QStringLiteral("Recent Files/RecentFile%1").arg(number);
}

} // namespace

RecentFilesSettings::RecentFilesSettings()
    : m_settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Kvelder"),
                 QStringLiteral("Kvelder"))
{
}

std::string RecentFilesSettings::value(int number) const
{
    return m_settings.value(key(number)).toString().toStdString();
}

void RecentFilesSettings::set_value(int number, const std::string& path)
{
    m_settings.setValue(key(number), QString::fromStdString(path));
    m_settings.sync();
}

} // namespace kvelder
