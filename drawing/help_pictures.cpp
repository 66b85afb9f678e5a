#include "drawing/help_pictures.h"

#include "combination/patterns.h"
#include "drawing/glyphs.h"
#include "drawing/plot_scale.h"
#include "files/number_format.h"
#include "ui/help_texts.h"

#include <algorithm>
#include <numeric>

namespace kvelder {
namespace {

constexpr PlotColor kPermanentBlue = kBlue;
constexpr PlotColor kQ1Green = RGB(0, 255, 0);
constexpr PlotColor kQ2Grey = kGrey;

// Where the spans of the pattern pictures stand, right of the captions.
constexpr float kSpansLeft = 34;
constexpr float kSpansRight = 96;
constexpr float kMargin = 3;

struct Pitch {
    float pitch;
    float height_value;
};

// The pitch of the rows shrinks as the patterns grow in number.
Pitch pitch_of(int nf)
{
    switch (nf) {
    case 3:
        return {25.3F, 240};
    case 4:
        return {18, 240};
    case 5:
        return {15.2F, 240};
    default:
        return {38, 200};
    }
}

std::vector<int> all_spans(int nf)
{
    std::vector<int> spans(static_cast<std::size_t>(nf));
    std::iota(spans.begin(), spans.end(), 1);
    return spans;
}

// Text pieces in a row from the cursor; the cursor ends after the last.
void print_pieces(PlotSurface& surface, const std::vector<TextPiece>& pieces)
{
    const float y = surface.CurrentY();
    for (const TextPiece& piece : pieces) {
        if (piece.subscript) {
            surface.Subscript(piece.text);
        } else {
            const float x = surface.CurrentX();
            surface.Print(piece.text);
            surface.SetCurrentX(x + surface.TextWidth(piece.text));
            surface.SetCurrentY(y);
        }
    }
}

float pieces_width(const PlotSurface& surface, const std::vector<TextPiece>& pieces)
{
    float width = 0;
    for (const TextPiece& piece : pieces) {
        width += surface.TextWidth(piece.text) * (piece.subscript ? 0.7F : 1.0F);
    }
    return width;
}

// The title, then the rows in up to three columns, the rows spread over the
// height left and each column as wide as its widest entry.
void plot_page(PlotSurface& surface, const HelpPage& page)
{
    SetPlotScale(surface, 0, 0, 100, 100);
    surface.SetForeColor(kBlack);
    surface.SetFontName("Arial");
    surface.SetFontSize(10);
    surface.SetFontBold(true);
    PrintAt(surface, kMargin + 1, kMargin, page.title);
    const float top = surface.CurrentY() + surface.TextHeight() * 0.5F;
    surface.SetFontBold(false);
    surface.SetFontSize(9);

    float label = 0;
    float text = 0;
    for (const HelpLine& line : page.lines) {
        if (!line.text.empty()) {
            label = std::max(label, surface.TextWidth(line.label));
            text = std::max(text, pieces_width(surface, line.text));
        }
    }
    const float label_x = kMargin + 1;
    const float text_x = label > 0 ? label_x + label + 2 : label_x;
    const float value_x = text_x + text + 4;
    const auto rows = static_cast<float>(std::max<std::size_t>(page.lines.size(), 1));
    const float pitch = std::min(surface.TextHeight() * 1.6F, (100 - kMargin - top) / rows);

    float y = top;
    for (const HelpLine& line : page.lines) {
        surface.SetFontBold(line.heading);
        PrintAt(surface, label_x, y, line.label);
        surface.SetFontBold(false);
        surface.SetCurrentX(text_x);
        surface.SetCurrentY(y);
        print_pieces(surface, line.text);
        if (!line.value.empty()) {
            PrintAt(surface, value_x, y, line.value);
        }
        y += pitch;
    }
}

// A sketch of the spans, as schematic as in Picfelt: equal columns over the
// strips, the span numbers above and the supports under the beam.
void plot_spans(PlotSurface& surface, const Model& m, float height, float beam)
{
    const int nf = std::clamp<int>(m.nf, 1, kMaxSpans);
    const float width = (kSpansRight - kSpansLeft) / static_cast<float>(nf);
    surface.SetFontSize(8);
    for (int i = 1; i <= nf; ++i) {
        const float centre = kSpansLeft + (static_cast<float>(i) - 0.5F) * width;
        const std::string number = format_number(i, "0");
        PrintAt(surface, centre - surface.TextWidth(number) / 2, beam - surface.TextHeight() - 1, number);
    }
    surface.SetFillStyle(FillStyle::Solid);
    surface.SetFillColor(kRed);
    surface.Line(kSpansLeft, beam, kSpansRight, beam + 1.2F, kRed, true);

    const float px = static_cast<float>(surface.PixelWidth()) / 100;
    const float py = static_cast<float>(surface.PixelHeight()) / height;
    surface.SetScaleMode(ScaleMode::Pixel);
    for (int node = 1; node <= nf + 1; ++node) {
        const char kind = node == 1 ? m.nsupLeft_s : node == nf + 1 ? m.nsupRight_s : kSimple;
        DrawSupport(surface, kind, (kSpansLeft + static_cast<float>(node - 1) * width) * px,
                    (beam + 1.2F) * py, 8, node == 1, node == nf + 1);
    }
    SetPlotScale(surface, 0, 0, 100, height);
}

void plot_patterns(PlotSurface& surface, HelpForm form, const Model& m)
{
    const PatternLayout layout = pattern_layout(form, m.nf, m.language);
    const auto rows = static_cast<float>(layout.strips.size());
    const float height = kFirstStrip + (rows - 1) * layout.pitch + kStripHeight + 10;
    SetPlotScale(surface, 0, 0, 100, height);
    surface.SetForeColor(kBlack);
    surface.SetFontName("Arial");

    const HelpPage page = help_page(form, m.language);
    surface.SetFontSize(9);
    surface.SetFontBold(true);
    PrintAt(surface, kMargin, 3, page.title);
    surface.SetFontBold(false);
    surface.SetFontSize(8);
    for (const HelpLine& line : page.lines) {
        surface.SetCurrentX(kMargin);
        print_pieces(surface, line.text);
        surface.Print("");
    }
    plot_spans(surface, m, height, kFirstStrip - 16);

    const float width = (kSpansRight - kSpansLeft) / static_cast<float>(std::clamp<int>(m.nf, 1, kMaxSpans));
    surface.SetFontSize(7);
    surface.SetFillStyle(FillStyle::Solid);
    float y = kFirstStrip;
    for (const PatternStrip& strip : layout.strips) {
        PrintAt(surface, kMargin, y + kStripHeight / 2 - surface.TextHeight() / 2, strip.caption);
        surface.Line(kSpansLeft, y + kStripHeight, kSpansRight, y + kStripHeight, kBlack);
        surface.SetFillColor(strip.color);
        for (const int span : strip.spans) {
            const float left = kSpansLeft + static_cast<float>(span - 1) * width;
            surface.Line(left, y, left + width, y + kStripHeight, kBlack, true);
        }
        y += layout.pitch;
    }
}

} // namespace

PatternLayout pattern_layout(HelpForm form, int nf, const std::string& language)
{
    nf = std::clamp(nf, 1, static_cast<int>(kMaxSpans));
    const bool patterned = form == HelpForm::PatternsQ1 && nf >= 2;
    const Pitch pitch = pitch_of(patterned ? nf : 2);
    PatternLayout layout{pitch.pitch, pitch.height_value, {}};
    layout.strips.push_back({permanent_strip_caption(language, nf), kPermanentBlue, all_spans(nf)});
    if (patterned) {
        // Pattern 1 is G and Q2 alone: the pictures number the patterns with Q1 from 1.
        for (int p = 2; p <= pattern_count(nf); ++p) {
            const std::span<const int> spans = Q1_pattern(nf, p);
            layout.strips.push_back(
                {q1_strip_caption(language, p - 1), kQ1Green, {spans.begin(), spans.end()}});
        }
    } else {
        layout.strips.push_back({q1_strip_caption(language, 0), kQ1Green, all_spans(nf)});
    }
    layout.strips.push_back({q2_strip_caption(language), kQ2Grey, all_spans(nf)});
    return layout;
}

void PlotHelpPicture(PlotSurface& surface, HelpForm form, const Model& m)
{
    surface.Cls();
    if (form == HelpForm::PatternsTotal || form == HelpForm::PatternsQ1) {
        plot_patterns(surface, form, m);
    } else {
        plot_page(surface, help_page(form, m.language));
    }
}

} // namespace kvelder
