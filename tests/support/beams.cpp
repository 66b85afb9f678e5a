#include "tests/support/beams.h"

#include "analysis/points.h"
#include "files/start_values.h"
#include "model/run_analysis.h"

#include <unistd.h>

namespace kvelder::test {

std::unique_ptr<Model> make_beam(std::initializer_list<float> spans, char left, char right)
{
    auto m = std::make_unique<Model>();
    m->nsupLeft_s = left;
    m->nsupRight_s = right;
    set_span_count(*m, static_cast<int>(spans.size()));
    int i = 1;
    for (const float L : spans) {
        m->ffl_s(i++) = L;
    }
    m->E0_mean = kE0;
    m->I_mm4 = kImm4;
    m->comb_rule = "610a";
    m->loadcomb_option = 1;
    set_all_factors(*m, 1.0F);
    return m;
}

void set_span_count(Model& m, int nf)
{
    m.nf = static_cast<std::int16_t>(nf);
    m.nnodes = static_cast<std::int16_t>(nf + 1);
    m.support_kind.fill(kSimple);
    m.support_kind(1) = m.nsupLeft_s;
    m.support_kind(m.nnodes) = m.nsupRight_s;
}

void set_all_factors(Model& m, float value)
{
    for (float* f : {&m.gamma_G_a, &m.gamma_Q1_a, &m.gamma_Q2_a, &m.gamma_G_b, &m.gamma_Q1_b, &m.gamma_Q2_b,
                     &m.creep_G, &m.creep_Q1, &m.creep_Q2}) {
        *f = value;
    }
}

void add_uniform(LoadGroup& g, int span, float q)
{
    ++g.uni_n;
    g.uni_span(g.uni_n) = static_cast<std::int16_t>(span);
    g.uni_q(g.uni_n) = q;
}

void add_trapezoid(LoadGroup& g, int span, float q1, float q2, float a, float b)
{
    ++g.trap_n;
    g.trap_span(g.trap_n) = static_cast<std::int16_t>(span);
    g.trap_q1(g.trap_n) = q1;
    g.trap_q2(g.trap_n) = q2;
    g.trap_a(g.trap_n) = a;
    g.trap_b(g.trap_n) = b;
}

void add_point(LoadGroup& g, int span, float P, float a)
{
    ++g.pt_n;
    g.pt_span(g.pt_n) = static_cast<std::int16_t>(span);
    g.pt_P(g.pt_n) = P;
    g.pt_a(g.pt_n) = a;
}

void add_moment(LoadGroup& g, int span, float M, float a)
{
    ++g.mom_n;
    g.mom_span(g.mom_n) = static_cast<std::int16_t>(span);
    g.mom_M(g.mom_n) = M;
    g.mom_a(g.mom_n) = a;
}

namespace {

// A folder that lives as long as the test process.
struct TemporaryFolder {
    std::filesystem::path path;
    TemporaryFolder()
        : path(std::filesystem::temp_directory_path() / ("kvelder-tests-" + std::to_string(::getpid())))
    {
        std::filesystem::create_directories(path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

} // namespace

const std::filesystem::path& scratch_folder()
{
    static const TemporaryFolder folder;
    return folder.path;
}

void recalculate(Model& m)
{
    build_calculation_grids(m);
    run_analysis(m, scratch_folder());
}

std::filesystem::path source_data_dir()
{
    return KVELDER_SOURCE_DATA_DIR;
}

std::unique_ptr<Model> example_beam()
{
    auto m = std::make_unique<Model>();
    start_up(*m, source_data_dir());
    return m;
}

} // namespace kvelder::test
