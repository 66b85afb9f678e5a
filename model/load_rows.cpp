#include "model/load_rows.h"

#include <algorithm>

namespace kvelder {
namespace {

// Calls `visit` with the count, the span column and the value columns of one
// table, const where the group is.
template <typename Group, typename Visit> decltype(auto) with_table(Group& g, LoadTable table, Visit visit)
{
    switch (table) {
    case LoadTable::Uniform:
        return visit(g.uni_n, g.uni_span, std::array{&g.uni_q});
    case LoadTable::Trapezoid:
        return visit(g.trap_n, g.trap_span, std::array{&g.trap_q1, &g.trap_q2, &g.trap_a, &g.trap_b});
    case LoadTable::Point:
        return visit(g.pt_n, g.pt_span, std::array{&g.pt_P, &g.pt_a});
    case LoadTable::Moment:
        break;
    }
    return visit(g.mom_n, g.mom_span, std::array{&g.mom_M, &g.mom_a});
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
    return id == LoadGroupId::G    ? Picture::Picegenlast
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
    return with_table(g, table, [table](auto count, const auto&, const auto&) {
        return std::clamp<int>(count, 0, capacity(table));
    });
}

void set_row_count(LoadGroup& g, LoadTable table, int count)
{
    with_table(g, table,
               [count](auto& n, const auto&, const auto&) { n = static_cast<std::int16_t>(count); });
}

LoadRow row(const LoadGroup& g, LoadTable table, int k)
{
    return with_table(g, table, [k](auto, const auto& span, const auto& values) {
        LoadRow r{span(k), {}};
        for (std::size_t v = 0; v < values.size(); ++v) {
            r.values[v] = (*values[v])(k);
        }
        return r;
    });
}

void set_row(LoadGroup& g, LoadTable table, int k, const LoadRow& r)
{
    with_table(g, table, [k, &r](auto&, auto& span, const auto& values) {
        span(k) = r.span;
        for (std::size_t v = 0; v < values.size(); ++v) {
            (*values[v])(k) = r.values[v];
        }
    });
}

void clear_table(LoadGroup& g, LoadTable table)
{
    with_table(g, table, [](auto& count, auto& span, const auto& values) {
        count = 0;
        span.fill(0);
        for (auto* column : values) {
            column->fill(0);
        }
    });
}

} // namespace kvelder
