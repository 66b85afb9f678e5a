#include "ui/load_dialog.h"

#include "files/number_format.h"
#include "files/text_number.h"
#include "ui/load_checks.h"
#include "ui/messages.h"

#include <array>
#include <cstddef>

namespace kvelder {
namespace {

std::size_t index_of(LoadTable table)
{
    return static_cast<std::size_t>(table);
}

std::size_t index_of(LoadGroupId id)
{
    return static_cast<std::size_t>(id);
}

// The boxes of a row: their name before the group's suffix, and what follows it.
struct BoxName {
    const char* head;
    const char* tail;
};
constexpr std::array<std::array<BoxName, 5>, 4> kBoxNames{{
    {{{"Txtfelt", "_j"}, {"TxtQ", "_j"}}},
    {{{"Txtfelt", "_t"}, {"TxtQ1", "_t"}, {"TxtQ2", "_t"}, {"Txta", "_t"}, {"Txtb", "_t"}}},
    {{{"Txtfelt", "_p"}, {"Txtp", ""}, {"Txtc", ""}}},
    {{{"Txtfelt", "_m"}, {"Txtm", ""}, {"Txtd", ""}}},
}};

constexpr std::array<const char*, 3> kSuffix{"E", "N", "N_2"};

struct DialogWords {
    const char* control;
    const char* eng;
    const char* nor_g;
    const char* nor_q;
};
constexpr DialogWords kWords[] = {
    {"Fra_jevn", "Uniform loads (kN/m)", "Jevn fordelte laster (kN/m)", "Jevn fordelte laster kN/m)"},
    {"Fra_trap", "Trapezoidal loads (kN/m, m)", "Trapes laster (kN/m)", "Trapes laster (kN/m)"},
    {"Fra_punkt", "Point loads (kN, m)", "Punkt laster (kN, m)", "Punkt laster (kN, m)"},
    {"Fra_mom", "Moment loads (kNm, m)", "Moment laster (kNm, m)", "Moment laster (kNm ,m)"},
    {"Lblf_j", " Span", " Felt", " Felt"},
    {"Lblf_t", " Span", " Felt", " Felt"},
    {"Lblf_p", " Span", " Felt", " Felt"},
    {"Lblf_m", " Span", " Felt", " Felt"},
};

} // namespace

std::string load_dialog_name(LoadGroupId id)
{
    constexpr std::array<const char*, 3> names{"frm_B_egenlast", "frm_B_nyttelast", "frm_B_nyttelast_2"};
    return names[index_of(id)];
}

std::string load_frame_name(LoadTable table)
{
    return kWords[index_of(table)].control;
}

std::string load_box_name(LoadGroupId id, LoadTable table, int box, int row)
{
    const BoxName& name = kBoxNames[index_of(table)][static_cast<std::size_t>(box)];
    return std::string(name.head) + kSuffix[index_of(id)] + name.tail + "_" + std::to_string(row);
}

std::string load_ok_name(LoadGroupId id)
{
    return id == LoadGroupId::G ? "Cmdok_e" : "Cmdok_n";
}

std::string load_clear_name(LoadGroupId id)
{
    return id == LoadGroupId::G ? "cmd_e_last_clear" : "cmd_n_last_clear";
}

std::vector<Caption> load_dialog_captions(const std::string& language, LoadGroupId id)
{
    const bool english = language == "Eng";
    const bool g = id == LoadGroupId::G;
    constexpr std::array<std::array<const char*, 2>, 3> titles{{
        {"Permanent loads (G)", "Permanente laster (G)"},
        {"Variable loads (Q1)", "Variabel last (Q1)"},
        {"Variable loads (Q2)", "Variabel last (Q2)"},
    }};
    std::vector<Caption> captions;
    captions.push_back({load_dialog_name(id), titles[index_of(id)][english ? 0 : 1]});
    captions.push_back({load_clear_name(id), english ? "Remove all loads" : "Fjern alle laster"});
    for (const DialogWords& w : kWords) {
        captions.push_back({w.control, english ? w.eng : (g ? w.nor_g : w.nor_q)});
    }
    return captions;
}

FocusTarget FocusStep(FocusMode mode, bool box_empty)
{
    switch (mode) {
    case FocusMode::fb_linje:
        return box_empty ? FocusTarget::NextFrame : FocusTarget::NextInRow;
    case FocusMode::mb_linje:
        return FocusTarget::NextInRow;
    case FocusMode::sb_linje:
        return FocusTarget::NextRow;
    case FocusMode::sb_frame:
        return FocusTarget::NextFrame;
    case FocusMode::fb_slast:
        return box_empty ? FocusTarget::OkButton : FocusTarget::NextInRow;
    case FocusMode::sb_slast:
        break;
    }
    return FocusTarget::OkButton;
}

FocusMode focus_mode(const BoxPlace& place)
{
    const bool last_frame = place.table == kLoadTables.back();
    if (place.box == 0) {
        return last_frame ? FocusMode::fb_slast : FocusMode::fb_linje;
    }
    if (place.box < value_count(place.table)) {
        return FocusMode::mb_linje;
    }
    if (place.row < capacity(place.table) - 1) {
        return FocusMode::sb_linje;
    }
    return last_frame ? FocusMode::sb_slast : FocusMode::sb_frame;
}

std::optional<BoxPlace> next_box(const BoxPlace& from, bool box_empty)
{
    switch (FocusStep(focus_mode(from), box_empty)) {
    case FocusTarget::NextInRow:
        return BoxPlace{from.table, from.row, from.box + 1};
    case FocusTarget::NextRow:
        return BoxPlace{from.table, from.row + 1, 0};
    case FocusTarget::NextFrame:
        return BoxPlace{kLoadTables[index_of(from.table) + 1], 0, 0};
    case FocusTarget::OkButton:
        break;
    }
    return std::nullopt;
}

BoxCommit commit_load_box(const Model& m, LoadGroupId id, const BoxPlace& place, std::string_view text)
{
    if (text.empty()) {
        return {};
    }
    const auto refused = [&](int code) {
        return failure_message(m.language, LoadRowFailure{id, place.table, place.row + 1, place.box, code});
    };
    if (place.box == 0) {
        const std::optional<std::int16_t> span = TextToInt16(text, m.decimal_comma).value;
        if (!span) {
            return {std::string(text), refused(kNotANumber)};
        }
        const std::string shown = format_number(*span, "0");
        return {shown, *span <= 0 ? refused(kSpanNotPositive) : std::nullopt};
    }
    const std::optional<float> value = TextToNumber(text, m.decimal_comma).value;
    if (!value) {
        return {std::string(text), refused(kNotANumber)};
    }
    return {format_number(*value, "0.00", m.decimal_comma != 0), std::nullopt};
}

void ClearRows(LoadDialogTexts& boxes)
{
    for (std::vector<RowTexts>& frame : boxes.frames) {
        frame.clear();
    }
}

std::optional<LoadRowFailure> confirm_load_dialog(Model& m, LoadDialogs& dialogs, LoadGroupId id,
                                                  LoadDialogTexts& boxes)
{
    CompactRows(boxes);
    LoadGroup& group = group_of(m, id);
    const LoadGroup before = group;
    if (auto failure = ReadRows(m, id, boxes)) {
        group = before;
        return failure;
    }
    dialogs[index_of(id)] = boxes;
    m.err_load_item = kFalse;
    return std::nullopt;
}

int dialog_row(const LoadDialogTexts& texts, LoadTable table, int row)
{
    const std::vector<RowTexts>& frame = texts.frames[index_of(table)];
    int count = 0;
    for (std::size_t k = 0; k < frame.size(); ++k) {
        if (!frame[k][0].empty() && ++count == row) {
            return static_cast<int>(k);
        }
    }
    return 0; // a row the reading never stored
}

} // namespace kvelder
