#include "ui/messages.h"

#include "files/path_text.h"
#include "files/project_file.h"

#include <array>

namespace kvelder {
namespace {

struct Entry {
    int code;
    const char* eng_title;
    const char* eng_text;
    const char* nor_title; // nullptr: no Norwegian entry
    const char* nor_text;
};

// The texts stand as the program has always shown them, spelling included.
constexpr std::array<Entry, 31> kTable{{
    {102, "Loadfactors ", "Number is  <= 0 ", "Lasterfaktorer ", "Lastfaktor er 0 or negativ "},
    {112, "Uniform loads", "Lines of loads have to filled in continuously", "Jevnt fordelte laster",
     "Lastlinjer m\u00e5 fylles inn fortl\u00f8pende"},
    {114, "Uniform loads", "Only one load for each span", "Jevn fordelt laster",
     "Bare en jevnt fordelt last pr. felt"},
    {116, "Uniform loads  ", "Span number > number of spans", "Jevnt fordelte laster  ",
     "Felt nr. > antall felt"},
    {120, "Uniform loads", "Span number given without loads", "Jevn fordelte laster",
     "Felt nr. angitt men ingen laster"},
    {132, "Uniform varying loads ", "Lines of loads have to filled in continuously", "Trapes laster ",
     "Lastlinjer m\u00e5 fylles inn fortl\u00f8pende"},
    {137, "Uniform varying loads ", "Span number > number of spans", "Trapes laster  ",
     "Felt nr. > antall felt"},
    {138, "Uniform varying loads ", "a > lenght span", "Trapes laster ", "a > bjelkelengde"},
    {140, "Uniform varying loads  ", "a > b ", "Trapes laster  ", "a > b "},
    {142, "Uniform varying loads ", "a = b", "Trapes laster  ", "a = b"},
    {144, "Uniform varying loads  ", "b = 0.0", "Trapes laster  ", "b = 0.0"},
    {146, "Uniform varying loads  ", "b > lenght of span", "Trapes laster  ", "b > feltlengde"},
    {148, "Uniform varying loads  ", "Overlapping av uniform varying loads", "Trapes laster  ",
     "Overlapping av trapeslaster"},
    {150, "Trapes laster  ", "Span number given without loads", "Trapes laster  ",
     "Felt nr angitt men ingen laster"},
    {152, "Uniform varying loads  ", "One negative and one positive loadvalue", "Trapes laster  ",
     "En negativ og posetiv last verdi"},
    {162, "Point loads  ", "Lines of loads have to filled in continuously", "Punkt laster  ",
     "Lastlinjer m\u00e5 fylles inn fortl\u00f8pende  "},
    {163, "Point loads  ", "Span nr. > number of spans", nullptr, nullptr},
    {166, "Point loads  ", "Non acceptable characters value of c", nullptr, nullptr},
    {168, "Point loads  ", "c > lenght of span", "Punkt laster  ", "c > feltlengde"},
    {170, "Point loads ", "c = 0 or c = lenght of span, load on support", "Punkt laster  ",
     "c = 0 elle c = feltlengde, last p\u00e5 oppleggspunkt"},
    {172, "Point loads  ", "Span number given without loads", "Punkt laster  ",
     "Felt nr er angitt men ingen last"},
    {174, "Point loads  ", "Point loads defined at same point on same span ", "Punkt laster  ",
     "Punktlaster angitt p\u00e5 samme punkt i samme felt"},
    {182, "Moment loads  ", "Lines of loads have to filled in continuously", "Moment laster  ",
     "Lastlinjer m\u00e5 fylles inn fortl\u00f8pende  "},
    {184, "Moment loads  ", "Span nr. > number of spans", nullptr, nullptr},
    {188, "Moment loads  ", "d > lenght of span", "Moment laster  ", "d > feltlengde"},
    {190, "Moment loads  ", "Span number given without loads", "Moment laster  ",
     "Felt nr er angitt men ingen momentlast"},
    {192, "Moment loads  ", "Moment loads defind on same the point on the same span", "Moment laster  ",
     "Moment last angitt i samme punkt p\u00e5 samme felt"},
    {194, "Moment loads  ", "Moment loads defind on same the suppport between two span", "Moment laster  ",
     "Momenter  angitt p\u00e5 samme support mellom to felt"},
    {196, "Moment loads  ", "Moment defined on a fixed support", "Moment laster  ",
     "Moment angitt p\u00e5 support hvor bjelken er fast innspent"},
    {200, "Loads  ", "The calculation will not be executed as permanent loads are not given", "Laster  ",
     "Beregningen vil ikke utf\u00f8res da egenlast mangler"},
    {500, "Stiffness analysis", "Data  missing, no executing of stiffness analysis", "Stivhetsanalyse",
     "Der mangler data for \u00e5 utf\u00f8re beregningen,"},
}};

const Entry* find(int code)
{
    for (const Entry& e : kTable) {
        if (e.code == code) {
            return &e;
        }
    }
    return nullptr;
}

} // namespace

std::optional<Message> ShowMessageEng(int code)
{
    const Entry* e = find(code);
    if (e == nullptr) {
        return std::nullopt;
    }
    return Message{code, e->eng_title, e->eng_text};
}

std::optional<Message> ShowMessageNor(int code)
{
    const Entry* e = find(code);
    if (e == nullptr || e->nor_title == nullptr) {
        return std::nullopt;
    }
    return Message{code, e->nor_title, e->nor_text};
}

std::optional<Message> numbered_message(const std::string& language, int code)
{
    return language == "Eng" ? ShowMessageEng(code) : ShowMessageNor(code);
}

Message span_length_missing(const std::string& language)
{
    return language == "Eng" ? Message{0, "Lenght of span", "Length of span is missing"}
                             : Message{0, "Feltlengde", "Feltlengde mangler"};
}

Message supports_unstable(const std::string& language)
{
    return language == "Eng" ? Message{0, "Support conditions",
                                       "Number of restraints are insufficient,the beam is unstable"}
                             : Message{0, "Oppleggsbetingelser",
                                       "Det er beskrevet for lite nullforskyvninger, bjelken er ustabil"};
}

Message data_file_message(const std::string& language, const DataFileNote& note)
{
    const bool eng = language == "Eng";
    const std::string file(file_name(note.file));
    const std::string where = utf8_text(note.folder / path_from_utf8(file));
    switch (note.kind) {
    case DataFileNote::Kind::Missing:
        return eng ? Message{0, "Data files",
                             "Can't read " + where + ". The program uses its own copy of " + file + "."}
                   : Message{0, "Datafiler",
                             "Kan ikke lese " + where + ". Programmet bruker sin egen kopi av " + file + "."};
    case DataFileNote::Kind::NoRows:
        return eng ? Message{0, "Data files",
                             where + " holds no data rows. The program uses its own copy of " + file + "."}
                   : Message{0, "Datafiler",
                             where + " har ingen datalinjer. Programmet bruker sin egen kopi av " + file +
                                 "."};
    case DataFileNote::Kind::RowsDropped: {
        const std::string rows = std::to_string(note.rows);
        return eng ? Message{0, "Data files",
                             where + " has more rows than the program holds; the last " + rows +
                                 " are not read."}
                   : Message{0, "Datafiler",
                             where + " har flere linjer enn programmet tar; de siste " + rows +
                                 " leses ikke."};
    }
    case DataFileNote::Kind::UnusableValues:
        break;
    }
    std::string list;
    for (const std::string& item : note.unusable) {
        list += (list.empty() ? "" : "; ") + item;
    }
    return eng ? Message{0, "Data files",
                         where + " holds values outside what the program accepts: " + list +
                             ". Results that use them cannot be trusted."}
               : Message{0, "Datafiler",
                         where + " har verdier utenfor det programmet godtar: " + list +
                             ". Resultater som bruker dem kan ikke stoles p\u00e5."};
}

Message project_message(const std::string& language, const ProjectFailure& failure)
{
    const bool eng = language == "Eng";
    const std::string path = utf8_text(failure.path);
    const std::string detail = failure.detail.empty() ? "" : " (" + failure.detail + ")";
    switch (failure.kind) {
    case ProjectFailure::Kind::FileNotFound:
        return Message{0, "", " Can't find file "};
    case ProjectFailure::Kind::PathNotFound:
        return Message{0, "", " Path not found "};
    case ProjectFailure::Kind::NotAProject:
        return Message{0, "", std::string("Input file not compatible with Ferrelt") + " Version  " + "1.3.0"};
    case ProjectFailure::Kind::Unreadable:
        return eng ? Message{0, "", "Can't read " + path + detail}
                   : Message{0, "", "Kan ikke lese " + path + detail};
    case ProjectFailure::Kind::Unwritable:
        return eng ? Message{0, "", "Can't save " + path + detail + ". The file on disk is unchanged."}
                   : Message{0, "", "Kan ikke lagre " + path + detail + ". Filen p\u00e5 disken er uendret."};
    case ProjectFailure::Kind::ReadOnly:
        return eng ? Message{0, "",
                             "Can't save " + path + ": the file is read-only. The file on disk is unchanged."}
                   : Message{0, "",
                             "Kan ikke lagre " + path +
                                 ": filen er skrivebeskyttet. Filen p\u00e5 disken er uendret."};
    case ProjectFailure::Kind::InUse:
        return eng ? Message{0, "",
                             "Can't save " + path +
                                 ": another program has the file open. Close it there and save again. "
                                 "The file on disk is unchanged."}
                   : Message{
                         0, "",
                         "Kan ikke lagre " + path +
                             ": et annet program har filen \u00e5pen. Lukk den der og lagre p\u00e5 nytt. "
                             "Filen p\u00e5 disken er uendret."};
    case ProjectFailure::Kind::TooLong:
        break;
    }
    return eng ? Message{0, "", "Can't save " + path + ": " + failure.detail + "."}
               : Message{0, "", "Kan ikke lagre " + path + ": en tekst er for lang for prosjektfilen."};
}

Message overwrite_question(const std::string& language, const std::filesystem::path& file)
{
    const std::string path = utf8_text(file);
    return language == "Eng" ? Message{0, "", path + " already exists. Do you want to replace it?"}
                             : Message{0, "", path + " finnes allerede. Vil du erstatte den?"};
}

Message report_refused(const std::string& language)
{
    return language == "Eng"
               ? Message{0, "", "The results do not match the input. Correct the input before printing."}
               : Message{0, "", "Resultatene svarer ikke til inndata. Rett inndata f\u00f8r utskrift."};
}

Message report_unwritten(const std::string& language, const std::string& why)
{
    return language == "Eng" ? Message{0, "", "The report was not written: " + why}
                             : Message{0, "", "Rapporten ble ikke skrevet: " + why};
}

Message document_missing(const std::string& language, const std::filesystem::path& file)
{
    const std::string path = utf8_text(file);
    return language == "Eng" ? Message{0, "", "Can't open " + path}
                             : Message{0, "", "Kan ikke \u00e5pne " + path};
}

} // namespace kvelder
