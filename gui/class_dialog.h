#pragma once

#include <QDialog>

#include <array>

class QRadioButton;

namespace kvelder {

class InputBox;
class Workspace;

// Service class, load-duration class and ksys (frmClass); each edit acts on
// the beam at once and recalculates.
class ClassDialog : public QDialog {
    Q_OBJECT
public:
    ClassDialog(Workspace& ws, QWidget* parent);

    // Opens, modal, on the classes of the beam.
    void open_classes();
    // Closing without OK: a refused ksys gives way to the last one taken.
    void reject() override;

private:
    void show_classes();
    bool may_act();
    void choose_service(int index);
    void choose_duration(int index);
    bool ksys_rule();
    void ok();

    Workspace& m_ws;
    std::array<QRadioButton*, 3> m_service{};
    std::array<QRadioButton*, 5> m_duration{};
    InputBox* m_ksys = nullptr;
    float m_taken = 1.0F; // the last ksys that passed
};

} // namespace kvelder
