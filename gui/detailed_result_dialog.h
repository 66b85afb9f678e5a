#pragma once

#include "ui/input_checks.h"

#include "model/governing.h"
#include "ui/detailed_result.h"

#include <QDialog>

#include <array>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace kvelder {

class InputBox;
class PictureBox;
class Workspace;

// The section checks of one span in words and numbers
// (frm_Kvelder_detailedresult). Its trial sizes are the beam's own: leaving a
// trial box changes the section, shows the size in the main window's box
// too, and recalculates.
class DetailedResultDialog : public QDialog {
    Q_OBJECT
public:
    // `main_sizes` holds the main window's boxes txt_b1, txt_h1 and txt_d.
    DetailedResultDialog(Workspace& ws, QWidget& main_sizes, QWidget* parent);

    // Opens, modal, on span 1 with the section controls of the beam.
    void open_first_span();
    // Closing by Esc or the title bar gives a refused size up.
    void reject() override;

private:
    void arrange();
    void draw();
    void draw_section();
    bool trial_rule(InputBox& box, Box kind);

    // A trial size: which size, its caption and its box.
    struct TrialBox {
        Box kind;
        QLabel* label = nullptr;
        InputBox* box = nullptr;
    };
    // What governs the results on show, found once per run, not per redraw.
    void explain();

    Workspace& m_ws;
    QWidget& m_main_sizes;
    int m_span = 1;
    std::array<QRadioButton*, 5> m_options{};
    QLineEdit* m_profile = nullptr;
    std::array<TrialBox, 3> m_trials{}; // width, height, diameter
    TrialSizes m_taken;
    std::optional<GoverningStates> m_governing;
    PictureBox* m_rect_picture = nullptr;
    PictureBox* m_tube_picture = nullptr;
    PictureBox* m_text = nullptr;
};

} // namespace kvelder
