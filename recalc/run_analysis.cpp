#include "recalc/run_analysis.h"

#include "analysis/stiffness.h"
#include "combination/runner.h"
#include "combination/scratch_files.h"

#include <cmath>

namespace kvelder {
namespace {

// E in kN/m2 and I in m4 for the stiffness work, from N/mm2 and mm4.
void analysis_constants(Model& m)
{
    m.E_kNm2 = static_cast<double>(m.E0_mean) * 1000;
    const double mm4_per_m4 = std::pow(1000.0, 4.0);
    for (int i = 1; i <= m.nf; ++i) {
        m.I_span_m4(i) = m.I_mm4 / mm4_per_m4;
    }
}

} // namespace

void run_analysis(Model& m, ScratchFiles& trace, EnvelopeWitness* witness)
{
    analysis_constants(m);
    assemble_and_factorise(m);

    clear_case(m);
    clear_combination(m);
    m.C_Winst.fill(0);
    clear_envelopes(m);

    if (m.loadcomb_option == 1) {
        run_total(m, trace, witness);
    } else if (m.loadcomb_option == 2) {
        run_patterns(m, trace, witness);
    }
    trace.write_run();
}

void run_analysis(Model& m, const std::filesystem::path& scratch_folder)
{
    ScratchFiles trace(scratch_folder);
    run_analysis(m, trace);
}

} // namespace kvelder
