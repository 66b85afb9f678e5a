#pragma once

#include "model/load_group.h"
#include "model/model.h"
#include "model/picture.h"

#include <array>
#include <cstdint>

namespace kvelder {

enum class LoadGroupId { G, Q1, Q2 };
enum class LoadTable { Uniform, Trapezoid, Point, Moment };

inline constexpr std::array<LoadGroupId, 3> kLoadGroups{LoadGroupId::G, LoadGroupId::Q1, LoadGroupId::Q2};
inline constexpr std::array<LoadTable, 4> kLoadTables{LoadTable::Uniform, LoadTable::Trapezoid,
                                                      LoadTable::Point, LoadTable::Moment};

// "G", "Q1" or "Q2".
const char* group_name(LoadGroupId id);

LoadGroup& group_of(Model& m, LoadGroupId id);
const LoadGroup& group_of(const Model& m, LoadGroupId id);
LoadPointLists& points_of(Model& m, LoadGroupId id);
// G_empty, Q1_empty or Q2_empty.
std::int16_t& empty_flag(Model& m, LoadGroupId id);
// The picture of the main window that shows the group.
Picture picture_of(LoadGroupId id);

// The deflection factor and the ULS factors of 6.10a and 6.10b of a group.
struct GroupFactors {
    float creep;
    float gamma_a;
    float gamma_b;
};
GroupFactors factors_of(const Model& m, LoadGroupId id);

// One load row of any table: its span, then its values in stored order
// (q; q1, q2, a, b; P, a; M, a). Values a table does not have are 0.
struct LoadRow {
    std::int16_t span = 0;
    std::array<float, 4> values{};

    friend bool operator==(const LoadRow&, const LoadRow&) = default;
};

// Rows a table holds at the most, and values a row of it carries.
int capacity(LoadTable table);
int value_count(LoadTable table);

// The stored row count of a table, held to 0 .. its capacity.
int row_count(const LoadGroup& g, LoadTable table);
void set_row_count(LoadGroup& g, LoadTable table, int count);

// Row k (1-based, within the capacity) of a table; set_row leaves the count alone.
LoadRow row(const LoadGroup& g, LoadTable table, int k);
void set_row(LoadGroup& g, LoadTable table, int k, const LoadRow& r);

// Empties a table: no rows, every slot 0.
void clear_table(LoadGroup& g, LoadTable table);

} // namespace kvelder
