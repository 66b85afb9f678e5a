#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"

#include <string>
#include <string_view>

namespace kvelder {

// What every section of the printed report shares: millimetres on a page of
// 200 x 290, y up; tables in 8 point "Times New Roman".

// The English or the Norwegian text, by the beam's language ("Eng" or not).
std::string_view pick(const Model& m, std::string_view eng, std::string_view nor);

// A section heading at (x, y): "Times New Roman" of `size` points, bold and
// underlined; the table font is set again after it.
void PrintHeading(PlotSurface& surface, float x, float y, std::string_view text, float size = 15);

// 8 point "Times New Roman", plain.
void SetTableFont(PlotSurface& surface);

// Text that ends at `right`: the cursor goes back by the text's width.
void PrintRight(PlotSurface& surface, float right, float y, std::string_view text);

// The pitch of one line of the font in force, in millimetres.
float LinePitch(const PlotSurface& surface);

} // namespace kvelder
