#include "ui/change_beam.h"

#include "ui/input_checks.h"

namespace kvelder {
namespace {

// Keeps the rows 1..n whose span is on the beam, packed in their order.
template <typename... Columns> std::int16_t keep_rows(std::int16_t n, int nf, auto& span, Columns&... columns)
{
    std::int16_t kept = 0;
    for (int k = 1; k <= n; ++k) {
        if (span(k) > nf) {
            continue;
        }
        ++kept;
        span(kept) = span(k);
        ((columns(kept) = columns(k)), ...);
    }
    return kept;
}

void drop_rows_beyond(LoadGroup& g, int nf)
{
    g.uni_n = keep_rows(g.uni_n, nf, g.uni_span, g.uni_q);
    g.trap_n = keep_rows(g.trap_n, nf, g.trap_span, g.trap_q1, g.trap_q2, g.trap_a, g.trap_b);
    g.pt_n = keep_rows(g.pt_n, nf, g.pt_span, g.pt_P, g.pt_a);
    g.mom_n = keep_rows(g.mom_n, nf, g.mom_span, g.mom_M, g.mom_a);
}

} // namespace

std::optional<Message> ChangeBeam(Model& m)
{
    m.nnodes = static_cast<std::int16_t>(m.nf + 1);
    m.nsup = m.nnodes;
    for (int n = 1; n <= kMaxNodes; ++n) {
        m.support_kind(n) = kSimple;
    }
    m.nsupLeft_s = kSimple;
    m.nsupRight_s = kSimple;
    const std::optional<Message> message = check_supports(m);
    if (m.nf < m.nf_previous) {
        for (LoadGroup* g : {&m.G, &m.Q1, &m.Q2}) {
            drop_rows_beyond(*g, m.nf);
        }
    }
    m.err_load_item = kFalse;
    return message;
}

} // namespace kvelder
