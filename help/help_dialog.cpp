#include "help/help_dialog.h"

#include "drawing/help_pictures.h"
#include "ui/help_texts.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace kvelder {
namespace {

// A picture drawn afresh whenever it is painted, at the size it has then.
// The beam cannot change under it: its dialog is modal.
class HelpPicture : public QWidget {
public:
    HelpPicture(HelpForm form, const Model& m, QWidget* parent) : QWidget(parent), m_form(form), m_model(m)
    {
        setObjectName(QString::fromStdString(help_picture_name(form)));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    QSize sizeHint() const override
    {
        if (m_form == HelpForm::PatternsTotal || m_form == HelpForm::PatternsQ1) {
            const PatternLayout layout = pattern_layout(m_form, m_model.nf, m_model.language);
            return {640, static_cast<int>(std::lround(layout.height_value * 2.5F))};
        }
        const auto rows = static_cast<int>(help_page(m_form, m_model.language).lines.size());
        return {600, 56 + 22 * rows};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        PlotSurface surface(*this);
        PlotHelpPicture(surface, m_form, m_model);
    }

private:
    HelpForm m_form;
    const Model& m_model;
};

} // namespace

void open_help(HelpForm form, const Model& m, QWidget* parent)
{
    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QString::fromStdString(help_form_name(form)));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QString::fromStdString(help_caption(form, m.language)));

    auto* column = new QVBoxLayout(dialog);
    auto* picture = new HelpPicture(form, m, dialog);
    picture->setMinimumSize(picture->sizeHint() * 3 / 4);
    column->addWidget(picture);
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* ok = new QPushButton(QStringLiteral("OK"), dialog);
    ok->setObjectName("Cmd_ok");
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    row->addWidget(ok);
    column->addLayout(row);
    // At the size of its picture, whatever share of the screen Qt would allow it.
    dialog->resize(dialog->sizeHint());
    dialog->open();
}

} // namespace kvelder
