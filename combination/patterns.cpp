#include "combination/patterns.h"

#include <array>
#include <cassert>
#include <initializer_list>
#include <vector>

namespace kvelder {
namespace {

using Pattern = std::vector<int>;
using PatternTable = std::vector<Pattern>;

// Rows are patterns 1, 2, ...: for 2 to 5 spans.
const std::array<PatternTable, 4>& tables()
{
    // clang-format off
    static const std::array<PatternTable, 4> t = {{
        {{}, {1, 2}, {1}, {2}},
        {{}, {1, 2, 3}, {1}, {2}, {3}, {1, 3}, {1, 2}, {2, 3}},
        {{}, {1, 2, 3, 4}, {1}, {2}, {3}, {4}, {1, 3}, {2, 4},
         {1, 2}, {2, 3}, {3, 4}, {1, 2, 4}, {3, 4, 1}},
        {{}, {1, 2, 3, 4, 5}, {1}, {2}, {3}, {4}, {5}, {1, 3}, {2, 4},
         {1, 2}, {2, 3}, {3, 4}, {4, 5}, {1, 2, 4}, {3, 4, 1}, {4, 5, 2}, {2, 3, 5}},
    }};
    // clang-format on
    return t;
}

} // namespace

int pattern_count(int nf)
{
    if (nf < 2 || nf > 5) {
        return 1;
    }
    return static_cast<int>(tables()[static_cast<std::size_t>(nf - 2)].size());
}

std::span<const int> Q1_pattern(int nf, int p)
{
    assert(nf >= 2 && nf <= 5 && p >= 1 && p <= pattern_count(nf));
    const Pattern& row = tables()[static_cast<std::size_t>(nf - 2)][static_cast<std::size_t>(p - 1)];
    return {row.data(), row.size()};
}

} // namespace kvelder
