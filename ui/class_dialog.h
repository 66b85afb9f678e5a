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
// load-sharing factor ksys. Each edit acts on the beam at once.

// Txt_ksy as it shows ksys, "0.00".
std::string ksys_text(const Model& m);

// Leaving Txt_ksy: ksys is stored as typed and shown "0.00"; the message when
// it is outside 1 .. 1.2. A text that is no number is kept and stands for 0.
BoxCommit commit_ksys(Model& m, std::string_view text);

// The dialog's texts in "Eng" or "Nor", the dialog's title first.
std::vector<Caption> class_dialog_captions(const std::string& language);

} // namespace kvelder
