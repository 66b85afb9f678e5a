// The checks of the load rows: every code that a row can raise, in the order
// of G and in the order of Q1 and Q2, and the reading of a dialog's boxes.

#include "tests/support/beams.h"
#include "ui/load_checks.h"

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <iterator>

namespace kvelder::test {
namespace {

struct Case {
    const char* what;
    LoadTable table;
    std::function<void(Model&, LoadGroup&)> rows;
    int code_G;
    int code_Q; // the same row in the order of the variable groups
    int row = 1;
};

// On the example beam: two spans of 5 m.
const Case kCases[] = {
    {"span beyond the beam", LoadTable::Uniform, [](Model&, LoadGroup& g) { add_uniform(g, 3, 1); }, 116,
     116},
    {"second load on a span", LoadTable::Uniform,
     [](Model&, LoadGroup& g) { add_uniform(g, 2, 1), add_uniform(g, 2, 1); }, 114, 114, 2},
    {"no load", LoadTable::Uniform, [](Model&, LoadGroup& g) { add_uniform(g, 1, 0); }, 120, 120},
    {"no load, second on its span", LoadTable::Uniform,
     [](Model&, LoadGroup& g) { add_uniform(g, 1, 1), add_uniform(g, 1, 0); }, 114, 120, 2},
    {"span number below 1", LoadTable::Uniform, [](Model&, LoadGroup& g) { add_uniform(g, 0, 1); }, 102, 102},

    {"trapezoid beyond the beam", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 3, 1, 1, 0, 1); }, 137, 130},
    {"b = 0", LoadTable::Trapezoid, [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 0, 0); }, 144, 144},
    {"b = 0 without load", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 0, 0, 0, 0); }, 144, 150},
    {"b beyond the span", LoadTable::Trapezoid, [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 1, 6); },
     146, 146},
    {"a beyond the span", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 5.5F, 4); }, 138, 138},
    {"a beyond the span and b", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 5.5F, 6); }, 146, 138},
    {"a > b", LoadTable::Trapezoid, [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 3, 2); }, 140, 140},
    {"a = b", LoadTable::Trapezoid, [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 2, 2); }, 142, 142},
    {"overlap", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, 1, 0, 3), add_trapezoid(g, 1, 1, 1, 2, 4); }, 148, 148,
     2},
    {"end to end is no overlap, another span neither", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) {
         add_trapezoid(g, 1, 1, 1, 0, 3), add_trapezoid(g, 1, 1, 1, 3, 5), add_trapezoid(g, 2, 1, 1, 0, 3);
         add_trapezoid(g, 2, 0, 0, 4, 5);
     },
     150, 150, 4},
    {"two signs", LoadTable::Trapezoid, [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, -1, 0, 2); }, 152,
     152},
    {"two signs and a > b", LoadTable::Trapezoid,
     [](Model&, LoadGroup& g) { add_trapezoid(g, 1, 1, -1, 3, 2); }, 140, 152},

    {"point beyond the beam", LoadTable::Point, [](Model&, LoadGroup& g) { add_point(g, 3, 1, 1); }, 163,
     163},
    {"no point load", LoadTable::Point, [](Model&, LoadGroup& g) { add_point(g, 1, 0, 1); }, 172, 172},
    {"c beyond the span", LoadTable::Point, [](Model&, LoadGroup& g) { add_point(g, 1, 1, 5.5F); }, 168, 168},
    {"c = 0", LoadTable::Point, [](Model&, LoadGroup& g) { add_point(g, 2, 1, 0); }, 170, 170},
    {"c = L", LoadTable::Point, [](Model&, LoadGroup& g) { add_point(g, 2, 1, 5); }, 170, 170},
    {"same point", LoadTable::Point,
     [](Model&, LoadGroup& g) { add_point(g, 1, 1, 2), add_point(g, 1, 2, 2); }, 174, 174, 2},

    {"moment beyond the beam", LoadTable::Moment, [](Model&, LoadGroup& g) { add_moment(g, 4, 1, 1); }, 184,
     184},
    {"no moment", LoadTable::Moment, [](Model&, LoadGroup& g) { add_moment(g, 1, 0, 1); }, 190, 190},
    {"d beyond the span", LoadTable::Moment, [](Model&, LoadGroup& g) { add_moment(g, 1, 1, 6); }, 188, 188},
    {"moment on a fixed left end", LoadTable::Moment,
     [](Model& m, LoadGroup& g) { m.nsupLeft_s = kBuiltIn, add_moment(g, 1, 1, 0); }, 196, 196},
    {"moment on a fixed right end", LoadTable::Moment,
     [](Model& m, LoadGroup& g) { m.nsupRight_s = kBuiltIn, add_moment(g, 2, 1, 5); }, 196, 196},
    {"moment at a simple end", LoadTable::Moment,
     [](Model&, LoadGroup& g) { add_moment(g, 1, 1, 0), add_moment(g, 1, 0, 2); }, 190, 190, 2},
    {"same moment point", LoadTable::Moment,
     [](Model&, LoadGroup& g) { add_moment(g, 2, 1, 1), add_moment(g, 2, 3, 1); }, 192, 192, 2},
    {"one support from two spans", LoadTable::Moment,
     [](Model&, LoadGroup& g) { add_moment(g, 1, 1, 5), add_moment(g, 2, 3, 0); }, 194, 194, 2},
    {"the same support from the right first", LoadTable::Moment,
     [](Model&, LoadGroup& g) { add_moment(g, 2, 1, 0), add_moment(g, 1, 3, 5); }, 194, 194, 2},
};

class LoadRowCode : public ::testing::TestWithParam<std::size_t> {};

// Each case in G, Q1 and Q2: the code it raises follows the order of the group.
TEST_P(LoadRowCode, IsRaisedInTheOrderOfItsGroup)
{
    const Case& c = kCases[GetParam()];
    for (LoadGroupId id : {LoadGroupId::G, LoadGroupId::Q1, LoadGroupId::Q2}) {
        auto m = example_beam();
        group_of(*m, id) = LoadGroup{};
        c.rows(*m, group_of(*m, id));
        const auto failure = check_load_table(*m, id, c.table);
        ASSERT_TRUE(failure.has_value()) << c.what;
        EXPECT_EQ(failure->code, id == LoadGroupId::G ? c.code_G : c.code_Q)
            << "group " << static_cast<int>(id);
        EXPECT_EQ(failure->row, c.row);
    }
}

std::string case_name(const ::testing::TestParamInfo<std::size_t>& info)
{
    std::string name = "Code" + std::to_string(kCases[info.param].code_G) + "_";
    for (const char* p = kCases[info.param].what; *p != 0; ++p) {
        if (std::isalnum(static_cast<unsigned char>(*p)) != 0) {
            name += *p;
        }
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(LoadRowChecks, LoadRowCode, ::testing::Range<std::size_t>(0, std::size(kCases)),
                         case_name);

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
}

LoadDialogTexts dialog(std::vector<RowTexts> uniform, std::vector<RowTexts> points = {})
{
    LoadDialogTexts t;
    t.frames[0] = std::move(uniform);
    t.frames[2] = std::move(points);
    return t;
}

TEST(ReadRows, PacksTheRowsAndChecksEachAsItIsStored)
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

TEST(ReadRows, ABoxThatIsNoNumberFailsOnACommaMachine)
{
    auto m = example_beam();
    m->decimal_comma = 1;
    LoadDialogTexts texts = dialog({{"1", "2,5"}, {"2", "two"}});
    const auto failure = ReadRows(*m, LoadGroupId::G, texts);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, kNotANumber);
    EXPECT_EQ(failure->row, 2);
    EXPECT_EQ(failure->box, 1);
    EXPECT_EQ(failure_message("Eng", *failure)->text, "The text is not a number");
}

TEST(ClipLoadsToSpans, DropsRowsThatStartBeyondTheirSpanAndEndsTrapezoidsAtIt)
{
    auto m = example_beam();
    m->ffl_s(1) = 3.0F;
    LoadDialogTexts t;
    t.frames[1] = {{"1", "1", "2", "1.5", "4"}, {"1", "1", "2", "3", "4"}, {"2", "1", "2", "3", "4"}};
    t.frames[2] = {{"1", "5", "3"}, {"1", "5", "2.9"}, {"7", "5", "9"}};
    t.frames[3] = {{"1", "5", "3.5"}};
    ClipLoadsToSpans(*m, t);
    EXPECT_EQ(t.frames[1][0][0], "1");
    EXPECT_EQ(t.frames[1][0][4], "3.000");
    EXPECT_EQ(t.frames[1][1][0], "");  // starts at the end
    EXPECT_EQ(t.frames[1][2][4], "4"); // span 2 is still 5 m long
    EXPECT_EQ(t.frames[2][0][0], "");
    EXPECT_EQ(t.frames[2][1][0], "1");
    EXPECT_EQ(t.frames[2][2][0], "7"); // not a span of the beam: the reading will say so
    EXPECT_EQ(t.frames[3][0][0], "");
}

} // namespace
} // namespace kvelder::test
