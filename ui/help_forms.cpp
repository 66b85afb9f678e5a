#include "ui/help_forms.h"

namespace kvelder {

namespace {

// Each form with its picture box; the forms that never had one of their own
// have one named in the same manner.
struct FormNames {
    const char* form;
    const char* picture;
};

FormNames names_of(HelpForm form)
{
    switch (form) {
    case HelpForm::ServiceClass:
        return {"frmHelpServiceClass", "Pic_txt_klima"};
    case HelpForm::LoadDuration:
        return {"frmHelpLastvarighet", "Pic_txt_lastvarighet"};
    case HelpForm::Buckling:
        return {"frmHelpVipp", "Pic_txt_vipping"};
    case HelpForm::Supports:
        return {"frmHelpOpplegg", "Pic_txt_opplegg"};
    case HelpForm::LoadCombNorway:
        return {"frmHelpLoadCombNo", "Pic_txt_loadcomb"};
    case HelpForm::LoadCombEurocode:
        return {"frmHelpLoadCombEc", "Pic_txt_loadcomb"};
    case HelpForm::LoadCombSweden:
        return {"frmHelpLoadCombSw", "Pic_txt_loadcomb"};
    case HelpForm::PsiEurocode:
        return {"frmHelpEurocode", "Pic_build_cat"};
    case HelpForm::PsiNorway:
        return {"frmHelpNorway", "Pic_build_cat"};
    case HelpForm::PsiSweden:
        return {"frmHelpSweden", "Pic_build_cat"};
    case HelpForm::PatternsTotal:
        return {"frmHelpComb1", "Pic_loadcomb1"};
    case HelpForm::PatternsQ1:
        return {"frmHelpComb2", "Pic_loadcomb2"};
    }
    return {"", ""};
}

} // namespace

std::string help_form_name(HelpForm form)
{
    return names_of(form).form;
}

std::string help_picture_name(HelpForm form)
{
    return names_of(form).picture;
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
