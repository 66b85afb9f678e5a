#pragma once

#include "gui/input_box.h"

#include <QWidget>

namespace kvelder {

// Before a command of a dialog runs, the box with the focus takes its value
// as leaving it would. False while a box holds a refused value: that box keeps
// the focus (its rule has said why) and the command does not run.
inline bool boxes_settled(QWidget& dialog)
{
    auto* focused = qobject_cast<InputBox*>(dialog.focusWidget());
    if (focused != nullptr && (focused->failed() || !focused->commit())) {
        return false;
    }
    for (InputBox* box : dialog.findChildren<InputBox*>()) {
        if (box->failed()) {
            box->setFocus(Qt::OtherFocusReason);
            box->selectAll();
            return false;
        }
    }
    return true;
}

} // namespace kvelder
