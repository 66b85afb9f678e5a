#pragma once

#include "drawing/plot_surface.h"

#include <string_view>

namespace kvelder {

// The table of effective lengths of EN 1995-1-1 (table 6.1) as a picture: the
// beam type, a sketch of the beam and its load, the loading type and the ratio
// lef / l of each row, and the rule for a load off the centre of gravity.
// "Eng" draws it in English, any other language in Norwegian. The picture
// works in percent of the surface, so it stretches with its box.
void PlotLefTable(PlotSurface& surface, std::string_view language);

} // namespace kvelder
