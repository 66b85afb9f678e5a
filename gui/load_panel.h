#pragma once

#include <QWidget>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace kvelder {

class Workspace;

// The loads (frmLoad), the type of load combination (fraloadcomb) and the
// design situation (Fra_loadcomb_a_b).
class LoadPanel : public QWidget {
    Q_OBJECT
public:
    LoadPanel(Workspace& ws, QWidget* parent);
    void refresh();

private:
    Workspace& m_ws;
    QCheckBox* m_self_weight = nullptr;
    QRadioButton* m_total = nullptr;
    QRadioButton* m_patterns = nullptr;
    QPushButton* m_patterns_help = nullptr;
    QRadioButton* m_610a = nullptr;
    QRadioButton* m_610b = nullptr;
};

} // namespace kvelder
