#pragma once

#include "model/model.h"
#include "ui/help_forms.h"

class QWidget;

namespace kvelder {

// Opens a reference dialog, window-modal over `parent`, drawn for the beam as
// it stands (language, annex, spans). It closes by its OK button and deletes
// itself then.
void open_help(HelpForm form, const Model& m, QWidget* parent);

} // namespace kvelder
