#pragma once

#include <QWidget>

#include <array>

class QLabel;

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

private:
    static void show(QLabel* label, const ResultCell& cell);

    Workspace& m_ws;
    // lbl_bj, lbl_mxl, lbl_mom, Lbl_txl, lbl_tau, lbl_vipp of each span.
    std::array<std::array<QLabel*, 6>, 5> m_spans{};
    // Lbl_opp_nr, Lbl_kc90, Lbl_uf_trykk of each node.
    std::array<std::array<QLabel*, 3>, 6> m_nodes{};
};

} // namespace kvelder
