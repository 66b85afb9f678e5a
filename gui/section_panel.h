#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace kvelder {

class InputBox;
class Workspace;

// Beam type and material (Fra_beam), the section (frmDimension), the bearing
// data of one support at a time (Fra_oppleggsdata) and the lateral buckling
// switch (Fra_vipping).
class SectionPanel : public QWidget {
    Q_OBJECT
public:
    SectionPanel(Workspace& ws, QWidget* parent);
    // Lists, boxes and options from the beam, as after opening a project.
    void fill();
    // Enabling, shown controls and list names, after every run.
    void refresh();

private:
    void fill_lists();
    void show_node(int node);
    void choose_option(int option);
    bool size_rule(InputBox& box, int which);
    bool bearing_rule(InputBox& box, bool kc90);

    Workspace& m_ws;
    QComboBox* m_family = nullptr;
    QComboBox* m_material = nullptr;
    QComboBox* m_profile = nullptr;
    QRadioButton* m_standard = nullptr;
    QRadioButton* m_rect = nullptr;
    QRadioButton* m_circle = nullptr;
    InputBox* m_b = nullptr;
    InputBox* m_h = nullptr;
    InputBox* m_d = nullptr;
    QLabel* m_node_label = nullptr;
    QSpinBox* m_node = nullptr;
    InputBox* m_kc90 = nullptr;
    InputBox* m_length = nullptr;
    QCheckBox* m_buckling = nullptr;
    QPushButton* m_buckling_input = nullptr;
    QPushButton* m_buckling_text = nullptr;
};

} // namespace kvelder
