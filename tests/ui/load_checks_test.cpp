// The checks of the load rows: every code that a row can raise, in the order
// of G and in the order of Q1 and Q2, and the reading of a dialog's boxes.

#include "tests/support/beams.h"
#include "ui/load_checks.h"
#include "ui/load_dialog.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kvelder::test {
namespace {

struct Case {
    const char* what;
    LoadTable table;
    std::vector<LoadRow> rows; // the last of them fails
    int code_G;
    int code_Q; // the same row in the order of the variable groups
    char left = kSimple, right = kSimple;
};

constexpr LoadTable U = LoadTable::Uniform, T = LoadTable::Trapezoid, P = LoadTable::Point,
                    M = LoadTable::Moment;

// On the example beam: two spans of 5 m. Rows are a span and the values in
// stored order (q; q1, q2, a, b; P, a; M, a).
const Case kCases[] = {
    {"span beyond the beam", U, {{3, {1}}}, 116, 116},
    {"second load on a span", U, {{2, {1}}, {2, {1}}}, 114, 114},
    {"no load", U, {{1, {0}}}, 120, 120},
    {"no load, second on its span", U, {{1, {1}}, {1, {0}}}, 114, 120},
    {"span number below 1", U, {{0, {1}}}, 102, 102},

    {"trapezoid beyond the beam", T, {{3, {1, 1, 0, 1}}}, 137, 130},
    {"b = 0", T, {{1, {1, 1, 0, 0}}}, 144, 144},
    {"b = 0 without load", T, {{1, {0, 0, 0, 0}}}, 144, 150},
    {"b beyond the span", T, {{1, {1, 1, 1, 6}}}, 146, 146},
    {"a beyond the span", T, {{1, {1, 1, 5.5F, 4}}}, 138, 138},
    {"a beyond the span and b", T, {{1, {1, 1, 5.5F, 6}}}, 146, 138},
    {"a > b", T, {{1, {1, 1, 3, 2}}}, 140, 140},
    {"a = b", T, {{1, {1, 1, 2, 2}}}, 142, 142},
    {"overlap", T, {{1, {1, 1, 0, 3}}, {1, {1, 1, 2, 4}}}, 148, 148},
    {"end to end is no overlap, another span neither",
     T,
     {{1, {1, 1, 0, 3}}, {1, {1, 1, 3, 5}}, {2, {1, 1, 0, 3}}, {2, {0, 0, 4, 5}}},
     150,
     150},
    {"two signs", T, {{1, {1, -1, 0, 2}}}, 152, 152},
    {"two signs and a > b", T, {{1, {1, -1, 3, 2}}}, 140, 152},

    {"point beyond the beam", P, {{3, {1, 1}}}, 163, 163},
    {"no point load", P, {{1, {0, 1}}}, 172, 172},
    {"c beyond the span", P, {{1, {1, 5.5F}}}, 168, 168},
    {"c = 0", P, {{2, {1, 0}}}, 170, 170},
    {"c = L", P, {{2, {1, 5}}}, 170, 170},
    {"same point", P, {{1, {1, 2}}, {1, {2, 2}}}, 174, 174},

    {"moment beyond the beam", M, {{4, {1, 1}}}, 184, 184},
    {"no moment", M, {{1, {0, 1}}}, 190, 190},
    {"d beyond the span", M, {{1, {1, 6}}}, 188, 188},
    {"moment on a fixed left end", M, {{1, {1, 0}}}, 196, 196, kBuiltIn},
    {"moment on a fixed right end", M, {{2, {1, 5}}}, 196, 196, kSimple, kBuiltIn},
    {"moment at a simple end", M, {{1, {1, 0}}, {1, {0, 2}}}, 190, 190},
    {"same moment point", M, {{2, {1, 1}}, {2, {3, 1}}}, 192, 192},
    {"one support from two spans", M, {{1, {1, 5}}, {2, {3, 0}}}, 194, 194},
    {"the same support from the right first", M, {{2, {1, 0}}, {1, {3, 5}}}, 194, 194},
};

TEST(LoadRowChecks, EachCodeIsRaisedInTheOrderOfItsGroup)
{
    for (const Case& c : kCases) {
        const int n = static_cast<int>(c.rows.size());
        for (LoadGroupId id : {LoadGroupId::G, LoadGroupId::Q1, LoadGroupId::Q2}) {
            auto m = example_beam();
            m->nsupLeft_s = c.left, m->nsupRight_s = c.right;
            LoadGroup& g = group_of(*m, id) = LoadGroup{};
            for (int k = 1; k <= n; ++k) {
                set_row(g, c.table, k, c.rows[static_cast<std::size_t>(k - 1)]);
            }
            set_row_count(g, c.table, n);
            const LoadRowFailure failure = check_load_table(*m, id, c.table).value_or(LoadRowFailure{});
            EXPECT_EQ(failure.code, id == LoadGroupId::G ? c.code_G : c.code_Q)
                << c.what << ", group " << static_cast<int>(id);
            EXPECT_EQ(failure.row, n) << c.what;
        }
    }
}

TEST(LoadRowChecks, SoundRowsPass)
{
    auto m = example_beam();
    m->nsupLeft_s = kBuiltIn;
    add_trapezoid(m->G, 1, 0, 3, 0, 2.5F);
    add_trapezoid(m->G, 1, -1, 0, 2.5F, 5);
    add_point(m->G, 1, 1, 4.999F);
    add_moment(m->G, 1, 1, 0.001F);
    add_moment(m->G, 2, 1, 5); // the right end is a simple support
    add_moment(m->G, 2, 1, 0);
    add_moment(m->G, 1, 1, 2.5F); // the moment at the start of span 2 is not on this point
    add_moment(m->G, 2, 1, 2.5F); // the same position on another span
    add_point(m->G, 2, 1, 4.999F);
    for (LoadTable t : {LoadTable::Uniform, LoadTable::Trapezoid, LoadTable::Point, LoadTable::Moment}) {
        EXPECT_FALSE(check_load_table(*m, LoadGroupId::G, t).has_value());
    }
}

TEST(LoadRowChecks, MessagesFollowTheLanguageWithTheirExceptions)
{
    const auto message = [](const char* language, int code) {
        return failure_message(language, {LoadGroupId::Q1, LoadTable::Point, 1, 0, code});
    };
    EXPECT_EQ(message("Nor", 116)->text, "Felt nr. > antall felt");
    EXPECT_EQ(message("Nor", 137)->title, "Uniform varying loads "); // always in English
    EXPECT_FALSE(message("Nor", 163).has_value());
    EXPECT_EQ(message("Eng", 163)->text, "Span nr. > number of spans");
    EXPECT_FALSE(message("Eng", 130).has_value()); // silent in both
    EXPECT_FALSE(message("Nor", 130).has_value());
    EXPECT_EQ(message("Eng", 194)->text, "Moment loads defind on same the suppport between two span");
    EXPECT_EQ(message("Nor", kSpanNotPositive)->text, "Lastfaktor er 0 or negativ ");
}

LoadDialogTexts dialog(std::vector<RowTexts> uniform, std::vector<RowTexts> points = {})
{
    LoadDialogTexts t;
    t.frames[0] = std::move(uniform);
    t.frames[2] = std::move(points);
    return t;
}

TEST(ReadRows, PacksAndConvertsTheRowsAndChecksEachAsItIsStored)
{
    auto m = example_beam();
    LoadDialogTexts texts = dialog({{"1", "2,5"}, {"2", "1.5"}}, {{"2", "10", "2,5"}});
    EXPECT_FALSE(ReadRows(*m, LoadGroupId::Q2, texts).has_value());
    EXPECT_EQ(m->Q2.uni_n, 2);
    EXPECT_EQ(m->Q2.uni_q(1), 2.5F);
    EXPECT_EQ(m->Q2.pt_a(1), 2.5F);
    EXPECT_EQ(texts.frames[0][0][1], "2.5"); // rewritten for a point machine

    // A filled row after an empty one.
    for (LoadGroupId id : {LoadGroupId::G, LoadGroupId::Q1}) {
        LoadDialogTexts gap = dialog({{"", ""}, {"1", "2"}});
        const auto failure = ReadRows(*m, id, gap);
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->code, 112);
    }

    // A box that is no number on a comma machine, after one rewritten for it.
    m = example_beam(kCommaMachine);
    texts = dialog({{"1", "2.5"}, {"2", "two"}});
    const auto failure = ReadRows(*m, LoadGroupId::G, texts);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, (LoadRowFailure{LoadGroupId::G, LoadTable::Uniform, 2, 1, kNotANumber}));
    EXPECT_EQ(failure_message("Eng", *failure)->text, "The text is not a number");
    EXPECT_EQ(texts.frames[0][0][1], "2,5");
}

TEST(ReadRows, TheFirstFailureStoresItsRowAndLeavesTheLaterFramesAsTheyWere)
{
    auto m = example_beam();
    add_point(m->G, 1, 7, 1);
    LoadDialogTexts texts = dialog({{"1", "2"}, {"3", "1"}, {"2", "1"}}, {});
    const auto failure = ReadRows(*m, LoadGroupId::G, texts);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, (LoadRowFailure{LoadGroupId::G, LoadTable::Uniform, 2, 0, 116}));
    EXPECT_EQ(m->G.uni_n, 2);
    EXPECT_EQ(m->G.pt_n, 1); // not read
    EXPECT_EQ(m->G.pt_P(1), 7.0F);
}

TEST(ClipLoadsToSpans, DropsRowsThatStartBeyondTheirSpanAndEndsTrapezoidsAtIt)
{
    for (const auto& [machine, end] : {std::pair{kPointMachine, "3.000"}, {kCommaMachine, "3,000"}}) {
        auto m = example_beam(machine);
        m->ffl_s(1) = 3.0F;
        LoadDialogTexts t;
        t.frames[1] = {{"1", "1", "2", "1.5", "4"}, {"1", "1", "2", "3", "4"}, {"2", "1", "2", "3", "4"}};
        t.frames[2] = {{"1", "5", "3"}, {"1", "5", "2.9"}, {"7", "5", "9"}};
        t.frames[3] = {{"1", "5", "3.5"}};
        ClipLoadsToSpans(*m, t);
        EXPECT_EQ(t.frames[1][0][0], "1");
        EXPECT_EQ(t.frames[1][0][4], end); // in the machine's separator
        EXPECT_EQ(t.frames[1][1][0], "");  // starts at the end
        EXPECT_EQ(t.frames[1][2][4], "4"); // span 2 is still 5 m long
        EXPECT_EQ(t.frames[2][0][0], "");
        EXPECT_EQ(t.frames[2][1][0], "1");
        EXPECT_EQ(t.frames[2][2][0], "7"); // not a span of the beam: the reading will say so
        EXPECT_EQ(t.frames[3][0][0], "");
        // The reading's second point row, should it fail, is the dialog's third.
        EXPECT_EQ(dialog_row(t, LoadTable::Point, 2), 2);
    }
}

} // namespace
} // namespace kvelder::test
