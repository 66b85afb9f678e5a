#pragma once

#include <cstddef>
#include <random>
#include <vector>

namespace kvelder::test {

using Bytes = std::vector<std::byte>;

// Project files of the example beam, the loaded beam and a circular section.
std::vector<Bytes> seed_projects();

// One damage: a cut, changed bytes, an integer or float of the record set to an
// extreme, bytes put in or taken out.
Bytes damage(Bytes b, std::mt19937& rng);

} // namespace kvelder::test
