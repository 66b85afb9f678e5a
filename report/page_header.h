#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

#include <array>
#include <string>

namespace kvelder {

// What the header of every page shows besides the beam: the project's file and
// when the report was made, as the machine writes a short date and "hh:mm:ss".
struct ReportStamp {
    std::string file;
    std::string date;
    std::string time;
};

// The three lines under the program's name in the header.
std::array<std::string, 3> maker_lines();

// The header box of a page, its upper left corner at (x, y), 170 mm wide and
// 19 mm tall: the program and version, the project, the page number, the
// identification and file, the date and time.
void PrintPageHeader(PlotSurface& surface, const Model& m, const ReportStamp& stamp, float x, float y,
                     int page);

} // namespace kvelder
