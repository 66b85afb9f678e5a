#pragma once

#include "model/model.h"
#include "ui/box_texts.h"
#include "ui/captions.h"

#include <string>
#include <string_view>
#include <vector>

namespace kvelder {

inline constexpr const char* kClassForm = "frmClass";

// The classes dialog (frmClass): service class, load-duration class and the
// load-sharing factor ksys. Each edit acts on the beam at once; Txt_ksy is a
// box of ui/box_texts (Box::Ksys), stored as typed and refused outside 1 .. 1.2.

// The dialog's texts in "Eng" or "Nor", the dialog's title first.
std::vector<Caption> class_dialog_captions(const std::string& language);

} // namespace kvelder
