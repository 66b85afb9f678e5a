#pragma once

#include "combination/load_case.h"
#include "combination/scratch_files.h"
#include "model/model.h"

namespace kvelder {

// The runs of load cases. Every case is built into F_load and SF_fix / W_fix by
// the load drivers, solved, recovered span by span, folded into the current
// combination and, in a patterned run, compared into the envelopes.

// Told each time the envelopes have taken in a state of the loading: in a
// patterned run after every load case folded in, the last being `last`; in a
// run of the total load once, after the copy, with `last` Nytt_2.
class EnvelopeWitness {
public:
    virtual ~EnvelopeWitness() = default;
    virtual void taken(const Model& m, int pattern, LoadCase last) = 0;
};

// Clears the tables of one load case.
void clear_case(Model& m);
// Clears the current combination (C_Winst is assigned afresh by Egen).
void clear_combination(Model& m);
// Clears every envelope.
void clear_envelopes(Model& m);

// Both start from case tables that clear_case has cleared, and trace the
// run's geometry and the combination of each pattern; the caller writes the
// trace. A witness, where one is given, watches the envelopes.

// Option 1: G, Q1 and Q2 on all spans, one combination copied into the envelopes.
void run_total(Model& m, ScratchFiles& trace, EnvelopeWitness* witness = nullptr);
// Option 2: every load pattern of Q1, enveloped; a single span runs the total run.
void run_patterns(Model& m, ScratchFiles& trace, EnvelopeWitness* witness = nullptr);

} // namespace kvelder
