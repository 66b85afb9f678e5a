// The names and words of the load dialogs' controls; the walk, the boxes and OK
// are driven through the dialogs themselves in the widget flows.

#include "ui/load_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kvelder::test {
namespace {

TEST(LoadDialogControls, NamesAndTextsFollowTheGroup)
{
    EXPECT_EQ(load_box_name(LoadGroupId::Q2, LoadTable::Trapezoid, 1, 3), "TxtQ1N_2_t_3");
    EXPECT_EQ(load_box_name(LoadGroupId::Q1, LoadTable::Point, 2, 9), "TxtcN_9");
    EXPECT_EQ(load_box_name(LoadGroupId::G, LoadTable::Moment, 2, 5), "TxtdE_5");

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

} // namespace
} // namespace kvelder::test
