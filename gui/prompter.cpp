#include "gui/prompter.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QUrl>

namespace kvelder {
namespace {

const QString kFilter = QStringLiteral("*.kvel");

} // namespace

void DialogPrompter::message(QWidget* parent, const QString& title, const QString& text, bool warning)
{
    QMessageBox box(warning ? QMessageBox::Warning : QMessageBox::NoIcon, title, text, QMessageBox::Ok,
                    parent);
    box.exec();
}

Prompter::Answer DialogPrompter::save_changes(QWidget* parent, const QString& title, const QString& text)
{
    const auto answer = QMessageBox::question(parent, title, text,
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                              QMessageBox::Save);
    return answer == QMessageBox::Save      ? Answer::Save
           : answer == QMessageBox::Discard ? Answer::Discard
                                            : Answer::Cancel;
}

bool DialogPrompter::yes_no(QWidget* parent, const QString& title, const QString& text)
{
    return QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

std::optional<QString> DialogPrompter::open_file_name(QWidget* parent, const QString& folder)
{
    const QString name = QFileDialog::getOpenFileName(parent, QString(), folder, kFilter);
    return name.isEmpty() ? std::nullopt : std::optional<QString>(name);
}

std::optional<QString> DialogPrompter::save_file_name(QWidget* parent, const QString& initial)
{
    // The window asks about an existing file itself, in its own words.
    const QString name = QFileDialog::getSaveFileName(parent, QString(), initial, kFilter, nullptr,
                                                      QFileDialog::DontConfirmOverwrite);
    return name.isEmpty() ? std::nullopt : std::optional<QString>(name);
}

bool DialogPrompter::open_document(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool DialogPrompter::choose_printer(QWidget* parent, QPrinter& printer)
{
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    return dialog.exec() == QDialog::Accepted && printer.isValid();
}

std::optional<QString> DialogPrompter::pdf_file_name(QWidget* parent, const QString& initial)
{
    const QString name =
        QFileDialog::getSaveFileName(parent, QString(), initial, QStringLiteral("PDF (*.pdf)"));
    return name.isEmpty() ? std::nullopt : std::optional<QString>(name);
}

void UnattendedPrompter::message(QWidget*, const QString& title, const QString& text, bool)
{
    ++m_messages;
    if (m_log != nullptr) {
        *m_log << title.toStdString() << ": " << text.toStdString() << '\n';
    }
}

} // namespace kvelder
