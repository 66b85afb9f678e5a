#pragma once

#include <string>
#include <string_view>

namespace kvelder {

// Texts inside project files are single bytes of Windows-1252 on every
// platform, so a file reads the same wherever it was written. In memory the
// program keeps UTF-8.

// UTF-8 to Windows-1252. A character the code page lacks becomes "?"; a byte
// that is no part of valid UTF-8 is kept as it is, so texts that came from a
// Windows-1252 data file go back unchanged.
std::string to_windows_1252(std::string_view utf8);

// Windows-1252 to UTF-8. The five bytes the code page leaves undefined map to
// the control characters of the same number, as Windows maps them.
std::string from_windows_1252(std::string_view bytes);

// A text as UTF-8 for showing it: the text itself where it is valid UTF-8,
// otherwise its bytes read as Windows-1252, as a data file from Windows holds them.
std::string as_utf8(std::string_view text);

} // namespace kvelder
