#pragma once

#include "model/model.h"

namespace kvelder {

// Which controls of the main window are enabled or shown for the beam as it
// stands, after any event. The window applies them after every recalculation.
struct ControlRules {
    bool txt_b1 = false, txt_h1 = false, txt_d = false, cboProf = false;      // enabled
    bool optStandard = false, optCircle = false;                              // enabled
    bool Check_vipping = false;                                               // shown
    bool Cmd_input_vipping = false;                                           // shown, with Cmd_vipp_text
    bool Opt_loadcomb1 = false, Opt_loadcomb2 = false, Cmd_loadcomb2 = false; // enabled
};

ControlRules control_rules(const Model& m);

} // namespace kvelder
