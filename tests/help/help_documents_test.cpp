// The manual and the update information as the build lays them out beside the
// program, and the tool that lays them out.

#include "tests/support/beams.h"

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

struct Output {
    int code = -1;
    std::string out;
};

// Runs a program with its arguments as they stand, no shell between.
Output run(const fs::path& program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromStdString(program.string()), arguments);
    Output r;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit) {
        r.code = process.exitCode();
        r.out = process.readAllStandardOutput().toStdString();
    }
    return r;
}

QString arg(const fs::path& path)
{
    return QString::fromStdString(path.string());
}

std::string collapsed(const std::string& text)
{
    return std::regex_replace(text, std::regex(R"(\s+)"), " ");
}

// The headings of a Markdown file as they read, without marks and code fences.
std::vector<std::string> headings(const fs::path& markdown)
{
    std::vector<std::string> found;
    std::ifstream in(markdown);
    bool code = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("```")) {
            code = !code;
        } else if (!code && line.starts_with('#')) {
            line = std::regex_replace(line, std::regex(R"(^#+\s*|[`*])"), "");
            found.push_back(collapsed(line));
        }
    }
    return found;
}

TEST(HelpDocuments, EveryHeadingOfTheMarkdownIsTextInTheBuiltPdf)
{
    const fs::path sources = KVELDER_HELP_SOURCES;
    for (const auto& [source, pdf] :
         {std::pair{"manual.md", "Kvelder manual.pdf"}, {"update.md", "Kvelder Update information.pdf"}}) {
        const fs::path built = fs::path(KVELDER_HELP_DIR) / pdf;
        ASSERT_TRUE(fs::is_regular_file(built)) << built;
        const Output text = run("pdftotext", {"-enc", "UTF-8", arg(built), "-"});
        ASSERT_EQ(text.code, 0) << built;
        const std::vector<std::string> wanted = headings(sources / source);
        EXPECT_GE(wanted.size(), 3U) << source;
        for (const std::string& heading : wanted) {
            EXPECT_NE(collapsed(text.out).find(heading), std::string::npos) << pdf << ": " << heading;
        }
    }
}

TEST(HelpDocuments, TheToolRefusesWhatItCannotReadOrWriteAndLeavesTheOldFile)
{
    const fs::path folder = scratch_folder() / "make_pdf";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path old_pdf = folder / "old.pdf";
    std::ofstream(old_pdf) << "old";
    const fs::path tool = KVELDER_MAKE_PDF;

    EXPECT_EQ(run(tool, {arg(folder / "missing.md"), arg(old_pdf)}).code, 2);
    std::ifstream in(old_pdf);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "old");

    const fs::path manual = fs::path(KVELDER_HELP_SOURCES) / "manual.md";
    EXPECT_EQ(run(tool, {arg(manual), arg(folder / "no folder" / "out.pdf")}).code, 2);
    EXPECT_EQ(run(tool, {arg(manual)}).code, 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

} // namespace
} // namespace kvelder::test
