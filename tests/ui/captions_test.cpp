// The captions of the main window and the load dialogs in both languages, and
// what a switch of language leaves.

#include "ui/captions.h"
#include "ui/load_dialog.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <tuple>

namespace kvelder::test {
namespace {

std::optional<std::string> text_of(const std::vector<Caption>& captions, const std::string& control)
{
    for (const auto& c : captions) {
        if (c.control == control) {
            return c.text;
        }
    }
    return std::nullopt;
}

TEST(Captions, ShowTheWindowsTextsLetterForLetter)
{
    const auto eng = window_captions("Eng", "610a", 3);
    const auto nor = window_captions("Nor", "610a", 3);
    const struct {
        const char* control;
        const char* eng;
        const char* nor;
    } cases[] = {
        {"mnufileitem_1", "Open ", "\u00c5pne "},
        {"Lbl_psi0_1_1", "Q1:", " Q1:"},
        {"optSuppLeft_2", "Fixed", "Innspent"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(text_of(eng, c.control), c.eng) << c.control;
        EXPECT_EQ(text_of(nor, c.control), c.nor) << c.control;
    }
    // Only "Eng" is English; any other language is Norwegian.
    EXPECT_EQ(window_captions("Swe", "610a", 3), nor);

    EXPECT_EQ(text_of(window_captions("Nor", "610b", 3), "Fraresult"), "Resultater  (6.10b)");
    const std::tuple<const char*, int, const char*> durations[] = {
        {"Eng", 5, "Instantaneous"}, {"Nor", 5, "\u00d8yeblikk"}, {"Nor", 0, ""}, {"Eng", 6, ""}};
    for (const auto& [language, duration, text] : durations) {
        EXPECT_EQ(text_of(window_captions(language, "610a", duration), "Lbl_lastvarig2"), text) << duration;
    }
}

// Norwegian leaves mnuexit and Lblcontrvipp alone, so they must keep the form's text;
// every other control English sets must be set again by Norwegian.
TEST(Captions, SwitchingBackToNorwegianLeavesNoEnglishBehind)
{
    std::map<std::string, std::string> shown;
    const auto apply = [&](const std::vector<Caption>& captions) {
        std::set<std::string> seen;
        for (const auto& c : captions) {
            EXPECT_TRUE(seen.insert(c.control).second) << "set twice: " << c.control;
            shown[c.control] = c.text;
        }
    };
    apply(form_captions());
    apply(window_captions("Nor", "610a", 3));
    const auto norwegian = shown;
    apply(window_captions("Eng", "610b", 1));
    apply(window_captions("Nor", "610a", 3));
    EXPECT_EQ(shown, norwegian);
}

TEST(Captions, NameTheFamilies)
{
    EXPECT_EQ(family_names("Eng"), (std::array<std::string, 4>{"Timber", "Laminated", "Kerto", "K-bjelke"}));
    EXPECT_EQ(family_names("Nor"), (std::array<std::string, 4>{"Trelast", "Laminert", "Kerto", "K-bjelke"}));
}

// The walk, the boxes and OK are driven through the dialogs in the widget flows.
TEST(LoadDialogControls, NamesAndTextsFollowTheGroup)
{
    EXPECT_EQ(load_box_name(LoadGroupId::Q2, LoadTable::Trapezoid, 1, 3), "TxtQ1N_2_t_3");
    EXPECT_EQ(load_box_name(LoadGroupId::Q1, LoadTable::Point, 2, 9), "TxtcN_9");
    EXPECT_EQ(load_box_name(LoadGroupId::G, LoadTable::Moment, 2, 5), "TxtdE_5");

    const auto nor_g = load_dialog_captions("Nor", LoadGroupId::G);
    const auto nor_q = load_dialog_captions("Nor", LoadGroupId::Q1);
    EXPECT_EQ(text_of(nor_g, "frm_B_egenlast"), "Permanente laster (G)");
    EXPECT_EQ(text_of(nor_q, "frm_B_nyttelast"), "Variabel last (Q1)");
    EXPECT_EQ(text_of(nor_q, "Fra_mom"), "Moment laster (kNm ,m)");
    EXPECT_EQ(text_of(nor_q, "cmd_n_last_clear"), "Fjern alle laster");
    EXPECT_EQ(text_of(load_dialog_captions("Eng", LoadGroupId::Q2), "Lblf_p"), " Span");
}

} // namespace
} // namespace kvelder::test
