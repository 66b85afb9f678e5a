#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

namespace kvelder {

class Workspace;
struct ResultCell;

// The usage factors of the last run: the section check per span
// (Fracodesjekk), the support pressure per node (Fra_opplegg_last), and the
// buttons to the results along the beam (Frakrefter).
class ResultPanel : public QWidget {
    Q_OBJECT
public:
    ResultPanel(Workspace& ws, QWidget* parent);
    void refresh();
    // The results along the beam and the detailed results need a run that
    // got past the gate and checked the beam.
    void set_checks_run(bool run);

private:
    static void show(QLabel* label, const ResultCell& cell);

    Workspace& m_ws;
    // lbl_bj, lbl_mxl, lbl_mom, Lbl_txl, lbl_tau, lbl_vipp of each span.
    std::array<std::array<QLabel*, 6>, 5> m_spans{};
    // Lbl_opp_nr, Lbl_kc90, Lbl_uf_trykk of each node.
    std::array<std::array<QLabel*, 3>, 6> m_nodes{};
    // Cmd_grid_krefter, cmd_detres.
    std::array<QPushButton*, 2> m_forms{};
};

} // namespace kvelder
