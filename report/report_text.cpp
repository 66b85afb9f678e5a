#include "report/report_text.h"

#include "drawing/glyphs.h"

#include <cmath>

namespace kvelder {

std::string_view pick(const Model& m, std::string_view eng, std::string_view nor)
{
    return m.language == "Eng" ? eng : nor;
}

void PrintHeading(PlotSurface& surface, float x, float y, std::string_view text, float size)
{
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(size);
    surface.SetFontBold(true);
    surface.SetFontUnderline(true);
    PrintAt(surface, x, y, text);
    SetTableFont(surface);
}

void SetTableFont(PlotSurface& surface)
{
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(8);
    surface.SetFontBold(false);
    surface.SetFontUnderline(false);
    surface.SetFontItalic(false);
}

void PrintRight(PlotSurface& surface, float right, float y, std::string_view text)
{
    PrintAt(surface, right - surface.TextWidth(text), y, text);
}

float LinePitch(const PlotSurface& surface)
{
    return std::abs(surface.TextHeight());
}

} // namespace kvelder
