#include "analysis/load_drivers.h"

#include "analysis/fixed_member.h"

#include <vector>

namespace kvelder {
namespace {

struct UniformLoad {
    int span;
    float q;
};

bool on_beam(const Model& m, int span)
{
    return span >= 1 && span <= m.nf;
}

// The uniform loads of G with the self weight folded in. With fewer rows than
// spans the weight goes on every span as a load of its own; with a row for every
// span it rides on the rows, so a span with two rows carries it twice and a span
// with none carries none.
std::vector<UniformLoad> G_uniform_loads(const Model& m)
{
    std::vector<UniformLoad> loads;
    const bool weight = is_true(m.profile_weight_on);
    const int n = m.G.uni_n;
    if (n < m.nf && weight) {
        for (int i = 1; i <= m.nf; ++i) {
            loads.push_back({i, m.selfweight_q(i)});
        }
    }
    for (int k = 1; k <= n; ++k) {
        const int span = m.G.uni_span(k);
        if (!on_beam(m, span)) {
            continue;
        }
        float q = m.G.uni_q(k);
        if (n >= m.nf && weight) {
            q = q + m.selfweight_q(span);
        }
        loads.push_back({span, q});
    }
    return loads;
}

template <typename Fn> void add_forces(Model& m, int span, Fn&& at)
{
    for (int j = 1; j <= m.nxtot_s(span); ++j) {
        const ShearMoment f = at(m.xl_s(span, j));
        m.SF_fix(span, 2 * j - 1) += f.shear;
        m.SF_fix(span, 2 * j) += f.moment;
    }
}

template <typename Fn> void add_deflections(Model& m, int span, Fn&& at)
{
    for (int j = 1; j <= m.nxtot_s(span); ++j) {
        m.W_fix(span, j) += at(m.xl_s(span, j));
    }
}

// G takes every row that stands on the beam; Q1 and Q2 take the rows of one span.
constexpr int kAllSpans = 0;

bool takes(const Model& m, int row_span, int span)
{
    return span == kAllSpans ? on_beam(m, row_span) : row_span == span;
}

// Calls fn(row, span of the row, its length) for each row of one table that the driver takes.
template <int Rows, typename Fn>
void each_row(const Model& m, int count, const Table<std::int16_t, Rows>& spans, int span, Fn&& fn)
{
    for (int k = 1; k <= count; ++k) {
        const int i = spans(k);
        if (takes(m, i, span)) {
            fn(k, i, m.ffl_s(i));
        }
    }
}

// `set_node(index, value)` puts a moment that stands on a node into F_load.
template <typename SetNode>
void point_and_moment_forces(Model& m, const LoadGroup& g, int span, SetNode&& set_node)
{
    each_row(m, g.pt_n, g.pt_span, span, [&](int k, int i, float L) {
        const PointLoadForces load(L, g.pt_P(k), g.pt_a(k));
        add_forces(m, i, [&load](float x) { return load.at(x); });
    });
    each_row(m, g.mom_n, g.mom_span, span, [&](int k, int i, float L) {
        const float a = g.mom_a(k);
        const float M = g.mom_M(k);
        if (0.001 <= a && a <= L - 0.001) {
            const MomentLoadForces load(L, M, a);
            add_forces(m, i, [&load](float x) { return load.at(x); });
        } else if (a > L - 0.001) {
            // On the node at the span's end. Set, not added: a later row on the
            // same node replaces an earlier one.
            set_node(2 * i + 2, -M);
        } else {
            set_node(2 * i, -M);
        }
    });
}

void line_forces(Model& m, const LoadGroup& g, int span)
{
    each_row(m, g.trap_n, g.trap_span, span, [&](int k, int i, float L) {
        const LineLoadForces load(L, g.trap_a(k), g.trap_b(k), g.trap_q1(k), g.trap_q2(k));
        add_forces(m, i, [&load](float x) { return load.at(x); });
    });
}

void point_and_moment_deflections(Model& m, const LoadGroup& g, int span)
{
    each_row(m, g.pt_n, g.pt_span, span, [&](int k, int i, float L) {
        add_deflections(m, i, [&](float x) { return point_load_deflection(L, x, g.pt_P(k), g.pt_a(k)); });
    });
    each_row(m, g.mom_n, g.mom_span, span, [&](int k, int i, float L) {
        add_deflections(m, i, [&](float x) { return moment_load_deflection(L, x, g.mom_M(k), g.mom_a(k)); });
    });
}

void line_deflections(Model& m, const LoadGroup& g, int span)
{
    each_row(m, g.trap_n, g.trap_span, span, [&](int k, int i, float L) {
        const LineLoadDeflection load(L, g.trap_a(k), g.trap_b(k), g.trap_q1(k), g.trap_q2(k));
        add_deflections(m, i, [&load](float x) { return load.at(x); });
    });
}

void uniform_forces(Model& m, const UniformLoad& u)
{
    const float L = m.ffl_s(u.span);
    const LineLoadForces load(L, 0, L, u.q, u.q);
    add_forces(m, u.span, [&load](float x) { return load.at(x); });
}

void uniform_deflections(Model& m, const UniformLoad& u)
{
    const float L = m.ffl_s(u.span);
    add_deflections(m, u.span, [&](float x) { return uniform_load_deflection(L, x, u.q); });
}

template <typename SetNode>
void variable_forces_with(Model& m, const LoadGroup& group, int span, SetNode&& set_node)
{
    point_and_moment_forces(m, group, span, set_node);
    each_row(m, group.uni_n, group.uni_span, span, [&](int k, int i, float) {
        uniform_forces(m, {i, group.uni_q(k)});
    });
    line_forces(m, group, span);
}

void set_into(Model& m, int index, double value)
{
    m.F_load(index) = value;
}

} // namespace

void G_forces(Model& m)
{
    point_and_moment_forces(m, m.G, kAllSpans, [&m](int index, double value) { set_into(m, index, value); });
    for (const UniformLoad& u : G_uniform_loads(m)) {
        uniform_forces(m, u);
    }
    line_forces(m, m.G, kAllSpans);
}

void G_deflections(Model& m)
{
    point_and_moment_deflections(m, m.G, kAllSpans);
    for (const UniformLoad& u : G_uniform_loads(m)) {
        uniform_deflections(m, u);
    }
    line_deflections(m, m.G, kAllSpans);
}

void variable_forces(Model& m, const LoadGroup& group, int span)
{
    variable_forces_with(m, group, span, [&m](int index, double value) { set_into(m, index, value); });
}

void variable_forces(Model& m, const LoadGroup& group, int span, std::vector<NodeLoad>& node_loads)
{
    variable_forces_with(m, group, span, [&node_loads](int index, double value) {
        node_loads.push_back({index, value});
    });
}

void variable_deflections(Model& m, const LoadGroup& group, int span)
{
    point_and_moment_deflections(m, group, span);
    each_row(m, group.uni_n, group.uni_span, span, [&](int k, int i, float) {
        uniform_deflections(m, {i, group.uni_q(k)});
    });
    line_deflections(m, group, span);
}

void nodal_load_vector(Model& m)
{
    for (int i = 1; i <= m.nf; ++i) {
        const int A = m.nodeA(i);
        const int B = m.nodeB(i);
        m.F_load(2 * A - 1) -= m.SF_fix(i, 1);
        m.F_load(2 * A) += m.SF_fix(i, 2);
        m.F_load(2 * B - 1) += m.SF_fix(i, 3);
        m.F_load(2 * B) -= m.SF_fix(i, 4);
    }
}

} // namespace kvelder
