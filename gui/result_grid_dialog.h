#pragma once

#include <QDialog>

class QTableView;
class QTableWidget;

namespace kvelder {

class Workspace;

// The results along the beam in one grid (frm_B_grid_mom_Shear_disp_comb),
// filled from the last run each time it is shown.
class ResultGridDialog : public QDialog {
    Q_OBJECT
public:
    ResultGridDialog(Workspace& ws, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    // The head rows stay in place over the grid while its values scroll.
    void place_heads();

    Workspace& m_ws;
    QTableWidget* m_grid = nullptr;
    QTableView* m_heads = nullptr; // a view of the grid's own head rows
};

} // namespace kvelder
