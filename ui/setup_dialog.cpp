#include "ui/setup_dialog.h"

#include "design/factors.h"
#include "files/data_files.h"
#include "files/number_format.h"
#include "files/path_text.h"
#include "files/setup_file.h"
#include "files/text_number.h"
#include "ui/input_checks.h"

#include <algorithm>

namespace kvelder {
namespace {

struct FactorField {
    const char* box;
    float Model::*field;
};

constexpr std::array<FactorField, 8> kFactorFields{{
    {"Txt_gamma_timb", &Model::gamma_timb},
    {"Txt_gamma_lam", &Model::gamma_lam},
    {"Txt_gamma_kerto", &Model::gamma_kerto},
    {"Txt_gamma_k_bjelke", &Model::gamma_k_bjelke},
    {"Txt_kcr_timb", &Model::kcr_timb},
    {"Txt_kcr_lam", &Model::kcr_lam},
    {"Txt_kcr_kerto", &Model::kcr_kerto},
    {"Txt_kcr_k_bjelke", &Model::kcr_k_bjelke},
}};

const FactorField& field_of(SetupFactor factor)
{
    return kFactorFields[static_cast<std::size_t>(factor)];
}

// The texts stand as the program has always shown them, trailing blanks included.
constexpr CaptionPair kCaptions[] = {
    {kSetupForm, "Setup", "Setup"},
    {"Fra_language", "Language", "Spr\u00e5k"},
    {"Fra_set_annex", "EN 1990-1-1 + NA  (Loadfactors)", "EN 1990-1-1 + NA  (Lastfaktorer)"},
    {"Cmd_save", "Save to file", "Lagre p\u00e5 fil"},
    {"Cmd_tillegg", "Annexes side by side", "Tilleggene side om side"},
    {"Fra_psi_sls", "psi0 / psi2 values", "psi0 / psi2 values"},
    {"Fra_loadcomb", "Factors for Load combinations", "Faktorer for Lastkombinasjoner"},
    {"Fra_sik_class", "Safety class", "Safety class"},
    {"Fra_class_nor", "Reliability class", "P\u00e5litighets klasse"},
    {"Fra_part_fac", "Partialfactors", "Partialfaktorer"},
    {"Lbl_gamma_timb", "Timber", "Trelast"},
    {"Lbl_kcr_timb", "Timber", "Trelast"},
    {"Lbl_gamma_lam", "Laminated", "Laminert"},
    {"Lbl_kcr_lam", "Laminated", "Laminert"},
    {"Lbl_gamma_kerto", "Kerto", "Kerto"},
    {"Lbl_kcr_kerto", "Kerto", "Kerto"},
    {"Lbl_gamma_k_bjelke", "K-bjelke", "K-bjelke"},
    {"Lbl_kcr_k_bjelke", "K-bjelke", "K-bjelke"},
    {"Fra_kcr", "Crack factor Ref. 6.1.7", "Sprekk faktor Ref. 6.1.7"},
    // The same in both languages.
    {"Cmd_eng", "English", "English"},
    {"Cmd_nor", "Norsk", "Norsk"},
    {"Cmd_psi0", "?", "?"},
    {"Lbl_psi0", "psi0", "psi0"},
    {"Lbl_psi2", "psi2", "psi2"},
    {"Lbl_psi_Q1", "Q1:", "Q1:"},
    {"Lbl_psi_Q2", "Q2:", "Q2:"},
    {"Opt_class1", "1", "1"},
    {"Opt_class2", "2", "2"},
    {"Opt_class3", "3", "3"},
    {"Lbl_kfi_sfd_1", "Sk =", "Sk ="},
    {"Opt_class_nor_1", "1", "1"},
    {"Opt_class_nor_2_4", "2 - 4", "2 - 4"},
    {"Lbl_kfi_1", "Kfi = ", "Kfi = "},
    {"chk_kcr", "Timber and Laminated exposed for sunshine and rain ",
     "Timber and Laminated exposed for sunshine and rain "},
    {"Cmd_ok", "OK", "OK"},
};

} // namespace

std::string setup_factor_box(SetupFactor factor)
{
    return field_of(factor).box;
}

float setup_factor_value(const Model& m, SetupFactor factor)
{
    return m.*field_of(factor).field;
}

void set_setup_factor(Model& m, SetupFactor factor, float value)
{
    m.*field_of(factor).field = value;
}

std::string setup_factor_text(const Model& m, SetupFactor factor)
{
    return format_number(setup_factor_value(m, factor), "0.00", m.decimal_comma != 0);
}

BoxCommit commit_setup_factor(Model& m, SetupFactor factor, std::string_view text)
{
    const Converted<float> c = TextToNumber(text, m.decimal_comma);
    set_setup_factor(m, factor, c.value.value_or(0.0F));
    return {c.value ? setup_factor_text(m, factor) : std::string(text),
            check_box(m, Box::SetupFactor, setup_factor_value(m, factor))};
}

std::optional<SetupFactorFailure> setup_factor_failure(const Model& m)
{
    for (const SetupFactor factor : kSetupFactors) {
        if (auto message = check_box(m, Box::SetupFactor, setup_factor_value(m, factor))) {
            return SetupFactorFailure{factor, *message};
        }
    }
    return std::nullopt;
}

void set_kcr_exposed(Model& m, bool exposed)
{
    m.kcr_exposed = flag_of(exposed);
}

std::vector<std::string> country_items(const FileDatabase& db)
{
    std::vector<std::string> items;
    const int last = db.last_row();
    for (int row = 0; row <= last; ++row) {
        const std::string& title = db.setup_table[static_cast<std::size_t>(row)].annex_title;
        items.push_back(title.empty() ? "EC5 " : "EC5 + " + title);
    }
    return items;
}

void change_country(Model& m, int row)
{
    StoreSetupRow(m);
    choose_annex_row(m, row);
}

bool give_up_country(Model& m, int opened_row)
{
    if (m.setup.setup_row == opened_row) {
        return false;
    }
    change_country(m, opened_row);
    return true;
}

std::vector<std::string> psi_items(PsiList list)
{
    const int first = list == PsiList::Psi0_Q1 || list == PsiList::Psi0_Q2 ? 2 : 0;
    std::vector<std::string> items;
    for (int k = 0; k < psi_list_size(list); ++k) {
        items.push_back(format_number((first + k) / 10.0, "0.0"));
    }
    return items;
}

int psi_position(const Model& m, PsiList list)
{
    int index = -1;
    switch (list) {
    case PsiList::Psi0_Q1:
        index = m.psi0_1_index;
        break;
    case PsiList::Psi0_Q2:
        index = m.psi0_2_index;
        break;
    case PsiList::Psi2_Q1:
        index = m.psi2_1_index;
        break;
    case PsiList::Psi2_Q2:
        index = m.psi2_2_index;
        break;
    }
    return index >= 0 && index < psi_list_size(list) ? index : -1;
}

SetupView setup_view(const Model& m)
{
    SetupView view;
    // A new annex's class has its factor before the next run sets it.
    view.kfi = format_number(kfi_of(m.annex, m.safety_class).value_or(m.kfi), "0.00", m.decimal_comma != 0);
    if (m.annex == "Swe") {
        view.frame = ClassFrame::Sweden;
        view.kcr_check = true;
        view.sweden_option = m.safety_class >= 1 && m.safety_class <= 3 ? m.safety_class : 0;
    } else if (m.annex == "Nor") {
        view.frame = ClassFrame::Norway;
        view.norway_class_1 = m.safety_class == 1;
    }
    return view;
}

std::vector<Caption> setup_dialog_captions(const std::string& language)
{
    return pick_captions(language, kCaptions);
}

std::optional<Message> save_setup(Model& m, const std::filesystem::path& folder)
{
    StoreSetupRow(m);
    const std::filesystem::path path = folder / file_name(DataFile::Setup);
    const std::optional<ReplaceFailure> failed = WriteSetupFile(m.setup, m.decimal_comma, path);
    if (!failed) {
        return std::nullopt;
    }
    const bool eng = m.language == "Eng";
    std::string why;
    switch (failed->kind) {
    case ReplaceFailure::Kind::ReadOnly:
        why = eng ? ": the file is read-only" : ": filen er skrivebeskyttet";
        break;
    case ReplaceFailure::Kind::InUse:
        why = eng ? ": another program has the file open" : ": et annet program har filen \u00e5pen";
        break;
    case ReplaceFailure::Kind::Unwritable:
        break;
    }
    return eng ? Message{0, "", "The setup was not saved to " + utf8_text(path) + why}
               : Message{0, "", "Oppsettet ble ikke lagret i " + utf8_text(path) + why};
}

} // namespace kvelder
