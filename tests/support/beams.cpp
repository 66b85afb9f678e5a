#include "tests/support/beams.h"

#include "analysis/points.h"
#include "files/path_text.h"
#include "files/start_values.h"
#include "recalc/main_calc.h"
#include "recalc/run_analysis.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>

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

// A folder that lives as long as the test process, of a name no other
// process has taken: ctest runs tests in processes of their own side by side.
struct TemporaryFolder {
    std::filesystem::path path;
    TemporaryFolder()
    {
        std::random_device random;
        std::uniform_int_distribution<std::uint64_t> any;
        do {
            path = std::filesystem::temp_directory_path() / ("kvelder-tests-" + std::to_string(any(random)));
        } while (!std::filesystem::create_directory(path));
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

std::string contents(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void recalculate(Model& m)
{
    build_calculation_grids(m);
    run_analysis(m, scratch_folder());
}

std::filesystem::path source_data_dir()
{
    return path_from_utf8(KVELDER_SOURCE_DATA_DIR);
}

std::unique_ptr<Model> calculated(std::unique_ptr<Model> m)
{
    RecordingScreen screen;
    MainCalc(*m, screen, scratch_folder());
    EXPECT_TRUE(screen.messages.empty());
    return m;
}

std::unique_ptr<Model> example_beam(std::int16_t decimal_comma)
{
    auto m = std::make_unique<Model>();
    start_up(*m, source_data_dir(), decimal_comma);
    return m;
}

std::unique_ptr<Model> loaded_beam()
{
    auto m = example_beam();
    set_span_count(*m, 3);
    m->ffl_s(1) = 4.0F, m->ffl_s(2) = 5.0F, m->ffl_s(3) = 6.0F;
    m->nsupLeft_s = m->support_kind(1) = kBuiltIn;
    m->nsupRight_s = m->support_kind(4) = kFree;
    m->G = LoadGroup{};
    m->Q1 = LoadGroup{};
    add_uniform(m->G, 1, 2.5F);
    add_uniform(m->G, 3, 1.5F);
    add_trapezoid(m->G, 2, 1.0F, 2.0F, 0.5F, 3.5F);
    add_point(m->G, 1, 10.0F, 2.0F);
    add_moment(m->G, 3, 5.0F, 1.0F);
    add_uniform(m->Q1, 2, 4.0F);
    add_trapezoid(m->Q1, 1, 3.0F, 0.0F, 0.0F, 4.0F);
    add_point(m->Q1, 3, 7.5F, 3.0F);
    add_point(m->Q1, 1, 2.0F, 1.0F);
    add_moment(m->Q1, 2, -3.0F, 2.5F);
    add_uniform(m->Q2, 3, 0.75F);
    add_trapezoid(m->Q2, 3, 0.5F, 1.5F, 1.0F, 5.0F);
    add_point(m->Q2, 2, 4.0F, 2.0F);
    add_moment(m->Q2, 1, 1.25F, 3.0F);
    m->profile_weight_on = kTrue;
    m->comb_rule = "610b";
    m->loadcomb_option = 2;
    m->vipping_off = kFalse;
    m->l_stag(1) = 2.0F, m->l_stag(2) = 2.5F, m->l_stag(3) = 3.0F;
    m->lef_factor(1) = 0.9F, m->lef_factor(2) = 1.0F, m->lef_factor(3) = 0.8F;
    m->load_location = 1;
    build_calculation_grids(*m);
    return m;
}

std::unique_ptr<Model> cantilever(float length)
{
    auto m = example_beam();
    set_span_count(*m, 1);
    m->ffl_s.fill(0.0F);
    m->ffl_s(1) = length;
    m->nsupLeft_s = m->support_kind(1) = kBuiltIn;
    m->nsupRight_s = m->support_kind(2) = kFree;
    m->G = LoadGroup{};
    add_uniform(m->G, 1, 2.0F);
    m->Q1 = LoadGroup{};
    build_calculation_grids(*m);
    return m;
}

} // namespace kvelder::test
