#include "recalc/explain_governing.h"

#include "combination/load_case.h"
#include "combination/patterns.h"
#include "combination/runner.h"
#include "combination/scratch_files.h"
#include "design/section_checks.h"
#include "recalc/run_analysis.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <memory>

namespace kvelder {
namespace {

using SpanValues = Table2<float, kMaxSpans, kMaxPoints>;
using SupportValues = Table<float, kMaxNodes>;

// The envelopes in a fixed order, so that a watch can keep a state for each.
enum SpanEnvelope { kV_max, kV_min, kM_max, kM_min, kW_max, kW_min, kSpanEnvelopes };
enum SupportEnvelope { kR_max, kR_min, kMR_max, kMR_min, kSupportEnvelopes };

std::array<const SpanValues*, kSpanEnvelopes> span_envelopes(const Model& m)
{
    return {&m.V_max, &m.V_min, &m.M_max, &m.M_min, &m.W_max, &m.W_min};
}
std::array<const SupportValues*, kSupportEnvelopes> support_envelopes(const Model& m)
{
    return {&m.R_max, &m.R_min, &m.MR_max, &m.MR_min};
}

// A state as the runner names it: the pattern and the load case folded in last.
struct StateId {
    std::int16_t pattern = 0;
    LoadCase last = LoadCase::Egen;
};

// Every envelope value is nought after the clearing and changes only when a
// state beats it, so the state at its last change is the one that stands.
class StateWatch final : public EnvelopeWitness {
public:
    void taken(const Model& m, int pattern, LoadCase last) override
    {
        const StateId id{static_cast<std::int16_t>(pattern), last};
        const auto spans = span_envelopes(m);
        for (std::size_t t = 0; t < spans.size(); ++t) {
            for (int i = 1; i <= m.nf; ++i) {
                for (int j = 1; j <= m.nxtot_s(i); ++j) {
                    watch((*spans[t])(i, j), m_seen_spans[t](i, j), m_span_states[t](i, j), id);
                }
            }
        }
        const auto supports = support_envelopes(m);
        for (std::size_t t = 0; t < supports.size(); ++t) {
            for (int k = 1; k <= m.nsup; ++k) {
                watch((*supports[t])(k), m_seen_supports[t](k), m_support_states[t](k), id);
            }
        }
    }

    StateId span_state(SpanEnvelope t, int i, int j) const { return m_span_states[t](i, j); }
    StateId support_state(SupportEnvelope t, int k) const { return m_support_states[t](k); }

private:
    static void watch(float now, float& seen, StateId& state, StateId id)
    {
        if (now != seen) {
            seen = now;
            state = id;
        }
    }

    std::array<SpanValues, kSpanEnvelopes> m_seen_spans{};
    std::array<Table2<StateId, kMaxSpans, kMaxPoints>, kSpanEnvelopes> m_span_states{};
    std::array<SupportValues, kSupportEnvelopes> m_seen_supports{};
    std::array<Table<StateId, kMaxNodes>, kSupportEnvelopes> m_support_states{};
};

bool same_envelopes(const Model& a, const Model& b)
{
    return a.V_max == b.V_max && a.V_min == b.V_min && a.M_max == b.M_max && a.M_min == b.M_min &&
           a.W_max == b.W_max && a.W_min == b.W_min && a.R_max == b.R_max && a.R_min == b.R_min &&
           a.MR_max == b.MR_max && a.MR_min == b.MR_min;
}

LoadState load_state(const Model& m, StateId id)
{
    LoadState s{id.pattern, id.last != LoadCase::Egen, {}};
    // A run of the total load has Q1 on every span.
    if (m.loadcomb_option == 1 || m.nf == 1) {
        for (int i = 1; i <= m.nf; ++i) {
            s.Q1_spans.push_back(i);
        }
    } else if (id.last == LoadCase::Nytt) {
        const auto spans = Q1_pattern(m.nf, id.pattern);
        s.Q1_spans.assign(spans.begin(), spans.end());
    }
    return s;
}

class Explainer {
public:
    Explainer(const Model& m, const StateWatch& watch) : m_m(m), m_watch(watch) {}

    std::optional<GoverningValue> span_value(SpanEnvelope t, int i, int j) const
    {
        if (j < 1) {
            return std::nullopt;
        }
        const float v = (*span_envelopes(m_m)[t])(i, j);
        if (v == 0) {
            return std::nullopt;
        }
        return GoverningValue{load_state(m_m, m_watch.span_state(t, i, j)), m_m.xl_s(i, j), v};
    }

    std::optional<GoverningValue> support_value(SupportEnvelope t, int k) const
    {
        const float v = (*support_envelopes(m_m)[t])(k);
        if (v == 0) {
            return std::nullopt;
        }
        return GoverningValue{load_state(m_m, m_watch.support_state(t, k)), 0, v};
    }

    // The first station of span i at x whose value passes `is_it`; 0 for none.
    template <typename Test> int station(SpanEnvelope t, int i, float x, Test is_it) const
    {
        const SpanValues& values = *span_envelopes(m_m)[t];
        for (int j = 1; j <= m_m.nxtot_s(i); ++j) {
            if (m_m.xl_s(i, j) == x && is_it(values(i, j))) {
                return j;
            }
        }
        return 0;
    }

    // The checks keep the governing value and its place; the sign that
    // governs is the worse, the positive one on a tie.
    std::optional<GoverningValue> bending(int i) const
    {
        if (m_m.Uf_mom(i) == 0) {
            return std::nullopt;
        }
        const SpanEnvelope t = m_m.Uf_neg(i) > m_m.Uf_pos(i) ? kM_min : kM_max;
        const float M = m_m.M_gov(i);
        return span_value(t, i, station(t, i, m_m.x_mom(i), [M](float v) { return std::abs(v) == M; }));
    }

    std::optional<GoverningValue> shear(int i) const
    {
        if (m_m.Uf_tau(i) == 0) {
            return std::nullopt;
        }
        const SpanEnvelope t = m_m.Uf_tau_neg(i) > m_m.Uf_tau_pos(i) ? kV_min : kV_max;
        const float V = m_m.V_gov(i);
        return span_value(t, i, station(t, i, m_m.xt_gov(i), [V](float v) { return v == V; }));
    }

    // The sagging moment at the last station of the largest usage factor, or
    // else the support end of a cantilever.
    std::optional<GoverningValue> buckling(int i) const
    {
        if (!buckling_checked(m_m) || m_m.Uf_ltb(i) == 0) {
            return std::nullopt;
        }
        for (int j = m_m.nxtot_s(i); j >= 3; --j) {
            if (m_m.Uf_ltb_st(i, j) == m_m.Uf_ltb(i)) {
                return span_value(kM_min, i, j);
            }
        }
        if (i == 1 && m_m.support_kind(1) == kFree) {
            return span_value(kM_max, i, 2);
        }
        if (i == m_m.nf && m_m.support_kind(m_m.nf + 1) == kFree) {
            return span_value(kM_max, i, 1);
        }
        return std::nullopt;
    }

    // The largest deflection either way, the first of equal ones.
    std::optional<GoverningValue> deflection(int i) const
    {
        std::optional<GoverningValue> largest;
        for (int j = 1; j <= m_m.nxtot_s(i); ++j) {
            for (const SpanEnvelope t : {kW_max, kW_min}) {
                auto v = span_value(t, i, j);
                if (v && (!largest || std::abs(v->value) > std::abs(largest->value))) {
                    largest = std::move(v);
                }
            }
        }
        return largest;
    }

private:
    const Model& m_m;
    const StateWatch& m_watch;
};

} // namespace

std::optional<GoverningStates> explain_governing(const Model& m)
{
    if (m.npatterns == 0 || m.nf < 1) {
        return std::nullopt;
    }
    auto beam = std::make_unique<Model>(m);
    auto watch = std::make_unique<StateWatch>();
    ScratchFiles no_trace;
    run_analysis(*beam, no_trace, watch.get());
    if (!same_envelopes(*beam, m)) {
        return std::nullopt;
    }

    const Explainer explain(m, *watch);
    GoverningStates g;
    for (int i = 1; i <= m.nf; ++i) {
        g.spans.push_back({explain.bending(i), explain.shear(i), explain.buckling(i), explain.deflection(i)});
    }
    for (int k = 1; k <= m.nsup; ++k) {
        g.supports.push_back({explain.support_value(kR_max, k), explain.support_value(kR_min, k),
                              explain.support_value(kMR_max, k), explain.support_value(kMR_min, k)});
    }
    return g;
}

} // namespace kvelder
