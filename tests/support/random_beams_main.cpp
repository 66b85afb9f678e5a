// Writes the first N random beams of the tests' seed as description files, so
// that two builds of kvelder-cli can be compared on them.

#include "tests/support/random_beams.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    int count = 0;
    const std::string n = argc == 3 ? argv[1] : "";
    const auto [end, ec] = std::from_chars(n.data(), n.data() + n.size(), count);
    if (argc != 3 || ec != std::errc{} || end != n.data() + n.size() || count < 1) {
        std::cerr << "usage: random_beams N FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[2];
    std::error_code made;
    std::filesystem::create_directories(folder, made);
    kvelder::test::RandomBeams beams(kvelder::test::kRandomBeamSeed);
    for (int k = 1; k <= count; ++k) {
        std::ofstream out(folder / ("beam_" + std::to_string(k) + ".json"), std::ios::binary);
        out << beams.next() << '\n';
        if (!out) {
            std::cerr << "random_beams: " << folder.string() << ": cannot be written\n";
            return 2;
        }
    }
    return 0;
}
