#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"
#include "model/picture.h"
#include "ui/help_forms.h"

#include <QString>

#include <functional>
#include <optional>

namespace kvelder {

class InputBox;

// What a panel of the main window may ask of the window: the beam, the one
// recalculation, the message boxes, and the rule every text box runs through.
class Workspace {
public:
    virtual ~Workspace() = default;

    virtual Model& model() = 0;
    virtual LoadDialogs& dialogs() = 0;

    // The one recalculation entry point: runs the whole chain, redraws the
    // pictures and refreshes every panel. Never nests.
    virtual void recalculate() = 0;
    // Refreshes the panels from the beam without a recalculation.
    virtual void refresh() = 0;
    // Puts the beam's values into the window's boxes and lists, as after
    // opening a project; the panels follow at the next refresh.
    virtual void fill_boxes() = 0;
    // Leaves a result picture blank until the next run that gets past its gate.
    virtual void blank(Picture picture) = 0;
    virtual void show_message(const Message& message) = 0;
    // Marks a box failed and shows why, where there is a message; the box
    // keeps the focus, its text selected.
    virtual void fail_box(InputBox& box, const std::optional<Message>& message) = 0;
    // Opens the load dialog of a group on its rows.
    virtual void show_load_dialog(LoadGroupId id) = 0;
    // Opens a reference dialog over the window or the dialog in front.
    virtual void show_help(HelpForm form) = 0;
    // Opens a form of the window by its name, as its button opens it; false
    // for a name the window has no form of.
    virtual bool open_form(const QString& name) = 0;

    // A box's rule: `apply` stores the box's text in the beam and returns the
    // box's new text and its failure, if any; `focus` is the box that takes
    // the focus back on a failure (the box itself when null). The rule runs
    // only when no other box's message is open and no file is loading; a pass
    // recalculates when `recalculate` says so.
    struct BoxResult {
        QString text;
        std::optional<Message> failure;
        InputBox* focus = nullptr;
    };
    virtual bool run_box_rule(InputBox& box, const std::function<BoxResult()>& apply,
                              bool recalculate = true) = 0;

    // True while the program itself fills the controls: handlers do nothing then.
    virtual bool filling() const = 0;
};

} // namespace kvelder
