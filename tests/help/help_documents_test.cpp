// The manual and the update information as the build lays them out beside the
// program, and the tool that lays them out.

#include "files/path_text.h"
#include "tests/support/beams.h"

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

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
    process.start(QString::fromStdString(utf8_text(program)), arguments);
    Output r;
    if (process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit) {
        r.code = process.exitCode();
        r.out = process.readAllStandardOutput().toStdString();
    }
    return r;
}

QString arg(const fs::path& path)
{
    return QString::fromStdString(utf8_text(path));
}

// The whole of each document is laid out: its first and last headings are
// text in the built PDF.
TEST(HelpDocuments, EachPdfHoldsItsDocumentToTheEnd)
{
    for (const auto& [pdf, first, last] :
         {std::tuple{"Kvelder manual.pdf", "Kvelder manual", "The headless command kvelder-cli"},
          {"Kvelder Update information.pdf", "Version 1.3.0", "Help"}}) {
        const Output text = run("pdftotext", {arg(path_from_utf8(KVELDER_HELP_DIR) / pdf), "-"});
        ASSERT_EQ(text.code, 0) << pdf;
        const auto at_first = text.out.find(first);
        EXPECT_NE(at_first, std::string::npos) << pdf;
        EXPECT_NE(text.out.find(std::string("\n") + last + "\n", at_first), std::string::npos) << pdf;
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

    const fs::path manual = path_from_utf8(KVELDER_HELP_SOURCES) / "manual.md";
    EXPECT_EQ(run(tool, {arg(manual), arg(folder / "no folder" / "out.pdf")}).code, 2);
    EXPECT_EQ(run(tool, {arg(manual)}).code, 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

} // namespace
} // namespace kvelder::test
