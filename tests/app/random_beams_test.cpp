// Hundreds of beams drawn at random with a fixed seed: every load kind, every
// end support, one to five spans, both load-combination options. Their results
// and both trace files must stay as they are byte for byte, whatever is done
// to make the recalculation faster; golden/random_beams.sha256 holds the
// digests the build made before any such work.

#include "files/path_text.h"
#include "tests/app/cli_run.h"
#include "tests/support/random_beams.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

constexpr int kBeams = 300;

std::string sha256(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

// One line a beam: its number, its exit code, and the digests of its output
// and of each trace file ("-" where it writes none).
std::string digest_line(int k, const std::string& description)
{
    const fs::path folder = scratch_folder() / "random" / std::to_string(k);
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::ofstream(folder / "beam.json") << description;
    const CliRun r = run({"calc", utf8_text(folder / "beam.json")}, folder);
    // The digests were kept before calc explained what governs: the results
    // before that explanation must stay as they were.
    std::string results = r.out;
    if (const auto governing = results.find(",\n  \"governing\": "); governing != std::string::npos) {
        results = results.substr(0, governing) + "\n}\n";
    }
    std::string line = std::to_string(k) + " " + std::to_string(r.exit) + " " + sha256(results);
    for (const char* trace : {"Resultater", "Geometri"}) {
        line += " " + (fs::exists(folder / trace) ? sha256(file_text(folder / trace)) : std::string("-"));
    }
    fs::remove_all(folder);
    return line;
}

TEST(RandomBeams, ResultsAndTracesStayByteForByte)
{
    RandomBeams beams(kRandomBeamSeed);
    std::istringstream kept(file_text(path_from_utf8(KVELDER_GOLDEN_DIR) / "random_beams.sha256"));
    int calculated = 0;
    for (int k = 1; k <= kBeams; ++k) {
        const std::string line = digest_line(k, beams.next());
        calculated += line.find(" 0 ") != std::string::npos ? 1 : 0;
        std::string expected;
        std::getline(kept, expected);
        EXPECT_EQ(line, expected);
    }
    std::string more;
    EXPECT_FALSE(std::getline(kept, more)) << "digests of more beams kept than drawn";
    // Most beams must get through their checks, or the traces test little.
    EXPECT_GT(calculated, kBeams * 2 / 3);
}

} // namespace
} // namespace kvelder::test
