#pragma once

#include <string>
#include <vector>

namespace kvelder::cli {

// The arguments after the program's name as UTF-8 text. Windows hands main()
// its arguments in the ANSI code page, which has no "Ω", so there they are
// read again as the wide command line the user typed.
std::vector<std::string> utf8_arguments(int argc, char** argv);

// Makes the console show the UTF-8 text that the command prints (Windows; on
// other platforms the console takes UTF-8 already).
void print_utf8();

} // namespace kvelder::cli
