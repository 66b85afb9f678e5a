#include "ui/class_dialog.h"

#include "files/number_format.h"
#include "files/text_number.h"
#include "ui/edits.h"

namespace kvelder {
namespace {

constexpr CaptionPair kCaptions[] = {
    {kClassForm, "Classes/factors", "Klasser /faktorer"},
    {"Fra_ksy", "Load sharing factor", "System styrke faktor"},
    {"Fra_lastvar", "Load-duration class", "Lastvarighets klasse"},
    {"Fra_klimaklasse", "Service class (moisture)", "Klima klasse"},
    {"Opt_Lastvarighet_0", "Permanent action", "Permanent last"},
    {"Opt_Lastvarighet_1", "Long term action", "Langtid last"},
    {"Opt_Lastvarighet_2", "Medium term action", "Halv\u00e5rs last"},
    {"Opt_Lastvarighet_3", "Short term action", "Kort tids last"},
    {"Opt_Lastvarighet_4", "Instantaneous action", "\u00d8yeblikks last"},
    // The same in both languages.
    {"Opt_klimaklasse_0", "1", "1"},
    {"Opt_klimaklasse_1", "2", "2"},
    {"Opt_klimaklasse_2", "3", "3"},
    {"Lbl_ksy", "ksys =", "ksys ="},
    {"Cmd_klima", "?", "?"},
    {"Cmd_lastvar", "?", "?"},
    {"Cmd_ok", "OK", "OK"},
};

} // namespace

std::vector<Caption> class_dialog_captions(const std::string& language)
{
    return pick_captions(language, kCaptions);
}

} // namespace kvelder
