#include "bench/beams.h"

#include "files/start_values.h"

namespace kvelder::bench {

std::unique_ptr<Model> example()
{
    auto m = std::make_unique<Model>();
    start_up(*m, KVELDER_SOURCE_DATA_DIR);
    return m;
}

std::unique_ptr<Model> worst_case()
{
    auto m = example();
    m->nf = 5;
    m->nnodes = 6;
    m->support_kind.fill(kSimple);
    for (int i = 1; i <= 5; ++i) {
        m->ffl_s(i) = 4.0F + 0.5F * static_cast<float>(i);
        m->l_stag(i) = m->ffl_s(i);
    }
    m->loadcomb_option = 2;
    m->vipping_off = kFalse;
    float scale = 1.0F;
    for (LoadGroup* g : {&m->G, &m->Q1, &m->Q2}) {
        *g = LoadGroup{};
        for (int i = 1; i <= 5; ++i) {
            const auto span = static_cast<std::int16_t>(i);
            const float L = m->ffl_s(i);
            g->uni_span(i) = span, g->uni_q(i) = 1.0F * scale;
            for (int k = 0; k < 2; ++k) {
                const int t = 2 * i - 1 + k;
                g->trap_span(t) = span, g->trap_q1(t) = 0.5F * scale, g->trap_q2(t) = 2.0F * scale;
                g->trap_a(t) = k == 0 ? 0.1F : L / 2, g->trap_b(t) = k == 0 ? L / 2 : L - 0.1F;
                g->pt_span(t) = span, g->pt_P(t) = 3.0F * scale, g->pt_a(t) = L * (k == 0 ? 0.3F : 0.7F);
            }
        }
        for (int k = 1; k <= 6; ++k) {
            const int span = (k - 1) % 5 + 1;
            g->mom_span(k) = static_cast<std::int16_t>(span);
            g->mom_M(k) = 1.5F * scale;
            g->mom_a(k) = m->ffl_s(span) * (k <= 5 ? 0.45F : 0.8F);
        }
        g->uni_n = 5, g->trap_n = 10, g->pt_n = 10, g->mom_n = 6;
        scale += 0.5F;
    }
    return m;
}

} // namespace kvelder::bench
