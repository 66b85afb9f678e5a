#include "gui/recent_files_settings.h"

#include "drawing/path_qstring.h"

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

std::filesystem::path RecentFilesSettings::value(int number) const
{
    return to_path(m_settings.value(key(number)).toString());
}

void RecentFilesSettings::set_value(int number, const std::filesystem::path& path)
{
    m_settings.setValue(key(number), to_qstring(path));
    m_settings.sync();
}

} // namespace kvelder
