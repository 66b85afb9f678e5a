#include "ui/section_finder.h"

#include "files/number_format.h"
#include "ui/edits.h"

namespace kvelder {
namespace {

std::string check_words(GoverningCheck check, bool eng)
{
    switch (check) {
    case GoverningCheck::Bending:
        return eng ? "bending" : "b\u00f8yning";
    case GoverningCheck::Shear:
        return eng ? "shear" : "skj\u00e6r";
    case GoverningCheck::Buckling:
        return eng ? "lateral buckling" : "vipping";
    case GoverningCheck::Bearing:
        return eng ? "bearing" : "oppleggstrykk";
    }
    return {};
}

} // namespace

std::vector<Caption> section_finder_captions(const std::string& language)
{
    return pick_captions(language, {
                                       {kSectionFinderForm, "Find section", "Finn tverrsnitt"},
                                       {"Cmd_velg", "Choose", "Velg"},
                                       {"Cmd_ok", "Close", "Lukk"},
                                   });
}

std::string search_summary(const Model& m, const SectionSearch& found)
{
    const bool eng = m.language == "Eng";
    if (found.refused == SearchRefusal::Circle) {
        return eng ? "A circular section: the search tries the rectangles of the family."
                   : "Sirkul\u00e6rt tverrsnitt: s\u00f8ket pr\u00f8ver familiens rektangler.";
    }
    if (found.refused) {
        return eng ? "The beam fails its checks as it stands: " + found.detail
                   : "Bjelken feiler sine kontroller slik den st\u00e5r: " + found.detail;
    }
    if (found.candidates.empty()) {
        return eng ? "No section of the family could be calculated."
                   : "Ingen av familiens tverrsnitt kunne beregnes.";
    }
    const SectionCandidate& best = found.candidates.front();
    if (found.passes()) {
        return eng ? "The lightest section that carries the beam, and the next two:"
                   : "Letteste tverrsnitt som b\u00e6rer bjelken, og de to neste:";
    }
    return eng ? "No section of the family carries the beam. The best is " + best.profile +
                     ", with a largest usage factor of " + format_number(m, best.uf_max) + "."
               : "Ingen av familiens tverrsnitt b\u00e6rer bjelken. Best er " + best.profile +
                     ", med st\u00f8rste utnyttelse " + format_number(m, best.uf_max) + ".";
}

std::string candidate_line(const Model& m, const SectionCandidate& c)
{
    return c.profile + "    Uf = " + format_number(m, c.uf_max) + "    (" +
           check_words(c.governing, m.language == "Eng") + ")";
}

void choose_candidate(Model& m, const SectionCandidate& c)
{
    if (c.prof_index >= 0) {
        choose_profile(m, c.prof_index);
        return;
    }
    set_section_size(m, Box::Width, c.b);
    set_section_size(m, Box::Height, c.h);
}

} // namespace kvelder
