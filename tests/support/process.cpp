#include "tests/support/process.h"

#include "tests/support/beams.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

std::string file_text(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

#ifdef _WIN32

std::wstring wide(const std::string& utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end())).wstring();
}

// One argument as CommandLineToArgvW splits it off again: in double quotes,
// a quote escaped by a backslash and the backslashes before either doubled.
std::wstring argv_quoted(const std::wstring& arg)
{
    std::wstring quoted = L"\"";
    for (auto c = arg.begin();; ++c) {
        std::size_t backslashes = 0;
        for (; c != arg.end() && *c == L'\\'; ++c) {
            ++backslashes;
        }
        if (c == arg.end()) {
            quoted.append(2 * backslashes, L'\\');
            break;
        }
        if (*c == L'"') {
            quoted.append(2 * backslashes + 1, L'\\');
        } else {
            quoted.append(backslashes, L'\\');
        }
        quoted.push_back(*c);
    }
    return quoted + L"\"";
}

// cmd.exe, which _wsystem runs, would take these characters for itself; a
// caret before each hands it on to the program unchanged. With every quote
// escaped, cmd.exe sees no quoted text in which they would count otherwise.
std::wstring cmd_escaped(const std::wstring& text)
{
    std::wstring escaped;
    for (const wchar_t c : text) {
        if (std::wstring_view(L"()%^\"<>&|").find(c) != std::wstring_view::npos) {
            escaped.push_back(L'^');
        }
        escaped.push_back(c);
    }
    return escaped;
}

int run_command(const fs::path& program, const std::vector<std::string>& args, const fs::path& out,
                const fs::path& err)
{
    // The quotes around the whole line are those cmd.exe /c takes off first.
    std::wstring line = L"\"\"" + program.wstring() + L"\"";
    for (const std::string& arg : args) {
        line += L" " + cmd_escaped(argv_quoted(wide(arg)));
    }
    line += L" >\"" + out.wstring() + L"\" 2>\"" + err.wstring() + L"\"\"";
    return _wsystem(line.c_str());
}

#else

// One argument for sh: in single quotes, each quote in it closed, escaped and reopened.
std::string sh_quoted(const std::string& arg)
{
    std::string quoted = "'";
    for (const char c : arg) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

int run_command(const fs::path& program, const std::vector<std::string>& args, const fs::path& out,
                const fs::path& err)
{
    std::string line = sh_quoted(program.string());
    for (const std::string& arg : args) {
        line += " " + sh_quoted(arg);
    }
    line += " >" + sh_quoted(out.string()) + " 2>" + sh_quoted(err.string());
    const int status = std::system(line.c_str());
    return status != -1 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

} // namespace

ProcessResult run_program(const fs::path& program, const std::vector<std::string>& args,
                          const fs::path& folder)
{
    static int runs = 0;
    const std::string name = "process-" + std::to_string(++runs);
    const fs::path out = fs::absolute(scratch_folder() / (name + ".out"));
    const fs::path err = fs::absolute(scratch_folder() / (name + ".err"));
    // The program starts in the folder this process is in.
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    ProcessResult r;
    r.exit = run_command(program, args, out, err);
    fs::current_path(before);
    r.out = file_text(out);
    r.err = file_text(err);
    fs::remove(out);
    fs::remove(err);
    return r;
}

} // namespace kvelder::test
