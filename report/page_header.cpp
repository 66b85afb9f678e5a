#include "report/page_header.h"

#include "drawing/glyphs.h"
#include "report/report_text.h"
#include "ui/captions.h"

#include <string_view>

namespace kvelder {
namespace {

constexpr float kWidth = 170;
constexpr float kProjectCell = 72; // from the project name to the page column

void set_arial(PlotSurface& s, float size, bool bold)
{
    s.SetFontName("arial");
    s.SetFontSize(size);
    s.SetFontBold(bold);
    s.SetFontUnderline(false);
}

// The longest head of `text` that fits `width`, broken after a blank where
// there is one; the rest follows on the next line.
std::size_t fitting(const PlotSurface& s, std::string_view text, float width)
{
    if (s.TextWidth(text) <= width) {
        return text.size();
    }
    // Whole characters only: the texts are UTF-8.
    const auto continuation = [text](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    std::size_t end = text.size();
    while (end > 1 && s.TextWidth(text.substr(0, end)) > width) {
        do {
            --end;
        } while (end > 1 && continuation(end));
    }
    const std::size_t blank = text.substr(0, end).rfind(' ');
    return blank != std::string_view::npos && blank > 0 ? blank + 1 : end;
}

} // namespace

std::array<std::string, 3> maker_lines()
{
    return {"Design of continuous timber beams", "EN 1995-1-1 and EN 1990",
            "One to five spans, G, Q1 and Q2"};
}

void PrintPageHeader(PlotSurface& s, const Model& m, const ReportStamp& stamp, float x, float y, int page)
{
    s.SetDrawWidth(1);
    s.SetFillStyle(FillStyle::Transparent);
    s.Line(x, y, x + kWidth, y - 19, kBlack, true);
    // The rows divide the cells right of the program's, whose lines run down it.
    for (const float row : {8.0F, 15.0F}) {
        s.Line(x + 62, y - row, x + kWidth, y - row, kBlack);
    }
    for (const float column : {62.0F, 147.0F, 158.0F}) {
        s.Line(x + column, y, x + column, y - 19, kBlack);
    }

    set_arial(s, 14, true);
    PrintAt(s, x + 1, y - 0.2F, "Kvelder");
    set_arial(s, 8, false);
    const std::string_view version = pick(m, "Version  ", "Versjon  ");
    PrintAt(s, x + 25, y - 1.8F, version);
    const float number_x = x + 25 + s.TextWidth(version);
    set_arial(s, 8, true);
    PrintAt(s, number_x, y - 1.8F, version_number());
    set_arial(s, 8, false);
    const std::array<std::string, 3> maker = maker_lines();
    const std::array<float, 3> maker_y{0.3F, 3.2F, 6.3F};
    for (std::size_t k = 0; k < maker.size(); ++k) {
        PrintAt(s, x + 1, y - 5.5F - maker_y[k], maker[k]);
    }

    PrintAt(s, x + 63, y - 0.8F, pick(m, "Project:", "Prosjekt:"));
    const std::string_view project = m.prosjekt_s;
    const std::size_t first = fitting(s, project, kProjectCell);
    PrintAt(s, x + 75, y - 0.8F, project.substr(0, first));
    const std::string_view rest = project.substr(first);
    PrintAt(s, x + 75, y - 4, rest.substr(0, fitting(s, rest, kProjectCell)));

    PrintAt(s, x + 159, y - 0.7F, pick(m, "Page:", "Side:"));
    PrintAt(s, x + 159, y - 4, std::to_string(page));

    PrintAt(s, x + 63, y - 8.7F, pick(m, "Identification:", "Identifikation:"));
    const std::string_view id = m.id_s;
    PrintAt(s, x + 81, y - 8.7F, id.substr(0, fitting(s, id, 147 - 82)));
    PrintAt(s, x + 63, y - 11.7F, "File:");
    const std::string_view file = stamp.file;
    PrintAt(s, x + 81, y - 11.7F, file.substr(0, fitting(s, file, kWidth - 82)));

    // Date and time share the last row, so that nothing stands below the box.
    PrintAt(s, x + 63, y - 15.7F, pick(m, "Date:", "Dato:"));
    PrintAt(s, x + 75, y - 15.7F, stamp.date);
    PrintAt(s, x + 105, y - 15.7F, pick(m, "Time:", "Tid:"));
    PrintAt(s, x + 115, y - 15.7F, stamp.time);
    SetTableFont(s);
}

} // namespace kvelder
