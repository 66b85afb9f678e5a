#include "ui/load_checks.h"

#include "files/number_format.h"
#include "files/text_number.h"
#include "ui/messages.h"

#include <algorithm>
#include <span>

namespace kvelder {
namespace {

// The codes of a table in the order they are tried, G first then Q1 and Q2.
// 130 is the span check of a variable trapezoid: it has no message.
constexpr std::array<int, 4> kUniformG{116, 114, 112, 120};
constexpr std::array<int, 4> kUniformQ{116, 120, 114, 112};
constexpr std::array<int, 9> kTrapezoidG{137, 144, 146, 138, 140, 142, 148, 150, 152};
constexpr std::array<int, 9> kTrapezoidQ{130, 150, 152, 144, 138, 140, 146, 142, 148};
constexpr std::array<int, 5> kPoint{163, 172, 168, 170, 174};
constexpr std::array<int, 6> kMomentG{184, 190, 188, 196, 192, 194};
constexpr std::array<int, 6> kMomentQ{184, 190, 188, 192, 194, 196};

std::span<const int> order(LoadGroupId id, LoadTable table)
{
    const bool g = id == LoadGroupId::G;
    switch (table) {
    case LoadTable::Uniform:
        return g ? std::span<const int>(kUniformG) : std::span<const int>(kUniformQ);
    case LoadTable::Trapezoid:
        return g ? std::span<const int>(kTrapezoidG) : std::span<const int>(kTrapezoidQ);
    case LoadTable::Point:
        return kPoint;
    case LoadTable::Moment:
        break;
    }
    return g ? std::span<const int>(kMomentG) : std::span<const int>(kMomentQ);
}

// The box of a row that a code points at.
int box_of(int code)
{
    switch (code) {
    case 120:
    case 150:
    case 172:
    case 190:
        return 1;
    case 152:
    case 168:
    case 170:
    case 174:
    case 188:
    case 192:
    case 194:
    case 196:
        return 2;
    case 138:
    case 140:
    case 148:
        return 3;
    case 142:
    case 144:
    case 146:
        return 4;
    default:
        return 0;
    }
}

// Whether an earlier row e of the table has `same(e)`.
template <typename Same> bool any_earlier(int k, Same same)
{
    for (int e = 1; e < k; ++e) {
        if (same(e)) {
            return true;
        }
    }
    return false;
}

// Whether row k of a table fails the check of `code`. Spans are known to lie on
// the beam when a code reads a span length: the span check comes first.
bool uniform_fails(const Model& m, const LoadGroup& g, int k, int code, bool gap_before)
{
    const int s = g.uni_span(k);
    switch (code) {
    case 116:
        return s > m.nf;
    case 114:
        return any_earlier(k, [&](int e) { return g.uni_span(e) == s; });
    case 112:
        return gap_before;
    case 120:
        return g.uni_q(k) == 0;
    default:
        return false;
    }
}

bool trapezoid_fails(const Model& m, const LoadGroup& g, int k, int code)
{
    const int s = g.trap_span(k);
    const float a = g.trap_a(k), b = g.trap_b(k), q1 = g.trap_q1(k), q2 = g.trap_q2(k);
    switch (code) {
    case 130:
    case 137:
        return s > m.nf;
    case 144:
        return b == 0;
    case 146:
        return b > m.ffl_s(s);
    case 138:
        return a > m.ffl_s(s);
    case 140:
        return a > b;
    case 142:
        return a == b;
    case 148: // lying end to end is no overlap
        return any_earlier(k,
                           [&](int e) { return g.trap_span(e) == s && a < g.trap_b(e) && g.trap_a(e) < b; });
    case 150:
        return q1 == 0 && q2 == 0;
    case 152:
        return (q1 < 0 && q2 > 0) || (q1 > 0 && q2 < 0);
    default:
        return false;
    }
}

bool point_fails(const Model& m, const LoadGroup& g, int k, int code)
{
    const int s = g.pt_span(k);
    const float c = g.pt_a(k);
    switch (code) {
    case 163:
        return s > m.nf;
    case 172:
        return g.pt_P(k) == 0;
    case 168:
        return c > m.ffl_s(s);
    case 170:
        return c == 0 || c == m.ffl_s(s);
    case 174:
        return any_earlier(k, [&](int e) { return g.pt_span(e) == s && g.pt_a(e) == c; });
    default:
        return false;
    }
}

bool moment_fails(const Model& m, const LoadGroup& g, int k, int code)
{
    const int s = g.mom_span(k);
    const float d = g.mom_a(k);
    const float L = s >= 1 && s <= m.nf ? m.ffl_s(s) : 0;
    switch (code) {
    case 184:
        return s > m.nf;
    case 190:
        return g.mom_M(k) == 0;
    case 188:
        return d > L;
    case 196:
        return (s == 1 && d == 0 && m.nsupLeft_s == kBuiltIn) ||
               (s == m.nf && d == L && m.nsupRight_s == kBuiltIn);
    case 192:
        return any_earlier(k, [&](int e) { return g.mom_span(e) == s && g.mom_a(e) == d; });
    case 194:
        // Two moments on one support, one from each of its spans.
        return any_earlier(k, [&](int e) {
            const int se = g.mom_span(e);
            const float de = g.mom_a(e);
            return (se == s - 1 && de == m.ffl_s(se) && d == 0) || (se == s + 1 && de == 0 && d == L);
        });
    default:
        return false;
    }
}

bool fails(const Model& m, const LoadGroup& g, LoadTable table, int k, int code, bool gap_before)
{
    switch (table) {
    case LoadTable::Uniform:
        return uniform_fails(m, g, k, code, gap_before);
    case LoadTable::Trapezoid:
        return trapezoid_fails(m, g, k, code);
    case LoadTable::Point:
        return point_fails(m, g, k, code);
    case LoadTable::Moment:
        break;
    }
    return moment_fails(m, g, k, code);
}

std::optional<LoadRowFailure> check_row(const Model& m, LoadGroupId id, LoadTable table, int k,
                                        bool gap_before)
{
    const LoadGroup& g = group_of(m, id);
    // A span number below 1 is refused before any code reads its length.
    if (row(g, table, k).span < 1) {
        return LoadRowFailure{id, table, k, 0, kSpanNotPositive};
    }
    for (int code : order(id, table)) {
        if (fails(m, g, table, k, code, gap_before)) {
            return LoadRowFailure{id, table, k, box_of(code), code};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<Message> failure_message(const std::string& language, const LoadRowFailure& failure)
{
    switch (failure.code) {
    case kNotANumber:
        return language == "Eng" ? Message{0, "Loads", "The text is not a number"}
                                 : Message{0, "Laster", "Teksten er ikke et tall"};
    case 137:
        return ShowMessageEng(137); // this one message is English in both languages
    default:
        return numbered_message(language, failure.code);
    }
}

std::optional<LoadRowFailure> check_load_table(const Model& m, LoadGroupId id, LoadTable table)
{
    const int n = row_count(group_of(m, id), table);
    for (int k = 1; k <= n; ++k) {
        if (auto failure = check_row(m, id, table, k, false)) {
            return failure;
        }
    }
    return std::nullopt;
}

std::optional<LoadRowFailure> ReadRows(Model& m, LoadGroupId id, LoadDialogTexts& texts)
{
    LoadGroup& g = group_of(m, id);
    for (std::size_t f = 0; f < kLoadTables.size(); ++f) {
        const LoadTable table = kLoadTables[f];
        clear_table(g, table);
        int count = 0;
        bool gap_before = false;
        for (RowTexts& row : texts.frames[f]) {
            if (row[0].empty()) {
                gap_before = true;
                continue;
            }
            if (count == capacity(table)) {
                break; // a dialog holds no more rows than its table
            }
            ++count;
            LoadRow stored;
            Converted<std::int16_t> span = TextToInt16(row[0], m.decimal_comma);
            row[0] = std::move(span.text);
            stored.span = span.value.value_or(0);
            std::optional<int> bad_box = span.value ? std::nullopt : std::optional<int>(0);
            for (int b = 1; b <= value_count(table) && !bad_box; ++b) {
                std::string& box = row[static_cast<std::size_t>(b)];
                Converted<float> v = TextToNumber(box, m.decimal_comma);
                box = std::move(v.text);
                if (v.value) {
                    stored.values[static_cast<std::size_t>(b - 1)] = *v.value;
                } else {
                    bad_box = b;
                }
            }
            set_row(g, table, count, stored);
            set_row_count(g, table, count);
            if (bad_box) {
                return LoadRowFailure{id, table, count, *bad_box, kNotANumber};
            }
            if (auto failure = check_row(m, id, table, count, gap_before)) {
                return failure;
            }
        }
    }
    return std::nullopt;
}

void read_all_rows(Model& m, LoadDialogs& dialogs)
{
    for (LoadGroupId id : kLoadGroups) {
        ReadRows(m, id, dialogs[static_cast<std::size_t>(id)]);
    }
}

LoadDialogTexts dialog_texts(const LoadGroup& g, std::int16_t decimal_comma)
{
    LoadDialogTexts texts;
    for (LoadTable table : kLoadTables) {
        for (int k = 1; k <= row_count(g, table); ++k) {
            const LoadRow r = row(g, table, k);
            RowTexts boxes;
            boxes[0] = format_number(r.span, "0");
            for (int v = 0; v < value_count(table); ++v) {
                boxes[static_cast<std::size_t>(v + 1)] =
                    format_number(r.values[static_cast<std::size_t>(v)], "0.00", decimal_comma != 0);
            }
            texts.frames[static_cast<std::size_t>(table)].push_back(boxes);
        }
    }
    return texts;
}

LoadDialogs load_dialogs(const Model& m)
{
    LoadDialogs dialogs;
    for (LoadGroupId id : kLoadGroups) {
        dialogs[static_cast<std::size_t>(id)] = dialog_texts(group_of(m, id), m.decimal_comma);
    }
    return dialogs;
}

void CompactRows(LoadDialogTexts& texts)
{
    for (std::vector<RowTexts>& frame : texts.frames) {
        std::erase_if(frame, [](const RowTexts& row) { return row[0].empty(); });
    }
}

void ClipLoadsToSpans(const Model& m, LoadDialogTexts& texts)
{
    // Frame and box of the position that must lie inside the span.
    constexpr std::array<std::pair<std::size_t, std::size_t>, 3> starts{{{1, 3}, {2, 2}, {3, 2}}};
    for (const auto& [frame, box] : starts) {
        for (RowTexts& row : texts.frames[frame]) {
            const std::optional<std::int16_t> span = TextToInt16(row[0], m.decimal_comma).value;
            if (row[0].empty() || !span || *span < 1 || *span > m.nf) {
                continue;
            }
            const float L = m.ffl_s(*span);
            if (TextToNumber(row[box], m.decimal_comma).value.value_or(0) >= L) {
                row[0].clear();
                continue;
            }
            if (frame == 1 && TextToNumber(row[4], m.decimal_comma).value.value_or(0) > L) {
                row[4] = format_number(L, "0.000", m.decimal_comma != 0);
            }
        }
    }
}

} // namespace kvelder
