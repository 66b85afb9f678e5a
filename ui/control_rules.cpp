#include "ui/control_rules.h"

namespace kvelder {

ControlRules control_rules(const Model& m)
{
    ControlRules r;
    const bool circle = m.section_form == "Tube";
    const bool standard = is_true(m.standard_section) && !circle;
    r.cboProf = standard;
    r.txt_b1 = r.txt_h1 = !standard && !circle;
    r.txt_d = circle;
    // Kerto and k_bjelke come as free rectangles only.
    const bool rectangles_only = m.prof_type_index >= 2;
    r.optStandard = r.optCircle = !rectangles_only;
    r.Check_vipping = !circle;
    r.Cmd_input_vipping = !circle && m.vipping_off == 0;
    // A run that finds G or Q1 empty leaves only the total load; patterns need
    // two spans and rows of Q1 to move about.
    const bool one_case = is_true(m.G_empty) || is_true(m.Q1_empty);
    r.Opt_loadcomb1 = !one_case;
    r.Opt_loadcomb2 = !one_case && m.nf >= 2 && !m.Q1.empty();
    // Its pictures explain either option, so it does not wait for the second.
    r.Cmd_loadcomb2 = m.nf >= 2 && !m.Q1.empty();
    return r;
}

} // namespace kvelder
