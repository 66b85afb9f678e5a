#include "drawing/path_qstring.h"

#include "files/path_text.h"

#include <QByteArray>

#include <string_view>

namespace kvelder {

QString to_qstring(const std::filesystem::path& path)
{
    return QString::fromStdString(utf8_text(path));
}

std::filesystem::path to_path(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return path_from_utf8(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

} // namespace kvelder
