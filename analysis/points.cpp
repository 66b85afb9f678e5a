#include "analysis/points.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kvelder {
namespace {

// The regular division always runs to position 51; the count decides how much
// of it belongs to the grid.
constexpr int kRegularPositions = 51;
constexpr double kCoincident = 0.0001;

template <int Cols>
void append_list(GridCounts& counts, GridPositions& x, int span,
                 const Table<std::int16_t, kMaxSpans>& list_count,
                 const Table2<float, kMaxSpans, Cols>& list_x)
{
    for (int k = 1; k <= list_count(span); ++k) {
        x(span, ++counts(span)) = list_x(span, k);
    }
}

// Points 3 to `count` of a span in ascending order, as exchanging every pair
// out of order sorts them. A grid of numbers sorts to the same bits by any
// method, and one already in order stays as it is; the exchange itself is
// kept for a grid with a value that is no number, whose order it alone defines.
void sort_interior(GridPositions& x, int span, int count)
{
    float* first = &x(span, 3);
    float* last = first + std::max(0, count - 2);
    if (std::any_of(first, last, [](float v) { return std::isnan(v); })) {
        for (float* k = first; k < last; ++k) {
            for (float* l = k + 1; l < last; ++l) {
                if (*k > *l) {
                    std::swap(*k, *l);
                }
            }
        }
    } else if (!std::is_sorted(first, last)) {
        std::sort(first, last);
    }
}

} // namespace

void divide_spans(const Model& m, GridCounts& counts, int n, GridPositions& x)
{
    for (int i = 1; i <= m.nf; ++i) {
        const float L = m.ffl_s(i);
        const float dx = L / static_cast<float>(n);
        x(i, 1) = 0;
        x(i, 2) = L;
        float pos = 0;
        for (int j = 3; j <= kRegularPositions; ++j) {
            pos = pos + dx;
            x(i, j) = pos;
        }
        counts(i) = static_cast<std::int16_t>(n + 1);
    }
}

void merge_load_points(const Model& m, GridCounts& counts, GridPositions& x)
{
    for (int i = 1; i <= m.nf; ++i) {
        append_list(counts, x, i, m.G_points.pt_count, m.G_points.pt_x);
        append_list(counts, x, i, m.Q1_points.pt_count, m.Q1_points.pt_x);
        append_list(counts, x, i, m.G_points.mom_count, m.G_points.mom_x);
        append_list(counts, x, i, m.Q1_points.mom_count, m.Q1_points.mom_x);
    }
}

void normalise_grid(const Model& m, GridCounts& counts, int n, GridPositions& x)
{
    for (int i = 1; i <= m.nf; ++i) {
        const int count = counts(i);
        if (count > n + 1) {
            float work[kMaxPoints] = {};
            const int len = count - 2;
            for (int k = 0; k < len; ++k) {
                work[k] = x(i, k + 3);
            }
            for (int k = 0; k < len; ++k) {
                for (int l = k + 1; l < len; ++l) {
                    if (kCoincident >= std::fabs(static_cast<double>(work[l]) - work[k])) {
                        work[l] = 0;
                    }
                }
            }
            int kept = 0;
            for (int k = 0; k < len; ++k) {
                if (work[k] > 0) {
                    x(i, 3 + kept++) = work[k];
                }
            }
            counts(i) = static_cast<std::int16_t>(2 + kept);
        }

        sort_interior(x, i, counts(i));
    }
}

void collect_load_points(Model& m, const LoadGroup& group, LoadPointLists& lists, PointTable table)
{
    divide_spans(m, m.nxtot_s, 50, m.xl_s);
    divide_spans(m, m.nxtot10_s, 10, m.xl10_s);

    // A row on a span outside the beam has no place in any grid.
    auto on_beam = [&](int span) { return span >= 1 && span <= m.nf; };
    if (table == PointTable::Point) {
        lists.pt_count.fill(0);
        for (int k = 1; k <= group.pt_n; ++k) {
            if (on_beam(group.pt_span(k))) {
                add_load_point(lists.pt_x, lists.pt_count, group.pt_span(k), group.pt_a(k));
            }
        }
    } else {
        lists.mom_count.fill(0);
        for (int k = 1; k <= group.mom_n; ++k) {
            if (on_beam(group.mom_span(k))) {
                add_load_point(lists.mom_x, lists.mom_count, group.mom_span(k), group.mom_a(k));
            }
        }
    }

    merge_load_points(m, m.nxtot_s, m.xl_s);
    merge_load_points(m, m.nxtot10_s, m.xl10_s);
}

void build_calculation_grids(Model& m)
{
    const std::pair<const LoadGroup*, LoadPointLists*> groups[] = {
        {&m.G, &m.G_points}, {&m.Q1, &m.Q1_points}, {&m.Q2, &m.Q2_points}};
    for (const auto& [group, lists] : groups) {
        collect_load_points(m, *group, *lists, PointTable::Point);
        collect_load_points(m, *group, *lists, PointTable::Moment);
        normalise_grid(m, m.nxtot_s, 50, m.xl_s);
    }
}

} // namespace kvelder
