// Hundreds of beams drawn at random with a fixed seed: every load kind, every
// end support, one to five spans, both load-combination options. Their results
// and both trace files must stay as they are byte for byte, whatever is done
// to make the recalculation faster; golden/random_beams.sha256 holds the
// digests the build made before any such work.

#include "app/cli/commands.h"
#include "tests/support/beams.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <gtest/gtest.h>

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace kvelder::test {
namespace {

namespace fs = std::filesystem;

constexpr int kBeams = 300;

// to_chars, unlike snprintf, writes the point whatever locale Qt has set.
std::string text(double v)
{
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, v, std::chars_format::fixed, 2).ptr};
}

// Draws from the standard engine by hand: the library's distributions may
// differ between platforms, its engine may not.
struct Draw {
    std::mt19937 engine;
    int whole(int low, int high)
    {
        return low + static_cast<int>(engine() % static_cast<std::uint32_t>(high - low + 1));
    }
    bool chance(int percent) { return whole(1, 100) <= percent; }
    std::string pick(int percent, const char* yes, const char* no) { return chance(percent) ? yes : no; }
    // A number with two decimals in [low, high].
    std::string number(double low, double high)
    {
        return text(whole(static_cast<int>(low * 100), static_cast<int>(high * 100)) / 100.0);
    }
};

std::string list(const std::vector<std::string>& items)
{
    std::string s = "[";
    for (std::size_t k = 0; k < items.size(); ++k) {
        s += (k == 0 ? "" : ", ") + items[k];
    }
    return s + "]";
}

// The rows of one load group on spans of lengths `L` (in hundredths of a metre).
std::string load_group(Draw& d, const std::vector<int>& L)
{
    const int nf = static_cast<int>(L.size());
    std::vector<std::string> uni, trap, pt, mom;
    for (int i = 1; i <= nf; ++i) {
        if (d.chance(50)) {
            uni.push_back(list({std::to_string(i), d.number(-1.0, 6.0)}));
        }
    }
    const auto place = [&d](int length, int low, int high) {
        return text(d.whole(low, high) * length / 10000.0);
    };
    // Trapezoids of one sign each, apart from each other: the first half of a
    // span and the second.
    for (int i = 1; i <= nf; ++i) {
        for (const auto& [from, to] : {std::pair{0, 50}, {50, 100}}) {
            if (d.chance(35)) {
                const int a = d.whole(from, to - 10), b = d.whole(a + 5, to);
                const double sign = d.chance(80) ? 1 : -1;
                trap.push_back(list({std::to_string(i), text(sign * d.whole(0, 800) / 100.0),
                                     text(sign * d.whole(0, 800) / 100.0), place(L[i - 1], a, a),
                                     place(L[i - 1], b, b)}));
            }
        }
    }
    for (auto [rows, low, high, kind] : {std::tuple{4, -5.0, 25.0, &pt}, {2, -6.0, 6.0, &mom}}) {
        for (int k = d.whole(0, rows); k > 0; --k) {
            const int i = d.whole(1, nf);
            kind->push_back(list({std::to_string(i), d.number(low, high), place(L[i - 1], 5, 95)}));
        }
    }
    return "{\"uni\": " + list(uni) + ", \"trap\": " + list(trap) + ", \"pt\": " + list(pt) +
           ", \"mom\": " + list(mom) + "}";
}

std::string random_beam(Draw& d)
{
    const int nf = d.whole(1, 5);
    std::vector<int> L;
    std::vector<std::string> spans, braces, factors;
    for (int i = 0; i < nf; ++i) {
        L.push_back(d.whole(150, 800));
        spans.push_back(text(L.back() / 100.0));
        braces.push_back(text(d.whole(std::min(35, L.back()), L.back()) / 100.0));
        factors.push_back(d.number(0.5, 1.5));
    }
    std::string s = "{\"nf\": " + std::to_string(nf) + ", \"ffl_s\": " + list(spans);
    const auto add = [&s](const char* key, const std::string& value) {
        s += ", \"" + (key + ("\": " + value));
    };
    const auto whole = [&d](int low, int high) { return std::to_string(d.whole(low, high)); };
    const char* kinds[] = {"\"F\"", "\"R\"", "\"I\""};
    add("nsupLeft_s", kinds[d.whole(0, 2)]);
    add("nsupRight_s", kinds[d.whole(0, 2)]);
    add("setup_row", whole(0, 2));
    add("language", d.pick(50, "\"Eng\"", "\"Nor\""));
    const int family = d.whole(0, 3);
    add("prof_type_index", std::to_string(family));
    if (family < 2 && d.chance(20)) {
        add("section_form", "\"Tube\"");
        add("section_d", whole(150, 450));
    } else if (d.chance(40)) {
        const std::string h = whole(100, 900); // drawn first, as the digests were made
        add("section_b", whole(45, 215));
        add("section_h", h);
    }
    add("loadcomb_option", whole(1, 2));
    add("comb_rule", d.pick(50, "\"610a\"", "\"610b\""));
    add("profile_weight_on", d.pick(50, "true", "false"));
    add("duration_class", whole(1, 5));
    add("service_class", whole(1, 2));
    add("ksys", d.number(1.0, 1.2));
    if (d.chance(50)) {
        add("vipping_off", "false");
        add("l_stag", list(braces));
        add("lef_factor", list(factors));
        add("load_location", whole(0, 1));
    }
    for (const char* group : {"G", "Q1", "Q2"}) {
        add(group, load_group(d, L));
    }
    return s + "}";
}

std::string file_text(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

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
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    std::ostringstream out, err;
    const int exit = cli::run_cli({"calc", (folder / "beam.json").string()}, source_data_dir(), out, err);
    fs::current_path(before);
    // The digests were kept before calc explained what governs: the results
    // before that explanation must stay as they were.
    std::string results = out.str();
    if (const auto governing = results.find(",\n  \"governing\": "); governing != std::string::npos) {
        results = results.substr(0, governing) + "\n}\n";
    }
    std::string line = std::to_string(k) + " " + std::to_string(exit) + " " + sha256(results);
    for (const char* trace : {"Resultater", "Geometri"}) {
        line += " " + (fs::exists(folder / trace) ? sha256(file_text(folder / trace)) : std::string("-"));
    }
    fs::remove_all(folder);
    return line;
}

TEST(RandomBeams, ResultsAndTracesStayByteForByte)
{
    Draw draw{std::mt19937(20261124)};
    std::istringstream kept(file_text(fs::path(KVELDER_GOLDEN_DIR) / "random_beams.sha256"));
    int calculated = 0;
    for (int k = 1; k <= kBeams; ++k) {
        const std::string line = digest_line(k, random_beam(draw));
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
