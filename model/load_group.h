#pragma once

#include "model/table.h"

#include <cstdint>

namespace kvelder {

// One load group (G, Q1 or Q2): four tables of load rows. Positions a and b are
// metres from the left end of the row's span; q, q1, q2 in kN/m, P in kN and
// M in kNm. Loads act downward when positive; a concentrated moment is positive
// clockwise. Only rows 1..count of a table are meaningful.
struct LoadGroup {
    static constexpr int kUniRows = 5;
    static constexpr int kTrapRows = 10;
    static constexpr int kPointRows = 10;
    static constexpr int kMomentRows = 6;

    std::int16_t uni_n = 0;
    Table<std::int16_t, kUniRows> uni_span;
    Table<float, kUniRows> uni_q;

    std::int16_t trap_n = 0;
    Table<std::int16_t, kTrapRows> trap_span;
    Table<float, kTrapRows> trap_q1;
    Table<float, kTrapRows> trap_q2;
    Table<float, kTrapRows> trap_a;
    Table<float, kTrapRows> trap_b;

    std::int16_t pt_n = 0;
    Table<std::int16_t, kPointRows> pt_span;
    Table<float, kPointRows> pt_P;
    Table<float, kPointRows> pt_a;

    std::int16_t mom_n = 0;
    Table<std::int16_t, kMomentRows> mom_span;
    Table<float, kMomentRows> mom_M;
    Table<float, kMomentRows> mom_a;

    bool empty() const { return uni_n == 0 && trap_n == 0 && pt_n == 0 && mom_n == 0; }

    friend bool operator==(const LoadGroup&, const LoadGroup&) = default;
};

// The positions that a group's point loads and concentrated moments add to the
// calculation grids, collected per span before they are merged (two per row).
struct LoadPointLists {
    Table<std::int16_t, 5> pt_count;
    Table2<float, 5, 2 * LoadGroup::kPointRows> pt_x;
    Table<std::int16_t, 5> mom_count;
    Table2<float, 5, 2 * LoadGroup::kMomentRows> mom_x;

    friend bool operator==(const LoadPointLists&, const LoadPointLists&) = default;
};

} // namespace kvelder
