// The manual and the update information as the build lays them out beside the
// program, and the tool that lays them out.

#include "files/path_text.h"
#include "tests/support/beams.h"
#include "tests/support/process.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

ProcessResult run(const fs::path& program, const std::vector<std::string>& args)
{
    return run_program(program, args, scratch_folder());
}

// The whole of each document is laid out: its first and last headings are
// text in the built PDF.
TEST(HelpDocuments, EachPdfHoldsItsDocumentToTheEnd)
{
    for (const auto& [pdf, first, last] :
         {std::tuple{"Kvelder manual.pdf", "Kvelder manual", "The headless command kvelder-cli"},
          {"Kvelder Update information.pdf", "Version 1.3.0", "Help"}}) {
        const ProcessResult text = run("pdftotext", {utf8_text(path_from_utf8(KVELDER_HELP_DIR) / pdf), "-"});
        ASSERT_EQ(text.exit, 0) << pdf;
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

    EXPECT_EQ(run(tool, {utf8_text(folder / "missing.md"), utf8_text(old_pdf)}).exit, 2);
    EXPECT_EQ(contents(old_pdf), "old");

    const fs::path manual = path_from_utf8(KVELDER_HELP_SOURCES) / "manual.md";
    EXPECT_EQ(run(tool, {utf8_text(manual), utf8_text(folder / "no folder" / "out.pdf")}).exit, 2);
    EXPECT_EQ(run(tool, {utf8_text(manual)}).exit, 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

} // namespace
} // namespace kvelder::test
