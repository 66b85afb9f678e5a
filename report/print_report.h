#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"
#include "report/page_header.h"

namespace kvelder {

// Whether the detailed pages (section 8) are printed. "Detailed printout"
// sets it for the rest of the session; nothing clears it.
struct PrintSession {
    bool detail_mode = false;
};

// The room the load tables of section 3.1 take from the top of the page, in
// millimetres: 87 (110 without a permanent load), 3.5 a row of each group's
// longest table, and 12 for each further group. The moment tables stand beside
// the others and take no room of their own.
float ReportHeightOfLoads(const Model& m);

// The whole report of a calculated beam on a paged surface, page after page
// on a logical page of 200 x 290 mm, each with its header. One or two spans
// take two pages, three to five take three, and the detailed printout one more;
// a section that would pass the bottom of a page starts the next one.
// Returns the number of pages.
int PrintReport(PlotSurface& surface, const Model& m, const ReportStamp& stamp, const PrintSession& session);

} // namespace kvelder
