#pragma once

#include "drawing/plot_surface.h"
#include "model/model.h"
#include "ui/help_forms.h"

#include <string>
#include <vector>

namespace kvelder {

// The strips of the pattern pictures stand top-down under the span sketch:
// the first at kFirstStrip from the top, each kStripHeight high, one pitch
// apart, in the units of the picture's height.
inline constexpr float kFirstStrip = 85;
inline constexpr float kStripHeight = 5;

// One load case of a pattern picture: its caption, its colour and the spans
// it loads.
struct PatternStrip {
    std::string caption;
    PlotColor color = 0;
    std::vector<int> spans;
};

// The strips of a pattern picture for a beam of nf spans: G, then Q1 on every
// span (the total variable load) or in each of its patterns, then Q2. The
// height value sets how tall the picture's box is drawn.
struct PatternLayout {
    float pitch = 0;
    float height_value = 0;
    std::vector<PatternStrip> strips;
};

// frmHelpComb1 shows the total load, frmHelpComb2 the patterns of Q1, and so
// does a beam of one span, which has no patterns.
PatternLayout pattern_layout(HelpForm form, int nf, const std::string& language);

// The picture of a reference form for the beam as it stands: its page of text
// or table, in the beam's language, filling the surface; for the pattern forms
// the strips under a sketch of the spans.
void PlotHelpPicture(PlotSurface& surface, HelpForm form, const Model& m);

} // namespace kvelder
