// kvelder-cli's commands that draw: the pictures, the report, and the results
// and trace files of the golden beams, whose digests Qt's hash reads.

#include "drawing/path_qstring.h"
#include "files/path_text.h"
#include "tests/app/cli_run.h"
#include "tests/support/process.h"

#include <QCryptographicHash>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

TEST(CliPlot, SixPicturesNamedAfterTheirBoxes)
{
    const fs::path folder = scratch_folder() / "pictures";
    const CliRun r = run({"plot", "-o", utf8_text(folder), "--size", "640x240"});
    ASSERT_EQ(r.exit, 0) << r.err;
    for (const char* name :
         {"Picfelt", "Picegenlast", "Picnyttelast", "Picnyttelast_2", "Picresult", "Picdisp"}) {
        const QString png = to_qstring(folder / (std::string(name) + ".png"));
        EXPECT_EQ(QImageReader(png, "png").size(), QSize(640, 240)) << name;
    }

    const std::string blocked = scratch("blocked");
    std::ofstream(blocked) << "a file where the folder should be";
    const CliRun refused = run({"plot", "-o", blocked});
    EXPECT_EQ(refused.exit, 2);
    EXPECT_NE(refused.err.find("no folder"), std::string::npos) << refused.err;
}

// The words and numbers of a PDF, as pdftotext reads them: the text is vector text.
std::vector<std::string> pdf_words(const std::string& pdf)
{
    const ProcessResult reader = run_program("pdftotext", {pdf, "-"}, scratch_folder());
    EXPECT_EQ(reader.exit, 0) << "pdftotext: " << reader.err;
    std::istringstream text(reader.out);
    return {std::istream_iterator<std::string>(text), {}};
}

// The report writes the separator of the machine it runs on, a point or a
// comma; from_chars, unlike strtod, ignores the locale Qt has set.
bool holds_number(const std::vector<std::string>& words, double value)
{
    return std::any_of(words.begin(), words.end(), [value](std::string w) {
        std::replace(w.begin(), w.end(), ',', '.');
        double v = 0;
        const auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), v);
        return ec == std::errc{} && end == w.data() + w.size() && std::abs(v - value) < 0.0051;
    });
}

// The report holds a header on every page and, as calc gives them, the
// material, each span's usage factors and each support's reaction.
TEST(CliReport, ThePdfHoldsWhatCalcGives)
{
    const std::string five =
        description("five.json", R"({"language": "Nor", "ffl_s": [4.0, 5.0, 3.5, 6.0, 4.5],
        "nsupLeft_s": "I", "loadcomb_option": 2,
        "G": {"uni": [[1, 1.5], [2, 1.5], [3, 1.5], [4, 1.5], [5, 1.5]], "pt": [[4, 8.0, 2.5]], "mom": [[3, 4.0, 1.5]]},
        "Q1": {"uni": [[1, 3.0], [3, 3.0]], "trap": [[5, 0.0, 4.0, 0.5, 4.0]], "mom": [[4, 3.0, 3.0]]}})");
    for (const auto& [input, pages] : {std::pair{std::string(), 2}, {five, 5}}) {
        Args args{"report", "-o", scratch("report.pdf")};
        Args calc{"calc"};
        if (!input.empty()) {
            args.insert(args.begin() + 1, input);
            args.push_back("--detailed");
            calc.push_back(input);
        }
        const CliRun r = run(args);
        ASSERT_EQ(r.exit, 0) << r.err;
        const std::vector<std::string> words = pdf_words(scratch("report.pdf"));
        const json result = json::parse(run(calc).out);
        const bool english = input.empty();
        EXPECT_EQ(std::count(words.begin(), words.end(), english ? "Page:" : "Side:"), pages) << input;
        EXPECT_NE(std::find(words.begin(), words.end(), result["material"]["name"].get<std::string>()),
                  words.end());
        for (const json& check : result["checks"]) {
            for (const char* key : {"Uf_pos", "Uf_neg", "Uf_tau"}) {
                EXPECT_TRUE(holds_number(words, check[key].get<double>()))
                    << input << " span " << check["span"] << key;
            }
        }
        // Each page, rendered, has ink, and none in a band along the paper's edges.
        const QString base = QString::fromStdString(scratch("page"));
        run_program("pdftoppm", {"-r", "20", "-png", scratch("report.pdf"), scratch("page")},
                    scratch_folder());
        for (int page = 1; page <= pages; ++page) {
            const QImage image(base + QStringLiteral("-%1.png").arg(page));
            ASSERT_FALSE(image.isNull()) << input << " page " << page;
            const int band = image.width() / 40;
            bool inked = false, edge = false;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const bool ink = qGray(image.pixel(x, y)) < 200;
                    inked = inked || ink;
                    edge = edge || (ink && (x < band || y < band || x >= image.width() - band ||
                                            y >= image.height() - band));
                }
            }
            EXPECT_TRUE(inked && !edge) << input << " page " << page;
        }
        for (const json& support : result["bearing"]) {
            if (support.contains("R")) { // a built-in end carries no bearing check
                EXPECT_TRUE(holds_number(words, support["R"].get<double>()))
                    << input << " node " << support["node"];
            }
        }
        // The detailed printout names the pattern behind each span's moment.
        for (const json& span : input.empty() ? json::array() : result["governing"]["spans"]) {
            const int pattern = span["bending"]["pattern"].get<int>();
            const std::string named = pattern > 1 ? "nr." + std::to_string(pattern - 1)
                                                  : span["bending"]["loads"].get<std::string>();
            EXPECT_NE(std::find(words.begin(), words.end(), named), words.end()) << "span " << span["span"];
        }
    }

    const CliRun failing = run({"report", description("bad_row.json", R"({"G": {"uni": [[3, 2.0]]}})"), "-o",
                                scratch("failing.pdf")});
    EXPECT_EQ(failing.exit, 1);
    EXPECT_FALSE(fs::exists(scratch("failing.pdf")));
}

// The results and both trace files of a set of beams, kept from before the
// program's layers were last rearranged: every later build must give them
// byte for byte.
TEST(CliGolden, ResultsAndTracesStayByteForByte)
{
    const fs::path golden = path_from_utf8(KVELDER_GOLDEN_DIR);
    std::map<std::string, std::string> digests; // "beam/file" -> sha256
    std::istringstream listed(file_text(golden / "traces.sha256"));
    for (std::string digest, name; listed >> digest >> name;) {
        digests[name] = digest;
    }
    int beams = 0;
    for (const auto& entry : fs::directory_iterator(golden / "beams")) {
        const std::string name = utf8_text(entry.path().stem());
        const fs::path folder = scratch_folder() / "golden" / name;
        fs::remove_all(folder);
        const CliRun r = run({"calc", utf8_text(entry.path())}, folder);
        EXPECT_EQ(r.exit, name == "refused" ? 1 : 0) << name;
        EXPECT_EQ(r.out, file_text(golden / "results" / (name + ".json"))) << name;
        for (const char* trace : {"Resultater", "Geometri"}) {
            const auto expected = digests.find(name + "/" + trace);
            if (expected == digests.end()) {
                EXPECT_FALSE(fs::exists(folder / trace)) << name << "/" << trace;
                continue;
            }
            const std::string bytes = file_text(folder / trace);
            const QByteArray sha =
                QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256);
            EXPECT_EQ(sha.toHex().toStdString(), expected->second) << name << "/" << trace;
        }
        ++beams;
    }
    EXPECT_EQ(beams, 12);
}

} // namespace
} // namespace kvelder::test
