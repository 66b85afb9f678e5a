#include "ui/help_texts.h"

#include <iterator>
#include <utility>

namespace kvelder {
namespace {

// The texts stand as the program has always shown them, spelling and spacing
// included.

HelpLine row(std::string label, std::string text)
{
    return {std::move(label), {{std::move(text)}}, {}, false};
}

HelpLine more(std::string text)
{
    return row({}, std::move(text));
}

// A text across the columns.
HelpLine wide(std::string text)
{
    return {std::move(text), {}, {}, false};
}

HelpLine heading(std::string text)
{
    return {std::move(text), {}, {}, true};
}

HelpLine blank()
{
    return {};
}

HelpLine psi(std::string category, std::string psi0, std::string psi2)
{
    return {std::move(category), {{std::move(psi0)}}, std::move(psi2), false};
}

HelpPage service_classes(bool eng)
{
    if (eng) {
        return {"Definition of service classes :",
                {row("Class 1:", "The average moisture content of soft wood < 12 %"), blank(),
                 row("Class 2 :", "The average moisture content of soft wood < 20 %"), blank(),
                 row("Class 3 :", "Higher moisture content than service Class 2")}};
    }
    return {"Definisjon av klimaklasser :",
            {row("Klasse 1 :", "Bjelker innend\u00f8rs i rom som er vanligvis oppvarmet."),
             more("Bjelker i yttervegger som vanligvis er oppvarmet"),
             more("og som er beskyttet av dampsperre p\u00e5 varm side"),
             more("og av vidsperre og luftet kledning p\u00e5 motsatt side."), blank(),
             row("Klasse 2 :", "Bjelker i bygninger som ikke er oppvarmet men ventilert"),
             more("samt bjelker i friluft som er beskyttet mot regn."), blank(),
             row("Klasse 3 :", "Bjelker som ikke er beskyttet mot regn")}};
}

HelpPage load_durations(bool eng)
{
    if (eng) {
        return {"Definition of Load-duration classes :",
                {row("Permanent :", "Self-weight, (more than 10 years)"),
                 row("Long-term :", "Storage, (6 months - 10 years)"),
                 row("Medium-term :", "Imposed floor load, snow, (1 week - 6 months)"),
                 row("Short-term :", "Wind,snow  (less than a week)"),
                 row("Instantaneous :", "Wind and accidental loads"), blank(),
                 row("NB :", "If a loadcombination consists of loads from different"),
                 more("load-duration classes, the user should choose the load."),
                 more("with the shortest duration for calculating kmod")}};
    }
    return {"Definisjon av lastvarighetsklasser :",
            {row("Permanent :", "Egenlast, (mer enn 10 \u00e5r)"),
             row("Langtidslast :", "Lager last, (6 m\u00e5neder -10 \u00e5r)"),
             row("Halv\u00e5rslast :", "Gulv last, sn\u00f8, (1 uke - 6 m\u00e5neder)"),
             more("Personlast i offentlige lokaler"),
             row("Kortidslast :", "Vindlast,sn\u00f8  (mindre enn en uke)"),
             row("\u00d8yeblikkslast :", "Vind og Ulykkeslast"), blank(),
             row("NB :", "Dersom en lastkombinasjon best\u00e5r av laster fra ulike "),
             more("lastvarihetsklasser, m\u00e5 brukeren velge lasten med "),
             more("kortest varighet for beregning av kmod")}};
}

HelpPage buckling(bool eng)
{
    // The usage line reads the same in both languages.
    HelpLine usage{{},
                   {{"Usage factor for torsional stability Uf= Sigma "},
                    {"m,y,d", true},
                    {" / k"},
                    {"crit", true},
                    {" x f"},
                    {"m,d", true}},
                   {},
                   false};
    HelpLine manual{{},
                    {{eng ? "Ref. theory manual for more detailed description of k"
                          : "Ref. teori manual for mere detaljert beskrivelse av k"},
                     {"crit", true}},
                    {},
                    false};
    return {eng ? "Calcuation of lateral torsional stability" : "Beregning vipping",
            {usage, blank(), manual}};
}

HelpPage supports(bool eng)
{
    HelpPage page;
    if (eng) {
        page = {"Definition of support",
                {more("fc90d = Allowable design bearing stress "),
                 more("kc90 =  Factor that takes the load configuration into account etc. "),
                 more("lef  =  Bearing length, the effective length of the contact area "), blank(),
                 more("The program will conservatively use kc90 = 1.0 "),
                 more("If the user wants to calculate a more detailed value of kc90,"),
                 more("it can be calculated according to EC5 6.1.5 and given as input."),
                 more("The bearing length lef is taken according to EC5 6.1.5 and fig. 6.2."), blank(),
                 more("Sigma c90 = R / (b x lef),  Uf = Sigma c90 / (kc90 x fc90d)"),
                 more("R is the largest design support force, b the width of the beam."),
                 more("A fixed end is not checked for bearing."), blank()}};
    } else {
        page = {"Definisjon av oppleggsvariable",
                {more("fc90d= Tillatt trykkspenning "),
                 more("kc90 =  Faktor som tar hensyn lastkonfigurasjon etc. "),
                 more("lef  =  Oppleggslengde, effektiv lengde av kontaktflaten "), blank(),
                 more("Programmet vil konservativt bruke faktoren kc90 = 1.0 "),
                 more("Dersom brukeren \u00f8nsker \u00e5 beregne en mer detaljert verdi av kc90,"),
                 more("kan den beregnes etter EC5 6.1.5 og gis som input."),
                 more("Oppleggslengden lef tas etter EC5 6.1.5 og fig. 6.2."), blank(),
                 more("Sigma c90 = R / (b x lef),  Uf = Sigma c90 / (kc90 x fc90d)"),
                 more("R er st\u00f8rste dimensjonerende opplagerkraft, b bjelkens bredde."),
                 more("Et innspent opplegg kontrolleres ikke for trykk."), blank()}};
    }
    for (HelpLine& line : effective_length_lines(eng ? "Eng" : "Nor")) {
        page.lines.push_back(std::move(line));
    }
    return page;
}

// The formulas of the two design situations as the annex factors them; the
// serviceability combination is the same for every annex.
HelpPage combinations(HelpForm form, bool eng)
{
    HelpPage page;
    std::string a;
    std::string b;
    std::vector<HelpLine> factor;
    switch (form) {
    case HelpForm::LoadCombNorway:
        page.title =
            eng ? "Design situation 6.10a og 6.10b, Norway" : "Design situasjon 6.10a og 6.10b, Norge";
        a = "Kfi*1.35*G + Kfi*1.5*psi0_1*Q1 + Kfi*1.5*psi0_2*Q2";
        b = "Kfi*0.89*1.35*G +  Kfi*1.5*Q1 + Kfi*1.5*psi0_2*Q2";
        factor = {
            eng ? row("Kfi :", "0.9 in reliability class 1, 1.0 in reliability class 2 - 4")
                : row("Kfi :", "0.9 i p\u00e5litelighetsklasse 1, 1.0 i p\u00e5litelighetsklasse 2 - 4")};
        break;
    case HelpForm::LoadCombSweden:
        page.title = "Design situation 6.10a og 6.10b, Sweden";
        a = "Sk*1.35*G";
        b = "Sk*0.89*1.35*G + Sk*1.5*Q1 + Sk*1.5*psi0_2*Q2";
        factor = {eng ? row("Sk :", "0.83, 0.91 and 1.0 in safety class 1, 2 and 3")
                      : row("Sk :", "0.83, 0.91 og 1.0 i sikkerhetsklasse 1, 2 og 3")};
        break;
    default:
        page.title = "Loadcombination 6.10a og 6.10b , EC";
        a = "1.35*G + 1.5*psi0_1*Q1 + 1.5*psi0_2*Q2";
        b = "0.85*1.35*G + 1.5*Q1 + 1.5*psi0_2*Q2";
        break;
    }
    if (eng) {
        page.lines = {wide("The following combinations of basic loads and loadfactors"),
                      wide(form == HelpForm::LoadCombEurocode
                               ? "are used to establish design situasjon 6.10a og 6.10.b"
                               : "are used to establish design situation 6.10a and 6.10b")};
    } else {
        page.lines = {wide("F\u00f8lgende kombinasjoner av basis laster og lastfaktorer"),
                      wide("er brukt for \u00e5 etablere design situasjon 6.10a og 6.10b")};
    }
    page.lines.push_back(blank());
    page.lines.push_back(heading("ULS"));
    page.lines.push_back(row("6.10a :", a));
    page.lines.push_back(row("6.10b :", b));
    page.lines.push_back(blank());
    page.lines.insert(page.lines.end(), factor.begin(), factor.end());
    if (eng) {
        page.lines.push_back(row("psi0_1, psi0_2 :", "Combination values of Q1 and Q2"));
    } else {
        page.lines.push_back(row("psi0_1, psi0_2 :", "Kombinasjonsfaktorer for Q1 og Q2"));
    }
    page.lines.push_back(blank());
    page.lines.push_back(heading(eng ? "SLS (Characteristic combination)" : "SLS"));
    page.lines.push_back(more("G *(1+kdef) + Q1*(1+ps2_1*kdef) + Q2*(ps0_2+ps2_2*kdef)"));
    page.lines.push_back(blank());
    if (eng) {
        page.lines.push_back(row("kdef :", "0.6, 0.8 and 2.0 in service class 1, 2 and 3"));
        page.lines.push_back(row("ps0_2, ps2_1, ps2_2 :", "psi0 of Q2 and psi2 of Q1 and Q2"));
    } else {
        page.lines.push_back(row("kdef :", "0.6, 0.8 og 2.0 i klimaklasse 1, 2 og 3"));
        page.lines.push_back(row("ps0_2, ps2_1, ps2_2 :", "psi0 for Q2 og psi2 for Q1 og Q2"));
    }
    return page;
}

HelpPage psi_values(HelpForm form, bool eng)
{
    HelpPage page;
    switch (form) {
    case HelpForm::PsiNorway:
        page.title = eng ? "Recommended values of psi0/psi2 factors, Norway"
                         : "Anbefalte verdier for psi0/Psi2 faktorer, Norge";
        page.lines.push_back(
            heading(eng ? "Imposed loads in buildings category" : "Nyttelastkategorier for bygninger"));
        break;
    case HelpForm::PsiSweden:
        page.title = "Recommended values of psi0/psi2 factors, Sweden";
        page.lines.push_back(
            heading(eng ? "Imposed loads in buildings category" : "Nyttelastkategorier for bygninger"));
        break;
    default:
        page.title = "Recommended values of psi0/psi2 values, Eurocode";
        page.lines.push_back(heading("Imposed loads in buildings"));
        break;
    }
    // The categories are the same in every annex.
    const char* const categories_eng[] = {"A : Domestic, residential areas",
                                          "B : Office areas",
                                          "C : Congregation areas",
                                          "D : Shopping areas",
                                          "E : Storage areas",
                                          "F : Traffic areas, vechicle weight < 30kN",
                                          "G : Traffic areas, vechicle weight > 30kN",
                                          "H : Roof"};
    const char* const categories_nor[] = {"A : Boliger",
                                          "B : Kontorer",
                                          "C : Forsamlingslokaler",
                                          "D : Butikker",
                                          "E : Lager",
                                          "F : Trafikk arealer, kj\u00f8ret\u00f8yvekt < 30kN",
                                          "G :  Trafikk arealer, kj\u00f8ret\u00f8yvekt > 30kN",
                                          "H : Tak"};
    const char* const values[][2] = {{"psi0 = 0.7", "psi2 = 0.3"}, {"psi0 = 0.7", "psi2 = 0.3"},
                                     {"psi0 = 0.7", "psi2 = 0.6"}, {"psi0 = 0.7", "psi2 = 0.6"},
                                     {"psi0 = 1.0", "psi2 = 0.8"}, {"psi0 = 0.7", "psi2 = 0.6"},
                                     {"psi0 = 0.7", "psi2 = 0.3"}, {"psi0 = 0.0", "psi2 = 0.0"}};
    for (std::size_t k = 0; k < std::size(values); ++k) {
        page.lines.push_back(psi(eng ? categories_eng[k] : categories_nor[k], values[k][0], values[k][1]));
    }
    page.lines.push_back(blank());
    switch (form) {
    case HelpForm::PsiNorway:
        page.lines.push_back(psi(eng ? "Snow " : "Sn\u00f8 ", "psi0 = 0.7", "psi2 = 0.2"));
        page.lines.push_back(psi(eng ? "Wind load" : "Vind laster", "psi0 = 0.6", "psi2 = 0.0"));
        break;
    case HelpForm::PsiSweden:
        page.lines.push_back(psi("Snow, sk>= 3 kN/m2", "psi0 = 0.8", "psi2 = 0.2"));
        page.lines.push_back(psi("Snow, 2 <= sk < 3 kN/m2", "psi0 = 0.7", "psi2 = 0.2"));
        page.lines.push_back(psi("Snow, sk < 2 kN/m2", "psi0 = 0.6", "psi2 = 0.1"));
        page.lines.push_back(psi("Wind load", "psi0 = 0.3", "psi2 = 0.0"));
        break;
    default:
        page.lines.push_back(psi("Snow, altitude H > 1000 m a.s.l", "psi0 = 0.7", "psi2 = 0.2"));
        page.lines.push_back(psi("Snow, altitude H =< 1000 m a.s.l", "psi0 = 0.5", "psi2 = 0.0"));
        // Users know this row by its two psi0.
        page.lines.push_back(psi("Wind loads", "psi0 = 0.6", "psi0 = 0.0"));
        break;
    }
    return page;
}

HelpPage patterns(bool patterned, bool eng)
{
    if (!patterned) {
        return {eng ? "Permanent + total variable load" : "Permanent + total variabel last",
                {more(eng ? "The permanent load G is combined with the total variable loads"
                          : "Den permanente last G er kombinert med den totale variable last"),
                 more(eng ? "Q1 + Q2 as described below :" : "Q1 + Q2 som beskrevet nedenfor :")}};
    }
    return {eng ? "Permanent + different variable loadcases" : "Permanent + ulike variable lasttilfeller",
            {more(eng ? "The permanent load G and the variable load Q2 are combined with"
                      : "Den permanente last G og den variable last Q2 er kombinert med"),
             more(eng ? "each loadcase of the variable load Q1 as described below :"
                      : "hvert lasttilfelle av den variable last Q1 som beskrevet nedenfor :")}};
}

} // namespace

std::string help_caption(HelpForm form, const std::string& language)
{
    const bool eng = language == "Eng";
    switch (form) {
    case HelpForm::ServiceClass:
        return eng ? "Service class" : "Klima klasse";
    case HelpForm::LoadDuration:
        return eng ? "Load-duration class" : "Lastvarighetsklasse";
    case HelpForm::Buckling:
        return eng ? "Lateral torsional buckling" : "Vipping";
    case HelpForm::Supports:
        return eng ? "Definition of support" : "Definisjon av oppleggsvariable";
    default:
        // The tables and the pictures carry their title as the form's.
        return help_page(form, language).title;
    }
}

HelpPage help_page(HelpForm form, const std::string& language)
{
    const bool eng = language == "Eng";
    switch (form) {
    case HelpForm::ServiceClass:
        return service_classes(eng);
    case HelpForm::LoadDuration:
        return load_durations(eng);
    case HelpForm::Buckling:
        return buckling(eng);
    case HelpForm::Supports:
        return supports(eng);
    case HelpForm::LoadCombNorway:
    case HelpForm::LoadCombEurocode:
    case HelpForm::LoadCombSweden:
        return combinations(form, eng);
    case HelpForm::PsiEurocode:
    case HelpForm::PsiNorway:
    case HelpForm::PsiSweden:
        return psi_values(form, eng);
    case HelpForm::PatternsTotal:
        return patterns(false, eng);
    case HelpForm::PatternsQ1:
        return patterns(true, eng);
    }
    return {};
}

std::vector<HelpLine> effective_length_lines(const std::string& language)
{
    if (language == "Eng") {
        return {more("l        =   span "), more("lef_factor  =  lef / l,  Ref. EN-1995-1-1, table 6.1  "),
                more("lef             =  l x lef_factor"), more("Load at top of beam , lef = lef + 2 x h"),
                more("Load at bottom of beam , lef = lef - 0.5 x h")};
    }
    return {more("l        =   feltlengde "), more("lef_faktor  =  lef / l,  Ref. EN-1995-1-1, tabell 6.1  "),
            more("lef             =  l x lef_faktor"),
            more("Ved last p\u00e5 overkant bjelke , lef = lef + 2 x h"),
            more("Ved last i underkant bjelke , lef = lef - 0.5 x h")};
}

std::string permanent_strip_caption(const std::string& language, int nf)
{
    const bool eng = language == "Eng";
    if (nf == 2) {
        return eng ? "Permanent load, G" : "Permanent last, G";
    }
    return eng ? "Permanent load G" : "Permanent last G";
}

std::string q1_strip_caption(const std::string& language, int number)
{
    const bool eng = language == "Eng";
    std::string caption = eng ? "Variable load Q1" : "Variabel last Q1";
    if (number > 0) {
        caption += (eng ? " no." : " nr.") + std::to_string(number);
    }
    return caption;
}

std::string q2_strip_caption(const std::string& language)
{
    return language == "Eng" ? "Variable load Q2" : "Variabel last Q2";
}

} // namespace kvelder
