// Thousands of damaged versions of real project files: each one opens or is
// refused, a refused one changes nothing, and an opened one recalculates.

#include "files/project_file.h"
#include "model/main_calc.h"
#include "tests/support/beams.h"
#include "ui/input_checks.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace kvelder::test {
namespace {

using Bytes = std::vector<std::byte>;

std::vector<Bytes> seed_files()
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

// One damage: a cut, changed bytes, a field set to an extreme, bytes put in or
// taken out.
Bytes mutate(Bytes b, std::mt19937& rng)
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

TEST(ProjectMutation, EveryDamagedFileOpensOrChangesNothing)
{
    const auto base = example_beam();
    const std::vector<Bytes> seeds = seed_files();
    std::mt19937 rng(20261122);
    auto m = std::make_unique<Model>();
    int opened = 0, refused = 0;
    for (int trial = 0; trial < 2000; ++trial) {
        const Bytes damaged = mutate(seeds[static_cast<std::size_t>(trial) % seeds.size()], rng);
        *m = *base;
        LoadDialogs dialogs;
        const auto why = ReadProjectBytes(*m, damaged, dialogs);
        if (why) {
            ++refused;
            ASSERT_FALSE(why->empty());
            ASSERT_TRUE(*m == *base) << "trial " << trial << ": refused (" << *why
                                     << ") but changed the model";
            continue;
        }
        ++opened;
        // What the window does next: the checks of the boxes, then the recalculation.
        check_all_boxes(*m);
        RecordingScreen screen;
        MainCalc(*m, screen, scratch_folder());
        ASSERT_EQ(m->nnodes, m->nf + 1) << "trial " << trial;
    }
    // Both outcomes occur often enough for the test to mean something.
    EXPECT_GT(opened, 400);
    EXPECT_GT(refused, 400);
}

} // namespace
} // namespace kvelder::test
