#pragma once

#include <QWidget>

#include <map>
#include <string>

class QGroupBox;
class QLabel;

namespace kvelder {

class Workspace;

// The classes and factors of the last run (Fra_Fak), the psi values (Fra_psi0),
// the reliability or safety class of the annex (frmSafety) and the design
// strengths (Fra_spenning): labels only.
class FactorPanel : public QWidget {
    Q_OBJECT
public:
    FactorPanel(Workspace& ws, QWidget* parent);
    void refresh();

private:
    Workspace& m_ws;
    std::map<std::string, QLabel*> m_values;
    QGroupBox* m_safety = nullptr;
};

} // namespace kvelder
