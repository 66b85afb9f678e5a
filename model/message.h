#pragma once

#include <string>

namespace kvelder {

// One message box: its number (0 for the messages that have none), title and text.
struct Message {
    int code = 0;
    std::string title;
    std::string text;

    friend bool operator==(const Message&, const Message&) = default;
};

} // namespace kvelder
