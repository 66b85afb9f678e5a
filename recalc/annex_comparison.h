#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/model.h"

#include <memory>
#include <vector>

namespace kvelder {

// The beam calculated under one national annex of the setup, with that row's
// own factors.
struct AnnexRun {
    int setup_row = 0;
    std::unique_ptr<Model> beam;
    std::vector<Message> messages; // of its recalculation; none when it passed
};

// The beam under each annex of the setup table, on copies and without a trace:
// the beam itself and its trace stay as they are. The loads are read from
// `dialogs` where given, as the window reads them.
std::vector<AnnexRun> calculate_annexes(const Model& m, const LoadDialogs* dialogs);

} // namespace kvelder
