#include "ui/help_forms.h"

namespace kvelder {

std::string help_form_name(HelpForm form)
{
    switch (form) {
    case HelpForm::ServiceClass:
        return "frmHelpServiceClass";
    case HelpForm::LoadDuration:
        return "frmHelpLastvarighet";
    case HelpForm::Buckling:
        return "frmHelpVipp";
    case HelpForm::Supports:
        return "frmHelpOpplegg";
    case HelpForm::LoadCombNorway:
        return "frmHelpLoadCombNo";
    case HelpForm::LoadCombEurocode:
        return "frmHelpLoadCombEc";
    case HelpForm::LoadCombSweden:
        return "frmHelpLoadCombSw";
    case HelpForm::PsiEurocode:
        return "frmHelpEurocode";
    case HelpForm::PsiNorway:
        return "frmHelpNorway";
    case HelpForm::PsiSweden:
        return "frmHelpSweden";
    case HelpForm::PatternsTotal:
        return "frmHelpComb1";
    case HelpForm::PatternsQ1:
        return "frmHelpComb2";
    }
    return {};
}

std::optional<HelpForm> combination_help(std::string_view annex)
{
    if (annex == "Euc") {
        return HelpForm::LoadCombEurocode;
    }
    if (annex == "Swe") {
        return HelpForm::LoadCombSweden;
    }
    if (annex == "Nor") {
        return HelpForm::LoadCombNorway;
    }
    return std::nullopt;
}

std::optional<HelpForm> psi_help(std::string_view annex)
{
    if (annex == "Euc") {
        return HelpForm::PsiEurocode;
    }
    if (annex == "Swe") {
        return HelpForm::PsiSweden;
    }
    if (annex == "Nor") {
        return HelpForm::PsiNorway;
    }
    return std::nullopt;
}

HelpForm pattern_help(int loadcomb_option)
{
    return loadcomb_option == 1 ? HelpForm::PatternsTotal : HelpForm::PatternsQ1;
}

} // namespace kvelder
