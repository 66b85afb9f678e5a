#pragma once

#include <QString>

#include <filesystem>

namespace kvelder {

// Where a QString meets a path: through the UTF-8 text of files/path_text, so
// that Qt and the standard library agree on every letter of a name.
QString to_qstring(const std::filesystem::path& path);
std::filesystem::path to_path(const QString& text);

} // namespace kvelder
