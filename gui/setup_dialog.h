#pragma once

#include "ui/edits.h"
#include "ui/setup_dialog.h"

#include <QDialog>

#include <array>
#include <filesystem>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace kvelder {

class InputBox;
class Workspace;

// The setup of the national annex, the language and the factors (frmSetup).
// Its edits act on the beam at once and recalculate; a new country waits
// for the dialog to close. Save rewrites the setup file of the data folder.
class SetupDialog : public QDialog {
    Q_OBJECT
public:
    SetupDialog(Workspace& ws, std::filesystem::path data_folder, QWidget* parent);

    // Opens, modal, on the setup in force.
    void open_setup();
    // Closing without OK: a box that holds a refused value gives it up, so
    // does a new country, and a change that waits for a recalculation gets it.
    void reject() override;

private:
    QWidget* build_annex();
    QWidget* build_combinations();
    QWidget* build_factors(const char* frame, int first);
    void fill_boxes();
    void show_choices();
    bool may_act();
    void choose_country(int row);
    void choose_language_of(const char* language);
    void choose_psi_list(PsiList list, int index);
    void choose_class(int safety_class);
    void choose_exposed(bool exposed);
    bool factor_rule(InputBox& box, SetupFactor factor);
    bool factors_pass();
    void recalculate();
    void save();
    void ok();

    Workspace& m_ws;
    std::filesystem::path m_folder;
    bool m_filling = false;
    bool m_pending = false; // a change the last recalculation has not seen
    int m_opened_row = 0;   // the setup row in force when the dialog opened
    QComboBox* m_country = nullptr;
    std::array<QComboBox*, 4> m_psi{};
    QGroupBox* m_sweden = nullptr;
    QGroupBox* m_norway = nullptr;
    std::array<QRadioButton*, 3> m_sweden_options{};
    QRadioButton* m_norway_1 = nullptr;
    QRadioButton* m_norway_2_4 = nullptr;
    QLabel* m_kfi_sweden = nullptr;
    QLabel* m_kfi_norway = nullptr;
    QCheckBox* m_exposed = nullptr;
    std::array<InputBox*, 8> m_factors{};
    std::array<float, 8> m_taken{}; // each box's last value that passed
};

} // namespace kvelder
