#include "ui/captions.h"

#include "model/model.h"

namespace kvelder {
namespace {

// Texts that follow the beam rather than the table alone.
enum class From { Table, CombRule, Duration };

struct Pair {
    const char* control;
    const char* eng;
    const char* nor; // nullptr: the Norwegian window keeps the form's text
    From from = From::Table;
};

// The texts stand as the program has always shown them, trailing blanks and
// spelling included: users know the window by them.
constexpr Pair kWindow[] = {
    // Menu and the upper part of the window.
    {"mnufile", "File ", "Fil "},
    {"mnunew", "New", "Ny"},
    {"mnufileitem_1", "Open ", "\u00c5pne "},
    {"mnufileitem_2", "Save ", "Lagre "},
    {"mnufileitem_3", "Save As ", "Lagre som "},
    {"mnuutskrift", "Print ", "Skriv ut "},
    {"mnuHjelp", "Help ", "Hjelp "},
    {"mnuexit", "Exit", nullptr},
    {"lbl_prosjekt", "Project ", "Prosjekt "},
    {"lblid", "Identification ", "Identifikasjon "},
    {"frabjelk", "Beam input", "Bjelke input"},
    {"frmGeometry", "Span (m) and support", "Bjelkefelt (m) og opplager"},
    {"frmSpan", "Number of spans", "Antall bjelkefelt"},
    {"frmLoad", "Loadings", "Laster"},
    {"Check_profilvekt", "Selfweight included", "Egenvekt inkludert"},
    {"fraloadcomb", "Type of loadcombination", "Type lastkombinasjon"},
    {"Opt_loadcomb1", "Permanent- + total variable load", "Permanent- + total nyttelast  "},
    {"Opt_loadcomb2", "Permanent- + different variable loadcases", "Permanent- + ulike nyttelast tilfelle "},
    {"Fraresult", "Results  ", "Resultater  ", From::CombRule},
    {"Fra_psi0", "psi0/psi2 values", "psi0/psi2 verdier"},
    {"Lbl_psi0_1_1", "Q1:", " Q1:"},
    {"Lbl_psi0_2_1", "Q2:", " Q2:"},
    {"Fra_loadcomb_a_b", "Design situation", "Design situasjon"},
    {"frageolast", "Geometry and loadings", "Geometri og laster"},
    {"Fraegenlast", "Permanent ( kN, kN/m, kNm )", "Permanent ( kN, kN/m, kNm )"},
    {"Cmd_grid_krefter", "Results along the beam", "Resultater langs bjelken"},
    // Beam type, dimensions, classes and results.
    {"mnuklasse", "Classes/factors", "Klasse/faktorer"},
    {"mnumax1", "Compressed output ", "Forenklet utskrift "},
    {"mnumax2", "Detailed output ", "Detaljert utskrift "},
    {"Fra_beam", "Beam type and Material", "Bjelketype og Material"},
    {"frmDimension", "Dimensions (mm)", "Dimensjoner (mm)"},
    {"optStandard", "Standard", "Standerd"},
    {"optRect", "Rect.", "Rekt."},
    {"optCircle", "Circ", "Sirk"},
    {"Cmd_tverrsnitt", "Section data", "Tverrsnitts data"},
    {"Cmd_finn_tverrsnitt", "Find section", "Finn tverrsnitt"},
    {"Fra_Fak", "Classes/factors", "Klasser/faktorer"},
    {"Lbl_klima_1", "Service class=", "Klima klasse="},
    {"Lbl_lastvarig1", "Load-duration=", "Last varighet="},
    {"Lbl_lastvarig2", "", "", From::Duration},
    {"Fra_spenning", "Design strength stresses", "Dimensjonerende materialfasthet"},
    {"Fra_oppleggsdata", "Support data", "Oppleggs data"},
    {"Lbl_oppleggs_nr", "Support nr.", "Opplegg nr."},
    {"lbl_opp_l", "lef", "lef"},
    {"Fra_vipping", "Torsional buckling", "Vipping"},
    {"Lblcontrtau", "Shear", "Skj\u00e6r"},
    {"Lblcontrvipp", "Tor. buck", nullptr},
    {"Fracodesjekk", "Section and lateral buckling control", "Tverrsnitts- og vippekontroll"},
    {"Fra_opplegg_last", "Control of support pressure", "Kontroll av oppleggstrykk"},
    {"Lbl_opp_nr1", "Support", "Opplegg"},
    {"cmd_detres", "Detailed results", "Detaljerte resultater"},
    // Set together with the family list.
    {"lblBeamType", "Beam type:", "Bjelketype:"},
    {"frmSuppLeft", "Left support", "Venstre Opplager"},
    {"frmSuppRight", "Right support", "H\u00f6yre Opplager"},
    {"lblMaterial", "Material:", "Material:"},
};

constexpr const char* kDurationEng[] = {"Permanent", "Long term", "Medium term", "Short term",
                                        "Instantaneous"};
constexpr const char* kDurationNor[] = {"Permanent", "Langtids", "Halv\u00e5rs", "Kort tids",
                                        "\u00d8yeblikk"};

// The texts no language sets: symbols, numbers, help buttons and a few English words
// that stay in both languages. The support options follow the kinds F, R, I.
struct FormText {
    const char* control;
    const char* text;
};

constexpr FormText kForm[] = {
    {"mnunew", "New"},
    {"mnuexit", "Exit"},
    {"mnusetup", "Setup"},
    {"mnuman", "Manual"},
    {"mnuUpdate", "Update information"},
    {"mnuabout", "About"},
    {"Optfelt_0", "1"},
    {"Optfelt_1", "2"},
    {"Optfelt_2", "3"},
    {"Optfelt_3", "4"},
    {"Optfelt_4", "5"},
    {"optSuppLeft_0", "Free"},
    {"optSuppLeft_1", "Simple"},
    {"optSuppLeft_2", "Fixed"},
    {"optSuppRight_0", "Free"},
    {"optSuppRight_1", "Simple"},
    {"optSuppRight_2", "Fixed"},
    {"Cmd_opplegg", "?"},
    {"Cmdegenlast", "G"},
    {"Cmdnyttelast", "Q1"},
    {"Cmdnyttelast_2", "Q2"},
    {"Cmd_loadcomb2", "?"},
    {"Opt_610a", "6.10a"},
    {"Opt_610b", "6.10b"},
    {"Cmd_610a_b", "?"},
    {"Lbl_b", "b"},
    {"Lbl_h", "h"},
    {"Lbl_d", "d"},
    {"Lbl_ksy1", "ksys="},
    {"Lbl_gamma1", "gamma_M="},
    {"Lbl_kcr1", "kcr="},
    {"Lbl_kmod1", "kmod="},
    {"Lbl_kdef1", "kdef="},
    {"Lbl_khy1", "kh="},
    {"Lbl_fmk1", "fmk ="},
    {"lbl_fvk1", "fvk ="},
    {"Lbl_fc90k1", "fc90k ="},
    {"lbl_fmd1", "fmd ="},
    {"Lbl_fvd1", "fvd ="},
    {"Lbl_fc90d1", "fc90d ="},
    {"Check_vipping", "Check"},
    {"Cmd_input_vipping", "Data"},
    {"Cmd_vipp_text", "?"},
    {"Frakrefter", "Moment and shear"},
    {"Fradisp", "Deflection (mm)"},
    {"Lblbj", "Nr."},
    {"Lblmxl", "x (m)"},
    {"Lblmom", "Uf"},
    {"Lbltxl", "x (m)"},
    {"Lbltau", "Uf"},
    {"Lblvipp", "Uf"},
    {"Lblcontrmom", "Moment"},
    {"Lblcontrvipp", "Tor. buck"},
    {"Lbl_uf_trykk1", "Uf"},
    {"Lbl_kc901", "kc90"},
};

// Words of controls the program added, in both languages, applied after the
// program's own tables.
constexpr Pair kAdded[] = {
    {"mnuman", "Manual", "Brukermanual"},
    {"mnuUpdate", "Update information", "Oppdateringer"},
    {"mnuabout", "About", "Om programmet"},
    {"mnupdf", "Save report as PDF\u2026", "Lagre rapport som PDF\u2026"},
    {"optSuppLeft_0", "Free", "Fri"},
    {"optSuppLeft_1", "Simple", "Opplagt"},
    {"optSuppLeft_2", "Fixed", "Innspent"},
    {"optSuppRight_0", "Free", "Fri"},
    {"optSuppRight_1", "Simple", "Opplagt"},
    {"optSuppRight_2", "Fixed", "Innspent"},
    {"Check_vipping", "Check", "Kontroll"},
    {"Frakrefter", "Moment and shear", "Moment og skj\u00e6r"},
    {"Fradisp", "Deflection (mm)", "Nedb\u00f8yning (mm)"},
};

std::string state_text(const Pair& p, bool english, const std::string& comb_rule, int duration_class)
{
    switch (p.from) {
    case From::CombRule:
        return std::string(english ? p.eng : p.nor) + "(" + expression_name(comb_rule) + ")";
    case From::Duration:
        if (duration_class < 1 || duration_class > 5) {
            return {};
        }
        return (english ? kDurationEng : kDurationNor)[duration_class - 1];
    case From::Table:
        break;
    }
    return english ? p.eng : p.nor;
}

bool is_english(const std::string& language)
{
    return language == "Eng";
}

} // namespace

std::vector<Caption> form_captions()
{
    std::vector<Caption> captions;
    for (const FormText& f : kForm) {
        captions.push_back({f.control, f.text});
    }
    return captions;
}

std::vector<Caption> window_captions(const std::string& language, const std::string& comb_rule,
                                     int duration_class)
{
    const bool english = is_english(language);
    std::vector<Caption> captions;
    for (const Pair& p : kWindow) {
        if (english || p.nor != nullptr) {
            captions.push_back({p.control, state_text(p, english, comb_rule, duration_class)});
        }
    }
    for (const Pair& p : kAdded) {
        captions.push_back({p.control, english ? p.eng : p.nor});
    }
    return captions;
}

std::vector<Caption> pick_captions(const std::string& language, std::span<const CaptionPair> pairs)
{
    const bool eng = language == "Eng";
    std::vector<Caption> captions;
    captions.reserve(pairs.size());
    for (const CaptionPair& p : pairs) {
        captions.push_back({p.control, eng ? p.eng : p.nor});
    }
    return captions;
}

std::array<std::string, 4> family_names(const std::string& language)
{
    if (is_english(language)) {
        return {"Timber", "Laminated", "Kerto", "K-bjelke"};
    }
    return {"Trelast", "Laminert", "Kerto", "K-bjelke"};
}

std::string program_title()
{
    return "Kvelder";
}

std::string program_line(const std::string& language)
{
    return is_english(language) ? "Analysis of a beam according to EC5"
                                : "Beregning av en bjelke if\u00f8lge EC5";
}

std::string version_number()
{
    return "1.3.0";
}

std::string version_line()
{
    return "Version  " + version_number();
}

} // namespace kvelder
