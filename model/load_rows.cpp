#include "model/load_rows.h"

#include <algorithm>

namespace kvelder {
namespace {

// The columns of one table, span first, for the accessors below.
template <int N> struct Columns {
    std::int16_t& count;
    Table<std::int16_t, N>& span;
    std::array<Table<float, N>*, 4> values;
};

template <typename Visit> decltype(auto) with_table(LoadGroup& g, LoadTable table, Visit visit)
{
    switch (table) {
    case LoadTable::Uniform:
        return visit(Columns<LoadGroup::kUniRows>{g.uni_n, g.uni_span, {&g.uni_q, nullptr, nullptr, nullptr}});
    case LoadTable::Trapezoid:
        return visit(Columns<LoadGroup::kTrapRows>{g.trap_n, g.trap_span, {&g.trap_q1, &g.trap_q2, &g.trap_a, &g.trap_b}});
    case LoadTable::Point:
        return visit(Columns<LoadGroup::kPointRows>{g.pt_n, g.pt_span, {&g.pt_P, &g.pt_a, nullptr, nullptr}});
    case LoadTable::Moment:
        break;
    }
    return visit(Columns<LoadGroup::kMomentRows>{g.mom_n, g.mom_span, {&g.mom_M, &g.mom_a, nullptr, nullptr}});
}

} // namespace

const char* picture_name(Picture p)
{
    switch (p) {
    case Picture::Picfelt:
        return "Picfelt";
    case Picture::Picegenlast:
        return "Picegenlast";
    case Picture::Picnyttelast:
        return "Picnyttelast";
    case Picture::Picnyttelast_2:
        return "Picnyttelast_2";
    case Picture::Picresult:
        return "Picresult";
    case Picture::Picdisp:
        break;
    }
    return "Picdisp";
}

const char* group_name(LoadGroupId id)
{
    return id == LoadGroupId::G ? "G" : id == LoadGroupId::Q1 ? "Q1" : "Q2";
}

LoadGroup& group_of(Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G : id == LoadGroupId::Q1 ? m.Q1 : m.Q2;
}

const LoadGroup& group_of(const Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G : id == LoadGroupId::Q1 ? m.Q1 : m.Q2;
}

LoadPointLists& points_of(Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G_points : id == LoadGroupId::Q1 ? m.Q1_points : m.Q2_points;
}

std::int16_t& empty_flag(Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G_empty : id == LoadGroupId::Q1 ? m.Q1_empty : m.Q2_empty;
}

Picture picture_of(LoadGroupId id)
{
    return id == LoadGroupId::G ? Picture::Picegenlast
           : id == LoadGroupId::Q1 ? Picture::Picnyttelast
                                   : Picture::Picnyttelast_2;
}

GroupFactors factors_of(const Model& m, LoadGroupId id)
{
    switch (id) {
    case LoadGroupId::G:
        return {m.creep_G, m.gamma_G_a, m.gamma_G_b};
    case LoadGroupId::Q1:
        return {m.creep_Q1, m.gamma_Q1_a, m.gamma_Q1_b};
    case LoadGroupId::Q2:
        break;
    }
    return {m.creep_Q2, m.gamma_Q2_a, m.gamma_Q2_b};
}

int capacity(LoadTable table)
{
    constexpr std::array<int, 4> rows{LoadGroup::kUniRows, LoadGroup::kTrapRows, LoadGroup::kPointRows,
                                      LoadGroup::kMomentRows};
    return rows[static_cast<std::size_t>(table)];
}

int value_count(LoadTable table)
{
    constexpr std::array<int, 4> values{1, 4, 2, 2};
    return values[static_cast<std::size_t>(table)];
}

int row_count(const LoadGroup& g, LoadTable table)
{
    return with_table(const_cast<LoadGroup&>(g), table,
                      [table](auto c) { return std::clamp<int>(c.count, 0, capacity(table)); });
}

void set_row_count(LoadGroup& g, LoadTable table, int count)
{
    with_table(g, table, [count](auto c) { c.count = static_cast<std::int16_t>(count); });
}

LoadRow row(const LoadGroup& g, LoadTable table, int k)
{
    return with_table(const_cast<LoadGroup&>(g), table, [k](auto c) {
        LoadRow r{c.span(k), {}};
        for (std::size_t v = 0; v < c.values.size() && c.values[v] != nullptr; ++v) {
            r.values[v] = (*c.values[v])(k);
        }
        return r;
    });
}

void set_row(LoadGroup& g, LoadTable table, int k, const LoadRow& r)
{
    with_table(g, table, [k, &r](auto c) {
        c.span(k) = r.span;
        for (std::size_t v = 0; v < c.values.size() && c.values[v] != nullptr; ++v) {
            (*c.values[v])(k) = r.values[v];
        }
    });
}

void clear_table(LoadGroup& g, LoadTable table)
{
    with_table(g, table, [](auto c) {
        c.count = 0;
        c.span.fill(0);
        for (auto* column : c.values) {
            if (column != nullptr) {
                column->fill(0);
            }
        }
    });
}

} // namespace kvelder
