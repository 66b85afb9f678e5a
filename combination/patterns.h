#pragma once

#include <span>

namespace kvelder {

// The load patterns of Q1 over the spans of a continuous beam. Pattern 1 has no
// Q1 at all and pattern 2 has it on every span; the rest load single spans,
// every second span, neighbouring pairs and a few triples. G and Q2 act in full
// in every pattern.

// Number of patterns for nf spans (2 to 5); 1 for a single span.
int pattern_count(int nf);

// The spans that carry Q1 in pattern p, in the order in which they are loaded.
std::span<const int> Q1_pattern(int nf, int p);

} // namespace kvelder
