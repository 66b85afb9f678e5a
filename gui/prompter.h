#pragma once

#include <QString>

#include <optional>
#include <ostream>

class QPrinter;
class QWidget;

namespace kvelder {

// Everything the window asks of the user through a modal box or a file
// dialog, behind one seam, so that tests and the screenshot run can answer
// in place of a person.
class Prompter {
public:
    enum class Answer { Save, Discard, Cancel };

    virtual ~Prompter() = default;
    // A plain box with an OK button; `warning` adds the exclamation icon.
    virtual void message(QWidget* parent, const QString& title, const QString& text, bool warning) = 0;
    virtual Answer save_changes(QWidget* parent, const QString& title, const QString& text) = 0;
    virtual bool yes_no(QWidget* parent, const QString& title, const QString& text) = 0;
    // None when the dialog was cancelled.
    virtual std::optional<QString> open_file_name(QWidget* parent, const QString& folder) = 0;
    virtual std::optional<QString> save_file_name(QWidget* parent, const QString& initial) = 0;
    // Opens a document with the program the desktop has for it; false when it cannot.
    virtual bool open_document(const QString& path) = 0;
    // The print dialog, without printing to a file or a selection; false when
    // cancelled or when there is no printer.
    virtual bool choose_printer(QWidget* parent, QPrinter& printer) = 0;
    // A PDF file to write; none when cancelled. The dialog asks before overwriting.
    virtual std::optional<QString> pdf_file_name(QWidget* parent, const QString& initial) = 0;
};

// The real boxes and dialogs of the desktop.
class DialogPrompter final : public Prompter {
public:
    void message(QWidget* parent, const QString& title, const QString& text, bool warning) override;
    Answer save_changes(QWidget* parent, const QString& title, const QString& text) override;
    bool yes_no(QWidget* parent, const QString& title, const QString& text) override;
    std::optional<QString> open_file_name(QWidget* parent, const QString& folder) override;
    std::optional<QString> save_file_name(QWidget* parent, const QString& initial) override;
    bool open_document(const QString& path) override;
    bool choose_printer(QWidget* parent, QPrinter& printer) override;
    std::optional<QString> pdf_file_name(QWidget* parent, const QString& initial) override;
};

// Answers no one sits at the window to give: every question is cancelled and
// every message is counted and, when a log is given, written to it.
class UnattendedPrompter final : public Prompter {
public:
    explicit UnattendedPrompter(std::ostream* log = nullptr) : m_log(log) {}
    void message(QWidget* parent, const QString& title, const QString& text, bool warning) override;
    Answer save_changes(QWidget*, const QString&, const QString&) override { return Answer::Cancel; }
    bool yes_no(QWidget*, const QString&, const QString&) override { return false; }
    std::optional<QString> open_file_name(QWidget*, const QString&) override { return std::nullopt; }
    std::optional<QString> save_file_name(QWidget*, const QString&) override { return std::nullopt; }
    bool open_document(const QString&) override { return false; }
    bool choose_printer(QWidget*, QPrinter&) override { return false; }
    std::optional<QString> pdf_file_name(QWidget*, const QString&) override { return std::nullopt; }
    int messages() const { return m_messages; }

private:
    std::ostream* m_log;
    int m_messages = 0;
};

} // namespace kvelder
