#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kvelder {

// The reference dialogs that explain the classes, factors and load
// combinations, and the buttons that open them.
enum class HelpForm {
    ServiceClass,     // frmHelpServiceClass
    LoadDuration,     // frmHelpLastvarighet
    Buckling,         // frmHelpVipp
    Supports,         // frmHelpOpplegg
    LoadCombNorway,   // frmHelpLoadCombNo
    LoadCombEurocode, // frmHelpLoadCombEc
    LoadCombSweden,   // frmHelpLoadCombSw
    PsiEurocode,      // frmHelpEurocode
    PsiNorway,        // frmHelpNorway
    PsiSweden,        // frmHelpSweden
    PatternsTotal,    // frmHelpComb1
    PatternsQ1,       // frmHelpComb2
};

inline constexpr std::array kHelpForms{
    HelpForm::ServiceClass,   HelpForm::LoadDuration,     HelpForm::Buckling,       HelpForm::Supports,
    HelpForm::LoadCombNorway, HelpForm::LoadCombEurocode, HelpForm::LoadCombSweden, HelpForm::PsiEurocode,
    HelpForm::PsiNorway,      HelpForm::PsiSweden,        HelpForm::PatternsTotal,  HelpForm::PatternsQ1,
};

// The form's name, its objectName, and that of the picture box it draws in.
std::string help_form_name(HelpForm form);
std::string help_picture_name(HelpForm form);

// Cmd_610a_b: the combinations of the annex; Cmd_psi0: its psi values. Annexes
// without a help text ("Uk ", "Fin", "Den") have none.
std::optional<HelpForm> combination_help(std::string_view annex);
std::optional<HelpForm> psi_help(std::string_view annex);

// Cmd_loadcomb2: the pictures of the load combination option in force.
HelpForm pattern_help(int loadcomb_option);

} // namespace kvelder
