#include "drawing/lef_table.h"

#include "drawing/glyphs.h"

#include <array>

namespace kvelder {
namespace {

enum class Beam { Simple, Cantilever };
enum class Load { EndMoments, Uniform, MidForce, EndForce };

struct Row {
    Beam beam;
    Load load;
    const char* eng; // the loading type; '\n' breaks the line
    const char* nor;
    const char* ratio;
};

constexpr std::array<Row, 5> kRows{{
    {Beam::Simple, Load::EndMoments, "Constant moment", "Konstant moment", "1.0"},
    {Beam::Simple, Load::Uniform, "Uniformly distributed load", "Jevnt fordelt last", "0.9"},
    {Beam::Simple, Load::MidForce, "Concentrated force at\nthe middle of the span",
     "Punktlast midt\ni spennet", "0.8"},
    {Beam::Cantilever, Load::Uniform, "Uniformly distributed load", "Jevnt fordelt last", "0.5"},
    {Beam::Cantilever, Load::EndForce, "Concentrated force at\nthe free end", "Punktlast i\nden frie enden",
     "0.8"},
}};

struct Words {
    const char* title;
    const char* beam_head;
    const char* load_head;
    const char* simple;
    const char* cantilever;
    const char* note_1;
    const char* note_2;
};

constexpr Words kEnglish{
    "EN 1995-1-1, table 6.1: effective length as a ratio of the span",
    "Beam type",
    "Loading type",
    "Simply supported",
    "Cantilever",
    "The ratio holds for a load at the centre of gravity, with torsionally restrained supports.",
    "Load at the compression edge: lef + 2 x h;  load at the tension edge: lef - 0.5 x h.",
};

constexpr Words kNorwegian{
    "NS-EN 1995-1-1, tabell 6.1: effektiv lengde i forhold til spennvidden",
    "Bjelketype",
    "Lasttype",
    "Fritt opplagt",
    "Utkrager",
    "Forholdstallet gjelder last i tyngdepunktet, med gaffellagrede opplegg.",
    "Last p\u00e5 trykkanten: lef + 2 x h;  last p\u00e5 strekkanten: lef - 0.5 x h.",
};

// The grid of the table in percent: columns and the tops of the rows.
constexpr std::array<float, 5> kColumns{1, 22, 47, 86, 99};
constexpr float kTitleY = 98;
constexpr float kHeadTop = 89;
constexpr float kFirstRowTop = 81;
constexpr float kRowHeight = 13;
constexpr float kTableBottom = kFirstRowTop - 5 * kRowHeight;

float row_top(std::size_t k)
{
    return kFirstRowTop - kRowHeight * static_cast<float>(k);
}

// Text at the top left of a cell, a line for each '\n'.
void cell_text(PlotSurface& s, float x, float top, std::string_view text)
{
    s.SetCurrentX(x);
    s.SetCurrentY(top);
    while (true) {
        const std::size_t end = text.find('\n');
        s.Print(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        s.SetCurrentX(x);
        text.remove_prefix(end + 1);
    }
}

// The beam of one row between two columns, its supports and its load, drawn
// in pixels; the percent scale is back when it returns.
void sketch(PlotSurface& s, const Row& row, float top)
{
    const float left = kColumns[1] + 4, right = kColumns[2] - 4;
    const float beam_y = top - kRowHeight * 0.62F;
    PixelMode px(s);
    const float x0 = px.x(left), x1 = px.x(right), y = px.y(beam_y);
    const float mid = (x0 + x1) / 2;
    s.SetDrawWidth(2);
    s.Line(x0, y, x1, y, kRed);
    s.SetDrawWidth(1);
    if (row.beam == Beam::Simple) {
        DrawSupport(s, kSimple, x0, y + 1, 8, true, false);
        DrawSupport(s, kSimple, x1, y + 1, 8, false, true);
    } else {
        DrawSupport(s, kBuiltIn, x0, y, 8, true, false);
    }
    const float load_top = px.y(top - 2.5F);
    const int arrow = 7;
    const auto force = [&](float x) {
        s.Line(x, load_top, x, y - 6, kBlack);
        DrawArrowHead(s, x - 3, y - 2 - static_cast<float>(ArrowHeight(arrow)), arrow, true);
    };
    switch (row.load) {
    case Load::EndMoments: {
        const float r = (y - load_top) * 0.7F;
        s.Circle(x0, y, r, kBlack, 1.2F, 5.1F);
        s.Circle(x1, y, r, kBlack, 4.3F, 1.9F);
        PrintAt(s, x0 - r - s.TextWidth("M") - 2, y - r - 4, "M");
        PrintAt(s, x1 + r + 2, y - r - 4, "M");
        break;
    }
    case Load::Uniform: {
        s.SetFillColor(kGrey);
        s.SetForeColor(kBlack);
        const PixelPoint band[] = {
            {to_pixel(x0), to_pixel(y - 3)},
            {to_pixel(x1), to_pixel(y - 3)},
            {to_pixel(x1), to_pixel(load_top)},
            {to_pixel(x0), to_pixel(load_top)},
        };
        s.Polygon(band);
        PrintAt(s, x1 + 3, load_top - 2, "q");
        break;
    }
    case Load::MidForce:
        force(mid);
        PrintAt(s, mid + 4, load_top - 2, "F");
        break;
    case Load::EndForce:
        force(x1);
        PrintAt(s, x1 + 4, load_top - 2, "F");
        break;
    }
}

} // namespace

void PlotLefTable(PlotSurface& s, std::string_view language)
{
    const bool english = language == "Eng";
    const Words& w = english ? kEnglish : kNorwegian;
    s.Cls();
    SetPlotScale(s, 0, 100, 100, 0);
    s.SetDrawWidth(1);
    s.SetFontName("Arial");
    s.SetFontSize(9);
    s.SetFontBold(true);
    PrintAt(s, kColumns[0], kTitleY, w.title, kBlue);
    cell_text(s, kColumns[0] + 1, kHeadTop - 1.5F, w.beam_head);
    cell_text(s, kColumns[2] + 1, kHeadTop - 1.5F, w.load_head);
    cell_text(s, kColumns[3] + 1, kHeadTop - 1.5F, "lef / l");
    s.SetFontBold(false);
    s.SetFontSize(8);

    // The frame and the rules: the beam type spans its rows.
    for (const float x : kColumns) {
        s.Line(x, kHeadTop, x, kTableBottom, kBlack);
    }
    s.Line(kColumns[0], kHeadTop, kColumns[4], kHeadTop, kBlack);
    s.Line(kColumns[0], kFirstRowTop, kColumns[4], kFirstRowTop, kBlack);
    for (std::size_t k = 0; k < kRows.size(); ++k) {
        const bool new_type = k + 1 == kRows.size() || kRows[k + 1].beam != kRows[k].beam;
        const float bottom = row_top(k + 1);
        s.Line(new_type ? kColumns[0] : kColumns[1], bottom, kColumns[4], bottom, kBlack);
    }

    for (std::size_t k = 0; k < kRows.size(); ++k) {
        const Row& row = kRows[k];
        const float top = row_top(k);
        if (k == 0 || kRows[k - 1].beam != row.beam) {
            cell_text(s, kColumns[0] + 1, top - 1.5F, row.beam == Beam::Simple ? w.simple : w.cantilever);
        }
        cell_text(s, kColumns[2] + 1, top - 1.5F, english ? row.eng : row.nor);
        s.SetFontBold(true);
        cell_text(s, kColumns[3] + 4, top - 1.5F, row.ratio);
        s.SetFontBold(false);
        sketch(s, row, top);
    }
    cell_text(s, kColumns[0], kTableBottom - 3, w.note_1);
    cell_text(s, kColumns[0], kTableBottom - 8, w.note_2);
}

} // namespace kvelder
