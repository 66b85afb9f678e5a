#include "recalc/main_calc.h"

#include "analysis/points.h"
#include "design/buckling.h"
#include "design/factors.h"
#include "design/section.h"
#include "design/section_checks.h"
#include "recalc/run_analysis.h"
#include "ui/input_checks.h"
#include "ui/load_checks.h"
#include "ui/messages.h"

namespace kvelder {

bool data_missing(const Model& m)
{
    return is_true(m.err_loads) || is_true(m.err_supports) || is_true(m.err_spans) ||
           is_true(m.err_section) || window_box_failure(m).has_value();
}

bool results_stand(const Model& m)
{
    return !data_missing(m) && !is_true(m.err_load_item);
}

namespace {

// The four tables of a group in order, read from the dialog's boxes where
// there is a dialog; the point and moment tables that pass add their
// positions to the grids.
std::optional<LoadRowFailure> check_group(Model& m, LoadGroupId id, LoadDialogTexts* boxes)
{
    const std::optional<LoadRowFailure> read = boxes != nullptr ? ReadRows(m, id, *boxes) : std::nullopt;
    for (LoadTable table : kLoadTables) {
        if (read && read->table == table) {
            return read;
        }
        if (boxes == nullptr) {
            if (auto failure = check_load_table(m, id, table)) {
                return failure;
            }
        }
        if (table == LoadTable::Point) {
            collect_load_points(m, group_of(m, id), points_of(m, id), PointTable::Point);
        } else if (table == LoadTable::Moment) {
            collect_load_points(m, group_of(m, id), points_of(m, id), PointTable::Moment);
        }
    }
    return std::nullopt;
}

// Reads (or checks) the load rows of G, Q1 and Q2 in turn and builds the
// calculation grids from them. The first failing row ends the checks: its
// group's dialog is shown, with the message where the language has one, and
// err_load_item is set. After three sound groups the empty groups decide the
// load-combination option and err_section.
void check_loads(Model& m, LoadDialogs* dialogs, CalcScreen& screen)
{
    // The grids follow the spans even when a failing row stops the collection early.
    divide_spans(m, m.nxtot_s, 50, m.xl_s);
    divide_spans(m, m.nxtot10_s, 10, m.xl10_s);
    for (const LoadGroupId id : kLoadGroups) {
        screen.clear_picture(picture_of(id));
        m.err_load_item = kFalse;
        const std::optional<LoadRowFailure> failure =
            check_group(m, id, dialogs != nullptr ? &(*dialogs)[static_cast<std::size_t>(id)] : nullptr);
        // Each group's points build the grids afresh; the last build is sorted,
        // also after a failure, so that nothing reads the grid out of order.
        if (failure || id == kLoadGroups.back()) {
            normalise_grid(m, m.nxtot_s, 50, m.xl_s);
        }
        const bool self_weight = id == LoadGroupId::G && is_true(m.profile_weight_on);
        empty_flag(m, id) = flag_of(group_of(m, id).empty() && !self_weight);
        if (failure) {
            m.err_load_item = kTrue;
            screen.show_load_dialog(*failure);
            if (const auto message = failure_message(m.language, *failure)) {
                screen.show_message(*message);
            }
            return;
        }
    }
    if (is_true(m.G_empty) || is_true(m.Q1_empty)) {
        m.loadcomb_option = 1;
    }
    const bool all_empty = is_true(m.G_empty) && is_true(m.Q1_empty) && is_true(m.Q2_empty);
    if (all_empty) {
        screen.clear_picture(Picture::Picresult);
        screen.clear_picture(Picture::Picdisp);
    }
    m.err_section = flag_of(all_empty);
}

void run(Model& m, LoadDialogs* dialogs, CalcScreen& screen, ScratchFiles& trace)
{
    m.calc_invalid = kFalse;
    if (data_missing(m)) {
        screen.show_message(*ShowMessageEng(500)); // English in either language
        return;
    }

    Calc_load_factors(m);
    Read_material_data(m, m.material_row);
    Calc_kdef(m);
    check_loads(m, dialogs, screen);
    Calc_kcr(m);
    Calc_kmod(m);
    Calc_kh(m);
    Calc_gamma_M(m);
    Calc_design_strength(m);
    Check_section_input(m);
    if (m.vipping_off == 0) {
        Calc_leff(m);
    }

    run_analysis(m, trace);
    screen.clear_picture(Picture::Picresult);
    screen.clear_picture(Picture::Picdisp);

    Control_sections(m);
    if (m.section_form == "Firk") {
        Control_support(m);
    }

    m.loading_flag = kFalse;
    m.nf_previous = m.nf;
}

} // namespace

void MainCalc(Model& m, LoadDialogs* dialogs, CalcScreen& screen, ScratchFiles& trace)
{
    run(m, dialogs, screen, trace);
}

void MainCalc(Model& m, LoadDialogs& dialogs, CalcScreen& screen, ScratchFiles& trace)
{
    run(m, &dialogs, screen, trace);
}

void MainCalc(Model& m, CalcScreen& screen, ScratchFiles& trace)
{
    run(m, nullptr, screen, trace);
}

void MainCalc(Model& m, LoadDialogs& dialogs, CalcScreen& screen, const std::filesystem::path& scratch_folder)
{
    ScratchFiles trace(scratch_folder);
    run(m, &dialogs, screen, trace);
}

void MainCalc(Model& m, CalcScreen& screen, const std::filesystem::path& scratch_folder)
{
    ScratchFiles trace(scratch_folder);
    run(m, nullptr, screen, trace);
}

} // namespace kvelder
