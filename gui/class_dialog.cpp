#include "gui/class_dialog.h"

#include "gui/captioning.h"
#include "gui/dialog_boxes.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/box_texts.h"
#include "ui/class_dialog.h"
#include "ui/edits.h"
#include "ui/input_checks.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kvelder {
namespace {

QPushButton* help_button(const char* name, QWidget* parent)
{
    auto* button = named<QPushButton>(name, parent);
    button->setAutoDefault(false);
    button->setMaximumWidth(28);
    return button;
}

} // namespace

ClassDialog::ClassDialog(Workspace& ws, QWidget* parent) : QDialog(parent), m_ws(ws)
{
    setObjectName(kClassForm);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);

    auto* service = named<QGroupBox>("Fra_klimaklasse", this);
    auto* service_row = frame_layout<QHBoxLayout>(service);
    for (std::size_t k = 0; k < m_service.size(); ++k) {
        m_service[k] = named<QRadioButton>(indexed("Opt_klimaklasse", k), service);
        service_row->addWidget(m_service[k]);
        connect(m_service[k], &QRadioButton::clicked, this,
                [this, k] { choose_service(static_cast<int>(k)); });
    }
    service_row->addStretch();
    auto* service_help = help_button("Cmd_klima", service);
    service_row->addWidget(service_help);
    column->addWidget(service);

    auto* duration = named<QGroupBox>("Fra_lastvar", this);
    auto* duration_grid = frame_layout<QGridLayout>(duration);
    for (std::size_t k = 0; k < m_duration.size(); ++k) {
        m_duration[k] = named<QRadioButton>(indexed("Opt_Lastvarighet", k), duration);
        duration_grid->addWidget(m_duration[k], static_cast<int>(k), 0);
        connect(m_duration[k], &QRadioButton::clicked, this,
                [this, k] { choose_duration(static_cast<int>(k)); });
    }
    auto* duration_help = help_button("Cmd_lastvar", duration);
    duration_grid->addWidget(duration_help, 0, 1, Qt::AlignRight);
    column->addWidget(duration);

    auto* ksys = named<QGroupBox>("Fra_ksy", this);
    auto* ksys_row = frame_layout<QHBoxLayout>(ksys);
    ksys_row->addWidget(named<QLabel>("Lbl_ksy", ksys));
    m_ksys = new InputBox("Txt_ksy", ksys);
    m_ksys->setFixedWidth(60);
    m_ksys->setAlignment(Qt::AlignRight);
    m_ksys->set_rule([this] { return ksys_rule(); });
    ksys_row->addWidget(m_ksys);
    ksys_row->addStretch();
    column->addWidget(ksys);

    auto* buttons = new QHBoxLayout;
    auto* ok_button = named<QPushButton>("Cmd_ok", this);
    ok_button->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(ok_button);
    column->addLayout(buttons);

    for (const auto& [button, form] :
         {std::pair{service_help, HelpForm::ServiceClass}, {duration_help, HelpForm::LoadDuration}}) {
        connect(button, &QPushButton::clicked, this, [this, form = form] {
            if (may_act()) {
                m_ws.show_help(form);
            }
        });
    }
    connect(ok_button, &QPushButton::clicked, this, &ClassDialog::ok);
}

void ClassDialog::open_classes()
{
    apply_captions(*this, class_dialog_captions(m_ws.model().language));
    m_ksys->setText(qs(box_text(m_ws.model(), Box::Ksys)));
    m_ksys->setModified(false);
    m_ksys->set_failed(false);
    m_taken = m_ws.model().ksys;
    show_classes();
    if (!isVisible()) {
        open();
    }
    m_ksys->setFocus(Qt::OtherFocusReason);
}

void ClassDialog::show_classes()
{
    const Model& m = m_ws.model();
    for (std::size_t k = 0; k < m_service.size(); ++k) {
        const QSignalBlocker block(m_service[k]);
        m_service[k]->setEnabled(service_class_enabled(m, static_cast<int>(k) + 1));
        if (m.service_class == static_cast<int>(k) + 1) {
            m_service[k]->setChecked(true);
        }
    }
    for (std::size_t k = 0; k < m_duration.size(); ++k) {
        const QSignalBlocker block(m_duration[k]);
        if (m.duration_class == static_cast<int>(k) + 1) {
            m_duration[k]->setChecked(true);
        }
    }
}

bool ClassDialog::may_act()
{
    if (m_ws.filling()) {
        return false;
    }
    if (!boxes_settled(*this)) {
        show_classes(); // the option clicked shows the beam's class again
        return false;
    }
    return true;
}

void ClassDialog::choose_service(int index)
{
    if (may_act()) {
        choose_service_class(m_ws.model(), index + 1);
        show_classes();
        m_ws.recalculate();
    }
}

void ClassDialog::choose_duration(int index)
{
    if (may_act()) {
        choose_duration_class(m_ws.model(), index + 1);
        m_ws.recalculate();
    }
}

bool ClassDialog::ksys_rule()
{
    // Closing the dialog is no leaving of its box.
    if (!isVisible()) {
        return true;
    }
    return m_ws.run_box_rule(*m_ksys, [this] {
        const BoxCommit c = commit_box(m_ws.model(), Box::Ksys, m_ksys->text().toStdString());
        if (!c.failure) {
            m_taken = m_ws.model().ksys;
        }
        return Workspace::BoxResult{qs(c.text), c.failure, nullptr};
    });
}

void ClassDialog::ok()
{
    if (!may_act()) {
        return;
    }
    if (const std::optional<Message> failure = check_box(m_ws.model(), Box::Ksys, m_ws.model().ksys)) {
        m_ws.fail_box(*m_ksys, failure);
        return;
    }
    accept();
}

void ClassDialog::reject()
{
    if (m_ksys->failed()) {
        m_ws.model().ksys = m_taken;
    }
    QDialog::reject();
}

} // namespace kvelder
