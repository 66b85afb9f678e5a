#pragma once

#include "model/message.h"
#include "model/model.h"
#include "ui/box_texts.h"
#include "ui/captions.h"
#include "ui/edits.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

inline constexpr const char* kSetupForm = "frmSetup";

// The setup dialog (frmSetup): the national annex, the language, the psi
// values, the class of the annex and the partial and crack factors of the
// active setup row. Its edits act on the beam at once; the file changes only
// when the engineer saves.

// The eight boxes of partial factors and crack factors, one per material family.
enum class SetupFactor {
    GammaTimber,
    GammaLaminated,
    GammaKerto,
    GammaKBeam,
    KcrTimber,
    KcrLaminated,
    KcrKerto,
    KcrKBeam,
};
inline constexpr std::array kSetupFactors{
    SetupFactor::GammaTimber, SetupFactor::GammaLaminated, SetupFactor::GammaKerto, SetupFactor::GammaKBeam,
    SetupFactor::KcrTimber,   SetupFactor::KcrLaminated,   SetupFactor::KcrKerto,   SetupFactor::KcrKBeam,
};

// The box of a factor: "Txt_gamma_timb" .. "Txt_kcr_k_bjelke".
std::string setup_factor_box(SetupFactor factor);
float setup_factor_value(const Model& m, SetupFactor factor);
void set_setup_factor(Model& m, SetupFactor factor, float value);
// The factor as its box shows it, "0.00".
std::string setup_factor_text(const Model& m, SetupFactor factor);

// Leaving a factor box: the value is stored as typed and shown "0.00"; the
// message of a value at or below 0.1. A text that is no number is kept in
// the box and stands for 0.
BoxCommit commit_setup_factor(Model& m, SetupFactor factor, std::string_view text);

// The first factor in force at or below 0.1: while there is one, the dialog
// neither closes by OK nor saves.
struct SetupFactorFailure {
    SetupFactor factor;
    Message message;
};
std::optional<SetupFactorFailure> setup_factor_failure(const Model& m);

// chk_kcr: in Sweden the typed kcr of timber and laminated counts only for an exposed beam.
void set_kcr_exposed(Model& m, bool exposed);

// The items of cmbCountry, one per setup row: "EC5 + " and its title, or "EC5 " alone.
std::vector<std::string> country_items(const FileDatabase& db);

// A new row of cmbCountry. The row left keeps what was edited in it, the
// language included; then the new row's annex and factors are in force. The
// caller recalculates when the dialog closes.
void change_country(Model& m, int row);

// Closing the dialog other than by OK: a country chosen in it is given up for
// the row it opened on. True when the beam changed and wants a recalculation.
bool give_up_country(Model& m, int opened_row);

// The texts of a psi list, "0.2" .. "1.0" or "0.0" .. "1.0", and the position
// the beam holds (-1 when the list has none such).
std::vector<std::string> psi_items(PsiList list);
int psi_position(const Model& m, PsiList list);

// How the dialog shows the annex: Sweden its safety classes and chk_kcr,
// Norway its reliability classes, the others neither.
enum class ClassFrame { None, Sweden, Norway };
struct SetupView {
    ClassFrame frame = ClassFrame::None;
    bool kcr_check = false;     // chk_kcr shown
    int sweden_option = 0;      // Opt_class1 .. Opt_class3 by the class, 0 for none
    bool norway_class_1 = true; // Opt_class_nor_1, else Opt_class_nor_2_4
    std::string kfi;            // Lbl_kfi_2, Lbl_kfi_sfd_2: "0.00"
};
SetupView setup_view(const Model& m);

// The dialog's texts in "Eng" or "Nor", the dialog's title first.
std::vector<Caption> setup_dialog_captions(const std::string& language);

// Cmd_save: the active factors go to their row, and the setup file of `folder`
// is replaced as a whole. The message when it could not be written; the file
// then stands as it was.
std::optional<Message> save_setup(Model& m, const std::filesystem::path& folder);

} // namespace kvelder
