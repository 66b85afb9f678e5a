// SCAFFOLD: replaced by the real help dialogs.
#include "help/help_dialog.h"

#include <QDialog>

namespace kvelder {

void open_help(HelpForm form, const Model&, QWidget* parent)
{
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QString::fromStdString(help_form_name(form)));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace kvelder
