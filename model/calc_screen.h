#pragma once

#include "ui/load_checks.h"
#include "ui/messages.h"

#include <vector>

namespace kvelder {

// The pictures of the main window that a recalculation clears.
enum class Picture { Picegenlast, Picnyttelast, Picnyttelast_2, Picresult, Picdisp };

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

// A screen that keeps what it was asked to do, for the headless tool and tests.
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
