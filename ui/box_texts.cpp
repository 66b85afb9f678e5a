#include "ui/box_texts.h"

#include "files/number_format.h"
#include "files/text_number.h"
#include "ui/edits.h"

namespace kvelder {
namespace {

const char* pattern_of(Box box)
{
    return box == Box::Width || box == Box::Height ? "0" : "0.00";
}

// The number of a box's text; a text the conversion refuses keeps its letters
// in the box, so that the engineer sees what was not taken.
struct Reading {
    float value;
    bool refused;
};

Reading read(std::string_view text, std::int16_t decimal_comma)
{
    const Converted<float> c = TextToNumber(text, decimal_comma);
    return {c.value.value_or(0.0F), !c.value.has_value()};
}

} // namespace

std::string box_text(const Model& m, Box box, int node)
{
    float value = 0;
    switch (box) {
    case Box::Width:
        value = m.section_b;
        break;
    case Box::Height:
        value = m.section_h;
        break;
    case Box::Diameter:
        value = m.section_d;
        break;
    case Box::Kc90:
        value = node >= 1 && node <= kMaxNodes ? m.bearing_kc90(node) : 0;
        break;
    case Box::BearingLength:
        value = node >= 1 && node <= kMaxNodes ? m.bearing_length(node) : 0;
        break;
    case Box::Ksys:
        value = m.ksys;
        break;
    default:
        return {}; // a box of another window
    }
    return format_number(value, pattern_of(box), m.decimal_comma != 0);
}

std::string span_text(const Model& m, int span)
{
    return span >= 1 && span <= m.nf ? format_number(m.ffl_s(span), "0.000", m.decimal_comma != 0)
                                     : std::string();
}

BoxCommit commit_box(Model& m, Box box, std::string_view text, int node)
{
    const Reading r = read(text, m.decimal_comma);
    std::optional<Message> failure = box == Box::Ksys ? set_ksys(m, r.value)
                                     : box == Box::Kc90 || box == Box::BearingLength
                                         ? set_bearing(m, node, box, r.value)
                                         : set_section_size(m, box, r.value);
    return {r.refused ? std::string(text) : box_text(m, box, node), std::move(failure)};
}

SpanCommit commit_span(Model& m, int span, std::string_view text, LoadDialogs& dialogs)
{
    const Reading r = read(text, m.decimal_comma);
    std::optional<SpanFailure> failure = set_span_length(m, span, r.value, dialogs);
    // An empty box stays empty, so that the missing length shows as such.
    const bool keep = r.refused || text.empty();
    return {keep ? std::string(text) : span_text(m, span), std::move(failure)};
}

} // namespace kvelder
