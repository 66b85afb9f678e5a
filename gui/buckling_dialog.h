#pragma once

#include "ui/input_checks.h"

#include <QDialog>

#include <array>

class QLabel;
class QRadioButton;

namespace kvelder {

class InputBox;
class Workspace;

// The lateral buckling input (frm_Kvelder_vipp_input): per span the distance
// between lateral braces and the factor lef / l, the location of the load,
// and the effective length and k_crit of the last recalculation. Leaving a
// box stores and checks its value; a value that passes recalculates the beam.
class BucklingDialog : public QDialog {
    Q_OBJECT
public:
    BucklingDialog(Workspace& ws, QWidget* parent);
    // Boxes, options and results from the beam.
    void fill();

private:
    bool box_rule(InputBox& box, Box kind, int span);
    void choose_location(int location);
    void show_results();
    void show_location();

    Workspace& m_ws;
    std::array<QLabel*, kMaxSpans> m_span{}, m_l_eff{}, m_k_crit{};
    std::array<InputBox*, kMaxSpans> m_l_stag{}, m_lef{};
    std::array<QRadioButton*, 2> m_location{};
};

// Opens the buckling input window-modal over `parent`; it is deleted when closed.
void open_buckling_input(Workspace& ws, QWidget* parent);

} // namespace kvelder
