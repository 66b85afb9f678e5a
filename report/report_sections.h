#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

// The tables of the printed report under their numbered headings, in
// millimetres on the report's page (y up). Each table is first put together
// as lines of text, so that what it says can be read without a page, and then
// printed: a line's top stands at the cursor and the cursor moves down by the
// line's pitch.
// Every Print procedure takes the x of the section and the y of its first
// line, and returns the y below its last line.

// A text of a table line at `x` mm from the section's left edge: it starts
// there, or ends there when it is a number of a column.
struct TableCell {
    enum class Align { Left, Right };
    float x = 0;
    std::string text;
    Align align = Align::Left;
    bool bold = false;

    friend bool operator==(const TableCell&, const TableCell&) = default;
};

struct TableLine {
    std::vector<TableCell> cells;
    float pitch = 0; // mm down to the next line; 0 takes the pitch of the table font

    // The text of the cell at `x`, or empty where there is none.
    std::string at(float x) const;
    friend bool operator==(const TableLine&, const TableLine&) = default;
};

// Prints lines in the table font and returns the y below the last.
float PrintLines(PlotSurface& surface, const std::vector<TableLine>& lines, float x, float y);

// --- 1.0 Material data -------------------------------------------------------------
std::vector<TableLine> material_lines(const Model& m);
float PrintMaterialTable(PlotSurface& surface, const Model& m, float x, float y);

// --- 2.0 Section properties: the table, and the sketch of the section in a
// frame of 22 x 22 mm (its upper left corner at x, y; x = 13 in the report)
// that stands in the room the table leaves on its left ------------------------------
std::vector<TableLine> section_lines(const Model& m);
void PrintSectionSketch(PlotSurface& surface, const Model& m, float x, float y);
float PrintSectionTable(PlotSurface& surface, const Model& m, float x, float y);

// --- 3.0 Factors of the annex ------------------------------------------------------
std::vector<TableLine> factor_lines(const Model& m);
float PrintFactors(PlotSurface& surface, const Model& m, float x, float y);

// --- 3.1 Load input: G, Q1, Q2, each with its uniform, trapezoidal, moment and
// point loads side by side; an empty variable group takes no room ---------------
constexpr float kLoadPitch = 3.5F;
std::vector<TableLine> load_lines(const Model& m);
float PrintLoadTables(PlotSurface& surface, const Model& m, float x, float y);

// --- 4.0 Lateral torsional buckling ------------------------------------------------
// The place of the load that the heading of the section carries.
std::string_view load_place_text(const Model& m);
std::vector<TableLine> buckling_lines(const Model& m);
float PrintBucklingTable(PlotSurface& surface, const Model& m, float x, float y);

// --- 7.0 Supports: reaction, bearing stress and usage for a rectangle, the
// reaction alone for a circle ------------------------------------------------------
std::vector<TableLine> support_lines(const Model& m);
float PrintSupportTable(PlotSurface& surface, const Model& m, float x, float y);

} // namespace kvelder
