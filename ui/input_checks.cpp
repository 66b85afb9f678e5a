#include "ui/input_checks.h"

#include "analysis/numbering.h"

namespace kvelder {

std::optional<Message> check_box(const Model& m, Box box, float value, int span)
{
    const bool eng = m.language == "Eng";
    switch (box) {
    case Box::Width:
        return value <= 0 ? std::optional<Message>({0, "", eng ? " b =< 0 " : "b =< 0 "}) : std::nullopt;
    case Box::Height:
        return value <= 0 ? std::optional<Message>({0, "", " h =< 0 "}) : std::nullopt;
    case Box::Diameter:
        return value <= 0 ? std::optional<Message>({0, "", " d =< 0 "}) : std::nullopt;
    case Box::Kc90:
        // kc90 divides the strength: 0 is refused with the negative values.
        return value <= 0 ? std::optional<Message>({0, "", " kc90 < 0 "}) : std::nullopt;
    case Box::BearingLength:
        return value <= 0
                   ? std::optional<Message>({0, "", eng ? "Support length =< 0 " : "Oppleggslengde =< 0 "})
                   : std::nullopt;
    case Box::Ksys:
        return value < 1 || value > 1.2F ? std::optional<Message>({0, "", " 1 <= ksys <= 1.2"})
                                         : std::nullopt;
    case Box::LStag:
        return value <= 0.3F || value > m.ffl_s(span)
                   ? std::optional<Message>(
                         {0, "", eng ? " l_stag =< 0.30 m or > span" : " l_stag =< 0.3 m eller > feltlengde"})
                   : std::nullopt;
    case Box::LefFactor:
        return value < 0.2F || value > 2.0F
                   ? std::optional<Message>(
                         {0, "", eng ? "lef_faktor < 0.2 or > 2.0 " : " lef_faktor < 0.2 or > 2.0  "})
                   : std::nullopt;
    case Box::SetupFactor:
        return value <= 0.1F ? std::optional<Message>({0, "", "Number is <= 0.1 "}) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<SpanFailure> check_spans(Model& m)
{
    m.err_spans = kFalse;
    for (int i = 1; i <= m.nf; ++i) {
        if (!(m.ffl_s(i) > 0)) {
            m.err_spans = kTrue;
            return SpanFailure{i, span_length_missing(m.language)};
        }
    }
    return std::nullopt;
}

std::optional<Message> check_supports(Model& m)
{
    m.support_kind(1) = m.nsupLeft_s;
    m.support_kind(m.nnodes) = m.nsupRight_s;
    restraint_table(m);
    m.err_supports = flag_of(!restraints_sufficient(m));
    if (is_true(m.err_supports)) {
        return supports_unstable(m.language);
    }
    return std::nullopt;
}

namespace {

// The section and bearing boxes of the main window, in the order of the window.
std::vector<Message> section_box_failures(const Model& m)
{
    std::vector<Message> messages;
    const auto add = [&messages](const std::optional<Message>& message) {
        if (message) {
            messages.push_back(*message);
        }
    };
    if (m.section_form == "Tube") {
        add(check_box(m, Box::Diameter, m.section_d));
    } else {
        add(check_box(m, Box::Width, m.section_b));
        add(check_box(m, Box::Height, m.section_h));
        for (int i = 1; i <= m.nnodes; ++i) {
            add(check_box(m, Box::Kc90, m.bearing_kc90(i)));
            add(check_box(m, Box::BearingLength, m.bearing_length(i)));
        }
    }
    return messages;
}

} // namespace

std::optional<Message> window_box_failure(const Model& m)
{
    std::vector<Message> failures = section_box_failures(m);
    if (failures.empty()) {
        return std::nullopt;
    }
    return failures.front();
}

std::vector<Message> check_all_boxes(Model& m)
{
    std::vector<Message> messages;
    const auto add = [&messages](const std::optional<Message>& message) {
        if (message) {
            messages.push_back(*message);
        }
    };
    if (const auto failure = check_spans(m)) {
        messages.push_back(failure->message);
    }
    add(check_supports(m));
    const std::vector<Message> section = section_box_failures(m);
    messages.insert(messages.end(), section.begin(), section.end());
    add(check_box(m, Box::Ksys, m.ksys));
    return messages;
}

std::vector<Message> check_buckling_boxes(const Model& m)
{
    std::vector<Message> messages;
    if (m.vipping_off != 0) {
        return messages;
    }
    for (int i = 1; i <= m.nf; ++i) {
        if (!(m.ffl_s(i) > 0)) {
            return messages; // the span check has said so
        }
    }
    for (int i = 1; i <= m.nf; ++i) {
        for (const auto& failure :
             {check_box(m, Box::LStag, m.l_stag(i), i), check_box(m, Box::LefFactor, m.lef_factor(i))}) {
            if (failure) {
                messages.push_back(*failure);
            }
        }
    }
    return messages;
}

} // namespace kvelder
