// The layers of the source folders: every folder includes only its own headers
// and those of lower floors, and the folders of the core library include no Qt.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

// The floors, from the bottom up. A folder sees itself and the floors below,
// but no other folder of its own floor.
const std::map<std::string, int> kFloor{
    {"model", 0},  {"analysis", 1}, {"design", 1}, {"files", 2}, {"combination", 3}, {"ui", 3},
    {"recalc", 4}, {"drawing", 5},  {"report", 6}, {"help", 7},  {"gui", 8},   {"app", 9},
};

// The floors of the core library, which links the standard library only.
const int kTopCoreFloor = kFloor.at("recalc");

// One include line of a production folder. `target` is "folder/name.h" for a
// project header and "<QName>" for a Qt header.
struct Include {
    std::string file;
    int line = 0;
    std::string from;
    std::string target;
};

// "file:line: from -> target (why)" for each include that breaks the layers;
// `folders` are the folders that exist at the top of the sources.
std::vector<std::string> violations(const std::vector<Include>& includes,
                                    const std::set<std::string>& folders)
{
    std::vector<std::string> found;
    for (const Include& inc : includes) {
        const auto report = [&](const char* why) {
            found.push_back(inc.file + ":" + std::to_string(inc.line) + ": " + inc.from + " -> " +
                            inc.target + " (" + why + ")");
        };
        const int from = kFloor.at(inc.from);
        if (inc.target.starts_with('<')) {
            if (from <= kTopCoreFloor) {
                report("Qt in the core library");
            }
            continue;
        }
        const std::string to = inc.target.substr(0, inc.target.find('/'));
        if (!folders.contains(to)) {
            report("no such folder");
        } else if (to != inc.from && !(kFloor.contains(to) && kFloor.at(to) < from)) {
            report("not on a lower floor");
        }
    }
    return found;
}

std::vector<Include> includes_of(const std::filesystem::path& root)
{
    static const std::regex project(R"re(^\s*#\s*include\s*"([^"/]+/[^"]*)")re");
    static const std::regex qt(R"(^\s*#\s*include\s*(<Q[^>]*>))");
    std::vector<Include> found;
    for (const auto& [folder, floor] : kFloor) {
        if (!std::filesystem::is_directory(root / folder)) {
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            const std::string ext = entry.path().extension().string();
            if (!entry.is_regular_file() || (ext != ".h" && ext != ".cpp" && ext != ".in")) {
                continue;
            }
            std::ifstream in(entry.path());
            std::string text;
            for (int line = 1; std::getline(in, text); ++line) {
                std::smatch m;
                if (std::regex_search(text, m, project) || std::regex_search(text, m, qt)) {
                    found.push_back(
                        {entry.path().lexically_relative(root).generic_string(), line, folder, m[1]});
                }
            }
        }
    }
    return found;
}

TEST(Layering, ReportsEachKindOfBreachAndPassesTheRest)
{
    const std::set<std::string> folders{"model", "ui", "files", "combination", "drawing", "app", "tests"};
    const std::vector<Include> includes{
        {"model/a.h", 3, "model", "ui/messages.h"},         {"ui/b.cpp", 4, "ui", "combination/runner.h"},
        {"files/c.cpp", 5, "files", "<QString>"},           {"app/d.cpp", 6, "app", "nowhere/x.h"},
        {"drawing/e.cpp", 7, "drawing", "tests/support.h"}, {"ui/f.cpp", 8, "ui", "ui/messages.h"},
        {"ui/g.cpp", 9, "ui", "files/text_number.h"},       {"drawing/h.cpp", 1, "drawing", "<QPainter>"},
    };
    const std::vector<std::string> expected{
        "model/a.h:3: model -> ui/messages.h (not on a lower floor)",
        "ui/b.cpp:4: ui -> combination/runner.h (not on a lower floor)",
        "files/c.cpp:5: files -> <QString> (Qt in the core library)",
        "app/d.cpp:6: app -> nowhere/x.h (no such folder)",
        "drawing/e.cpp:7: drawing -> tests/support.h (not on a lower floor)",
    };
    EXPECT_EQ(violations(includes, folders), expected);
}

TEST(Layering, SourcesKeepTheirFloors)
{
    const std::filesystem::path root = KVELDER_SOURCE_DIR;
    std::set<std::string> folders;
    for (const auto& entry : std::filesystem::directory_iterator(root)) {
        if (entry.is_directory()) {
            folders.insert(entry.path().filename().string());
        }
    }
    const std::vector<Include> includes = includes_of(root);
    ASSERT_GT(includes.size(), 100U) << "no sources found under " << root;
    for (const std::string& breach : violations(includes, folders)) {
        ADD_FAILURE() << breach;
    }
}

} // namespace
} // namespace kvelder::test
