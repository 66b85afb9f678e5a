#include "ui/load_checks.h"

#include "files/text_number.h"
#include "ui/number_format.h"

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

int stored_rows(const LoadGroup& g, LoadTable table)
{
    switch (table) {
    case LoadTable::Uniform:
        return std::clamp<int>(g.uni_n, 0, LoadGroup::kUniRows);
    case LoadTable::Trapezoid:
        return std::clamp<int>(g.trap_n, 0, LoadGroup::kTrapRows);
    case LoadTable::Point:
        return std::clamp<int>(g.pt_n, 0, LoadGroup::kPointRows);
    case LoadTable::Moment:
        break;
    }
    return std::clamp<int>(g.mom_n, 0, LoadGroup::kMomentRows);
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

int span_of(const LoadGroup& g, LoadTable table, int k)
{
    switch (table) {
    case LoadTable::Uniform:
        return g.uni_span(k);
    case LoadTable::Trapezoid:
        return g.trap_span(k);
    case LoadTable::Point:
        return g.pt_span(k);
    case LoadTable::Moment:
        break;
    }
    return g.mom_span(k);
}

std::optional<LoadRowFailure> check_row(const Model& m, LoadGroupId id, LoadTable table, int k,
                                        bool gap_before)
{
    const LoadGroup& g = group_of(m, id);
    // A span number below 1 is refused before any code reads its length.
    if (span_of(g, table, k) < 1) {
        return LoadRowFailure{id, table, k, 0, kSpanNotPositive};
    }
    for (int code : order(id, table)) {
        if (fails(m, g, table, k, code, gap_before)) {
            return LoadRowFailure{id, table, k, box_of(code), code};
        }
    }
    return std::nullopt;
}

void clear_table(LoadGroup& g, LoadTable table)
{
    const LoadGroup empty;
    switch (table) {
    case LoadTable::Uniform:
        g.uni_n = 0, g.uni_span = empty.uni_span, g.uni_q = empty.uni_q;
        break;
    case LoadTable::Trapezoid:
        g.trap_n = 0, g.trap_span = empty.trap_span, g.trap_q1 = empty.trap_q1, g.trap_q2 = empty.trap_q2;
        g.trap_a = empty.trap_a, g.trap_b = empty.trap_b;
        break;
    case LoadTable::Point:
        g.pt_n = 0, g.pt_span = empty.pt_span, g.pt_P = empty.pt_P, g.pt_a = empty.pt_a;
        break;
    case LoadTable::Moment:
        g.mom_n = 0, g.mom_span = empty.mom_span, g.mom_M = empty.mom_M, g.mom_a = empty.mom_a;
        break;
    }
}

// Stores the converted boxes of one row as row k of a table.
void store_row(LoadGroup& g, LoadTable table, int k, std::int16_t span, const std::array<float, 4>& v)
{
    switch (table) {
    case LoadTable::Uniform:
        g.uni_n = static_cast<std::int16_t>(k), g.uni_span(k) = span, g.uni_q(k) = v[0];
        break;
    case LoadTable::Trapezoid:
        g.trap_n = static_cast<std::int16_t>(k), g.trap_span(k) = span;
        g.trap_q1(k) = v[0], g.trap_q2(k) = v[1], g.trap_a(k) = v[2], g.trap_b(k) = v[3];
        break;
    case LoadTable::Point:
        g.pt_n = static_cast<std::int16_t>(k), g.pt_span(k) = span, g.pt_P(k) = v[0], g.pt_a(k) = v[1];
        break;
    case LoadTable::Moment:
        g.mom_n = static_cast<std::int16_t>(k), g.mom_span(k) = span, g.mom_M(k) = v[0], g.mom_a(k) = v[1];
        break;
    }
}

constexpr std::array<LoadTable, 4> kTables{LoadTable::Uniform, LoadTable::Trapezoid, LoadTable::Point,
                                           LoadTable::Moment};
constexpr std::array<int, 4> kValueBoxes{1, 4, 2, 2};
constexpr std::array<int, 4> kCapacity{LoadGroup::kUniRows, LoadGroup::kTrapRows, LoadGroup::kPointRows,
                                       LoadGroup::kMomentRows};

} // namespace

LoadGroup& group_of(Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G : id == LoadGroupId::Q1 ? m.Q1 : m.Q2;
}

const LoadGroup& group_of(const Model& m, LoadGroupId id)
{
    return id == LoadGroupId::G ? m.G : id == LoadGroupId::Q1 ? m.Q1 : m.Q2;
}

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
    const int n = stored_rows(group_of(m, id), table);
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
    for (std::size_t f = 0; f < kTables.size(); ++f) {
        const LoadTable table = kTables[f];
        clear_table(g, table);
        int count = 0;
        bool gap_before = false;
        for (RowTexts& row : texts.frames[f]) {
            if (row[0].empty()) {
                gap_before = true;
                continue;
            }
            if (count == kCapacity[f]) {
                break; // a dialog holds no more rows than its table
            }
            ++count;
            std::array<float, 4> values{};
            const std::optional<std::int16_t> span = TextToInt16(row[0], m.decimal_comma);
            std::optional<int> bad_box = span ? std::nullopt : std::optional<int>(0);
            for (int b = 1; b <= kValueBoxes[f] && !bad_box; ++b) {
                const auto v = TextToNumber(row[static_cast<std::size_t>(b)], m.decimal_comma);
                if (v) {
                    values[static_cast<std::size_t>(b - 1)] = *v;
                } else {
                    bad_box = b;
                }
            }
            store_row(g, table, count, span.value_or(0), values);
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

void ClipLoadsToSpans(const Model& m, LoadDialogTexts& texts)
{
    // Frame and box of the position that must lie inside the span.
    constexpr std::array<std::pair<std::size_t, std::size_t>, 3> starts{{{1, 3}, {2, 2}, {3, 2}}};
    for (const auto& [frame, box] : starts) {
        for (RowTexts& row : texts.frames[frame]) {
            std::string span_text = row[0];
            const std::optional<std::int16_t> span = TextToInt16(span_text, m.decimal_comma);
            if (row[0].empty() || !span || *span < 1 || *span > m.nf) {
                continue;
            }
            const float L = m.ffl_s(*span);
            std::string start_text = row[box];
            if (TextToNumber(start_text, m.decimal_comma).value_or(0) >= L) {
                row[0].clear();
                continue;
            }
            std::string end_text = row[4];
            if (frame == 1 && TextToNumber(end_text, m.decimal_comma).value_or(0) > L) {
                row[4] = format_number(L, "0.000", m.decimal_comma != 0);
            }
        }
    }
}

} // namespace kvelder
