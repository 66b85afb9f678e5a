#pragma once

#include "model/load_dialogs.h"
#include "model/message.h"
#include "model/picture.h"

#include <vector>

namespace kvelder {

// What a recalculation needs of the screen while it runs. Everything else the
// window reads from the model when the run is over.
class CalcScreen {
public:
    virtual ~CalcScreen() = default;
    virtual void show_message(const Message& message) = 0;
    // A load row failed its check: the group's dialog opens on the wrong box.
    virtual void show_load_dialog(const LoadRowFailure& failure) = 0;
    virtual void clear_picture(Picture picture) = 0;
};

// A screen that keeps what it was asked to do, for the window to replay when
// the run is over, for the headless tool and for tests.
class RecordingScreen final : public CalcScreen {
public:
    void show_message(const Message& message) override { messages.push_back(message); }
    void show_load_dialog(const LoadRowFailure& failure) override { load_failures.push_back(failure); }
    void clear_picture(Picture picture) override { cleared.push_back(picture); }

    std::vector<Message> messages;
    std::vector<LoadRowFailure> load_failures;
    std::vector<Picture> cleared;
};

} // namespace kvelder
