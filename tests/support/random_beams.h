#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace kvelder::test {

struct Draw;

// The seed of the digests kept in tests/app/golden/random_beams.sha256.
constexpr std::uint32_t kRandomBeamSeed = 20261124;

// Beam descriptions drawn at random from a seed, the same on every platform:
// every load kind, every end support, one to five spans, both load-combination
// options, sections, classes and lateral buckling.
class RandomBeams {
public:
    explicit RandomBeams(std::uint32_t seed);
    ~RandomBeams();

    // The next description, as kvelder-cli reads it.
    std::string next();

private:
    std::unique_ptr<Draw> m_draw;
};

} // namespace kvelder::test
