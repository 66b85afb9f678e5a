#pragma once

#include <optional>
#include <vector>

namespace kvelder {

// Which state of the last run's loading gave each governing value: found by
// running the beam once more and watching the envelopes take their values in.

// A state of the loading: a load pattern with the groups folded in so far. A
// patterned run takes in G alone, then G and Q2, and then Q1 on the spans of
// each further pattern; a run of the total load takes in all three at once.
struct LoadState {
    int pattern = 0;
    bool Q2 = false;           // whether Q2 had been folded in
    std::vector<int> Q1_spans; // the spans that carried Q1; none without Q1

    friend bool operator==(const LoadState&, const LoadState&) = default;
};

// A value an envelope keeps, where it stands and the state that put it there.
struct GoverningValue {
    LoadState state;
    float x = 0;     // m from the left end of the span; 0 for a support
    float value = 0; // the envelope's value: kN, kNm or mm

    friend bool operator==(const GoverningValue&, const GoverningValue&) = default;
};

// None where the check has nothing to govern: a nought value, or lateral
// buckling out of force.
struct SpanGoverning {
    std::optional<GoverningValue> bending, shear, buckling, deflection;
};

struct SupportGoverning {
    std::optional<GoverningValue> R_max, R_min, MR_max, MR_min;
};

struct GoverningStates {
    std::vector<SpanGoverning> spans;       // span i at i - 1
    std::vector<SupportGoverning> supports; // reaction k at k - 1
};

} // namespace kvelder
