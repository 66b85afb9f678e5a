#pragma once

#include "gui/prompter.h"

namespace kvelder {

// The answers of a run without a person: every message goes to the error
// stream, every question is cancelled and no file is chosen.
class ScreenshotPrompter final : public Prompter {
public:
    void message(QWidget* parent, const QString& title, const QString& text, bool warning) override;
    Answer save_changes(QWidget*, const QString&, const QString&) override { return Answer::Cancel; }
    bool yes_no(QWidget*, const QString&, const QString&) override { return false; }
    std::optional<QString> open_file_name(QWidget*, const QString&) override { return std::nullopt; }
    std::optional<QString> save_file_name(QWidget*, const QString&) override { return std::nullopt; }
    bool open_document(const QString&) override { return false; }
};

} // namespace kvelder
