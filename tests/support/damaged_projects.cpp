#include "tests/support/damaged_projects.h"

#include "files/project_file.h"
#include "tests/support/beams.h"

#include <cstring>

namespace kvelder::test {

std::vector<Bytes> seed_projects()
{
    std::vector<Bytes> seeds;
    seeds.push_back(project_bytes(*example_beam()));
    seeds.push_back(project_bytes(*loaded_beam()));
    auto tube = loaded_beam();
    tube->section_form = "Tube";
    tube->standard_section = kFalse;
    tube->section_d = 250.0F;
    seeds.push_back(project_bytes(*tube));
    return seeds;
}

Bytes damage(Bytes b, std::mt19937& rng)
{
    const auto pick = [&rng](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng);
    };
    const auto any_byte = [&rng] {
        return static_cast<std::byte>(std::uniform_int_distribution<int>(0, 255)(rng));
    };
    switch (pick(6)) {
    case 0:
        b.resize(pick(b.size()));
        break;
    case 1:
        for (std::size_t n = 1 + pick(4); n > 0; --n) {
            b[pick(b.size())] = any_byte();
        }
        break;
    case 2: { // an integer of the record
        const std::int16_t extremes[] = {-32768, -2, -1, 0, 1, 2, 5, 6, 7, 11, 400, 32767};
        const std::size_t at = b.size() - 2 - pick(2600);
        const auto v = static_cast<std::uint16_t>(extremes[pick(std::size(extremes))]);
        b[at] = static_cast<std::byte>(v & 0xFF);
        b[at + 1] = static_cast<std::byte>(v >> 8);
        break;
    }
    case 3: { // a float of the record: huge, tiny, negative
        const float values[] = {1e30F, -1e30F, 1e-30F, -5.0F, 0.0F, 40000.0F, 0.001F};
        const std::size_t at = b.size() - 4 - pick(2600);
        std::uint32_t v = 0;
        std::memcpy(&v, &values[pick(std::size(values))], 4);
        for (std::size_t k = 0; k < 4; ++k) {
            b[at + k] = static_cast<std::byte>((v >> (8 * k)) & 0xFF);
        }
        break;
    }
    case 4: {
        const auto at = static_cast<std::ptrdiff_t>(pick(b.size()));
        b.insert(b.begin() + at, 1 + pick(8), any_byte());
        break;
    }
    default: {
        const std::size_t at = pick(b.size());
        const std::size_t n = std::min(b.size() - at, 1 + pick(8));
        b.erase(b.begin() + static_cast<std::ptrdiff_t>(at), b.begin() + static_cast<std::ptrdiff_t>(at + n));
        break;
    }
    }
    return b;
}

} // namespace kvelder::test
