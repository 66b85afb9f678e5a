#include "ui/load_dialog.h"

#include "tests/support/beams.h"
#include "ui/load_checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kvelder::test {
namespace {

// Walks a dialog with Enter from its first box, the span boxes of `filled`
// rows (frame index, row) holding a number; the places visited before OK.
std::vector<BoxPlace> walk(const std::vector<std::pair<LoadTable, int>>& filled)
{
    const auto has_span = [&](const BoxPlace& p) {
        return std::find(filled.begin(), filled.end(), std::pair{p.table, p.row}) != filled.end();
    };
    std::vector<BoxPlace> visited;
    std::optional<BoxPlace> at = BoxPlace{LoadTable::Uniform, 0, 0};
    while (at && visited.size() < 200) {
        visited.push_back(*at);
        at = next_box(*at, at->box == 0 && !has_span(*at));
    }
    return visited;
}

TEST(LoadDialogWalk, EnterRunsRowByRowFrameByFrameToOkAndEmptySpansSkipTheirFrame)
{
    // Every row filled: each box once, in reading order, then OK.
    std::vector<std::pair<LoadTable, int>> all;
    std::vector<BoxPlace> reading_order;
    for (LoadTable t : kLoadTables) {
        for (int r = 0; r < capacity(t); ++r) {
            all.emplace_back(t, r);
            for (int b = 0; b <= value_count(t); ++b) {
                reading_order.push_back({t, r, b});
            }
        }
    }
    EXPECT_EQ(walk(all), reading_order);
    EXPECT_EQ(reading_order.size(), 108U);

    // Nothing filled: the four span boxes of the first rows, then OK.
    const std::vector<BoxPlace> empty{{LoadTable::Uniform, 0, 0},
                                      {LoadTable::Trapezoid, 0, 0},
                                      {LoadTable::Point, 0, 0},
                                      {LoadTable::Moment, 0, 0}};
    EXPECT_EQ(walk({}), empty);

    // One point row: its boxes, then the empty second row sends the walk on.
    const std::vector<BoxPlace> one_point{{LoadTable::Uniform, 0, 0}, {LoadTable::Trapezoid, 0, 0},
                                          {LoadTable::Point, 0, 0},   {LoadTable::Point, 0, 1},
                                          {LoadTable::Point, 0, 2},   {LoadTable::Point, 1, 0},
                                          {LoadTable::Moment, 0, 0}};
    EXPECT_EQ(walk({{LoadTable::Point, 0}}), one_point);

    EXPECT_EQ(focus_mode({LoadTable::Uniform, 4, 1}), FocusMode::sb_frame);
    EXPECT_EQ(focus_mode({LoadTable::Moment, 5, 2}), FocusMode::sb_slast);
    EXPECT_EQ(FocusStep(FocusMode::mb_linje, true), FocusTarget::NextInRow);
}

TEST(LoadDialogControls, NamesAndTextsFollowTheGroup)
{
    EXPECT_EQ(load_box_name(LoadGroupId::G, LoadTable::Uniform, 0, 0), "TxtfeltE_j_0");
    EXPECT_EQ(load_box_name(LoadGroupId::Q2, LoadTable::Trapezoid, 1, 3), "TxtQ1N_2_t_3");
    EXPECT_EQ(load_box_name(LoadGroupId::Q1, LoadTable::Point, 2, 9), "TxtcN_9");
    EXPECT_EQ(load_box_name(LoadGroupId::G, LoadTable::Moment, 2, 5), "TxtdE_5");
    EXPECT_EQ(load_dialog_name(LoadGroupId::Q2), "frm_B_nyttelast_2");
    EXPECT_EQ(load_ok_name(LoadGroupId::Q2), "Cmdok_n");

    const auto text_of = [](const std::vector<Caption>& captions, const std::string& control) {
        for (const Caption& c : captions) {
            if (c.control == control) {
                return c.text;
            }
        }
        return std::string("(none)");
    };
    const auto nor_g = load_dialog_captions("Nor", LoadGroupId::G);
    const auto nor_q = load_dialog_captions("Nor", LoadGroupId::Q1);
    EXPECT_EQ(text_of(nor_g, "frm_B_egenlast"), "Permanente laster (G)");
    EXPECT_EQ(text_of(nor_q, "frm_B_nyttelast"), "Variabel last (Q1)");
    EXPECT_EQ(text_of(nor_g, "Fra_mom"), "Moment laster (kNm, m)");
    EXPECT_EQ(text_of(nor_q, "Fra_mom"), "Moment laster (kNm ,m)");
    EXPECT_EQ(text_of(nor_q, "cmd_n_last_clear"), "Fjern alle laster");
    EXPECT_EQ(text_of(load_dialog_captions("Eng", LoadGroupId::Q2), "Lblf_p"), " Span");
}

TEST(LoadDialogBoxes, AnyTextGivesItsFormatOrAMessageAndNeverMore)
{
    auto m = example_beam();
    const BoxPlace span{LoadTable::Point, 0, 0};
    const BoxPlace value{LoadTable::Point, 0, 1};
    const auto shown = [&](const BoxPlace& p, const std::string& text) {
        const BoxCommit c = commit_load_box(*m, LoadGroupId::Q1, p, text);
        return c.text + (c.failure ? " | " + c.failure->text : "");
    };
    const std::string digits(300, '9');
    const std::vector<std::pair<std::string, std::string>> spans{
        {"", ""},
        {"2", "2"},
        {"2.6", "3"},
        {"0", "0 | Number is  <= 0 "},
        {"-0", "0 | Number is  <= 0 "},
        {"abc", "0 | Number is  <= 0 "},
        {"1e999", "1e999 | The text is not a number"},
        {"99999", "99999 | The text is not a number"},
        {digits, digits + " | The text is not a number"},
    };
    for (const auto& [typed, expected] : spans) {
        EXPECT_EQ(shown(span, typed), expected) << typed;
    }
    const std::vector<std::pair<std::string, std::string>> values{
        {"", ""},
        {"1,5", "1.50"},
        {"-0", "0.00"},
        {",", "0.00"},
        {"nan", "0.00"},
        {"1e999", "1e999 | The text is not a number"},
        {digits, digits + " | The text is not a number"},
    };
    for (const auto& [typed, expected] : values) {
        EXPECT_EQ(shown(value, typed), expected) << typed;
    }
    m->language = "Nor";
    EXPECT_EQ(shown(span, "-1"), "-1 | Lastfaktor er 0 or negativ ");
}

TEST(LoadDialogOk, PacksTheRowsOrChangesNothingAndNamesTheFailingBox)
{
    auto m = example_beam(); // G 2.0 and Q1 4.0 kN/m on spans 1 and 2
    LoadDialogs dialogs = load_dialogs(*m);
    const Model before = *m;
    const LoadDialogs dialogs_before = dialogs;

    // A first row left empty: one row, in the beam and in the boxes.
    LoadDialogTexts boxes;
    boxes.frames[0] = {{}, {"2", "3"}};
    EXPECT_FALSE(confirm_load_dialog(*m, dialogs, LoadGroupId::Q1, boxes));
    EXPECT_EQ(m->Q1.uni_n, 1);
    EXPECT_EQ(m->Q1.uni_span(1), 2);
    EXPECT_EQ(boxes.frames[0], (std::vector<RowTexts>{{"2", "3"}}));
    EXPECT_EQ(dialogs[1], boxes);

    // Two uniform rows on one span: code 114 at the second, and nothing changes.
    *m = before;
    dialogs = dialogs_before;
    boxes.frames[0] = {{"1", "2"}, {}, {"1", "5"}};
    const auto failure = confirm_load_dialog(*m, dialogs, LoadGroupId::G, boxes);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->code, 114);
    EXPECT_EQ(dialog_row(boxes, LoadTable::Uniform, failure->row), 1);
    EXPECT_EQ(m->G.uni_n, 2);
    EXPECT_EQ(m->G.uni_q(1), 2.0F);
    EXPECT_EQ(dialogs, dialogs_before);

    // A row failing in a recalculation is found in a dialog that still has its gap.
    LoadDialogTexts gapped;
    gapped.frames[2] = {{}, {"1", "3", "1"}, {}, {"7", "3", "1"}};
    EXPECT_EQ(dialog_row(gapped, LoadTable::Point, 2), 3);

    ClearRows(boxes);
    EXPECT_FALSE(confirm_load_dialog(*m, dialogs, LoadGroupId::G, boxes));
    EXPECT_TRUE(m->G.empty());
    EXPECT_EQ(dialogs[0], LoadDialogTexts{});
}

} // namespace
} // namespace kvelder::test
