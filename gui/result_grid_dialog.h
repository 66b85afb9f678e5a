#pragma once

#include <QDialog>

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

private:
    void fill();

    Workspace& m_ws;
    QTableWidget* m_grid = nullptr;
};

} // namespace kvelder
