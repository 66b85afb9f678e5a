#include "gui/buckling_dialog.h"

#include "gui/captioning.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/section_forms.h"
#include "gui/workspace.h"
#include "ui/edits.h"
#include "ui/section_forms.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kvelder {

BucklingDialog::BucklingDialog(Workspace& ws, QWidget* parent) : QDialog(parent), m_ws(ws)
{
    setObjectName(kBucklingForm);
    auto* column = new QVBoxLayout(this);

    auto* lengths = named<QGroupBox>("Fra_vipping", this);
    auto* grid = frame_layout<QGridLayout>(lengths);
    grid->setHorizontalSpacing(8);
    const char* heads[] = {"Lbl_felt_vipp", "Lbl_l_stag", "Lbl_le_fak", "Lbl_leff_head", "Lbl_crit_head"};
    for (int c = 0; c < 5; ++c) {
        auto* head = named<QLabel>(QString::fromLatin1(heads[c]), lengths);
        head->setAlignment(Qt::AlignCenter);
        grid->addWidget(head, 0, c);
    }
    const auto value_label = [lengths](const char* base, std::size_t k) {
        auto* label = named<QLabel>(indexed(base, k), lengths);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMinimumWidth(48);
        return label;
    };
    for (std::size_t k = 0; k < kMaxSpans; ++k) {
        const int row = static_cast<int>(k) + 1;
        const int span = row;
        m_span[k] = value_label("Lbl_felt_nr_vipp", k);
        m_span[k]->setAlignment(Qt::AlignCenter);
        m_l_stag[k] = new InputBox(indexed("Txt_l_stag", k), lengths);
        m_lef[k] = new InputBox(indexed("Txt_le_fak", k), lengths);
        m_l_eff[k] = value_label("Lbl_leff", k);
        m_k_crit[k] = value_label("Lbl_crit", k);
        grid->addWidget(m_span[k], row, 0);
        grid->addWidget(m_l_stag[k], row, 1);
        grid->addWidget(m_lef[k], row, 2);
        grid->addWidget(m_l_eff[k], row, 3);
        grid->addWidget(m_k_crit[k], row, 4);
        for (auto [box, kind] : {std::pair{m_l_stag[k], Box::LStag}, {m_lef[k], Box::LefFactor}}) {
            box->setFixedWidth(64);
            box->setAlignment(Qt::AlignRight);
            box->set_rule([this, box = box, kind = kind, span] { return box_rule(*box, kind, span); });
        }
    }
    column->addWidget(lengths);

    auto* location = named<QGroupBox>("Fra_angrepspunkt", this);
    auto* options = frame_layout<QHBoxLayout>(location);
    for (std::size_t k = 0; k < m_location.size(); ++k) {
        m_location[k] = named<QRadioButton>(indexed("Opt_angrepspunkt", k), location);
        options->addWidget(m_location[k]);
        connect(m_location[k], &QRadioButton::clicked, this,
                [this, k] { choose_location(static_cast<int>(k)); });
    }
    options->addStretch();
    column->addWidget(location);

    for (std::size_t k = 0; k < 3; ++k) {
        column->addWidget(named<QLabel>(indexed("Lbl_lef_help", k), this));
    }

    auto* foot = new QHBoxLayout;
    auto* table = named<QPushButton>("Cmd_lef", this);
    auto* ok = named<QPushButton>("cmdOK", this);
    foot->addWidget(table);
    foot->addStretch();
    foot->addWidget(ok);
    column->addLayout(foot);
    // Enter in a box walks on and never reaches OK.
    ok->setDefault(true);
    connect(table, &QPushButton::clicked, this, [this] {
        if (!focus_on_refused_box()) {
            open_lef_table(m_ws.model().language, this);
        }
    });
    connect(ok, &QPushButton::clicked, this, [this] {
        if (!focus_on_refused_box()) {
            accept();
        }
    });
}

void BucklingDialog::fill()
{
    apply_captions(*this, buckling_captions(m_ws.model().language));
    const auto rows = buckling_rows(m_ws.model());
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const BucklingRow& row = rows[k];
        m_span[k]->setText(qs(row.span));
        for (auto [box, text, failed] : {std::tuple{m_l_stag[k], &row.l_stag, row.l_stag_failed},
                                         {m_lef[k], &row.lef_factor, row.lef_factor_failed}}) {
            box->setText(qs(*text));
            box->setModified(false);
            box->set_failed(failed);
            box->setEnabled(row.shown);
        }
    }
    show_results();
    show_location();
}

bool BucklingDialog::box_rule(InputBox& box, Box kind, int span)
{
    // Closing the dialog is no leaving of its box.
    if (!isVisible()) {
        return true;
    }
    const bool taken = m_ws.run_box_rule(box, [this, &box, kind, span] {
        const BoxCommit c = commit_buckling_box(m_ws.model(), kind, span, box.text().toStdString());
        return Workspace::BoxResult{qs(c.text), c.failure, nullptr};
    });
    if (taken) {
        show_results();
    }
    return taken;
}

void BucklingDialog::choose_location(int location)
{
    if (m_ws.filling() || focus_on_refused_box()) {
        show_location();
        return;
    }
    choose_load_location(m_ws.model(), location);
    m_ws.recalculate();
    show_results();
}

void BucklingDialog::show_results()
{
    const auto rows = buckling_rows(m_ws.model());
    for (std::size_t k = 0; k < rows.size(); ++k) {
        m_l_eff[k]->setText(qs(rows[k].l_eff));
        m_k_crit[k]->setText(qs(rows[k].k_crit));
    }
}

void BucklingDialog::show_location()
{
    QRadioButton* chosen = m_location[m_ws.model().load_location == 0 ? 0 : 1];
    const QSignalBlocker block(chosen);
    chosen->setChecked(true);
}

void open_buckling_input(Workspace& ws, QWidget* parent)
{
    auto* dialog = new BucklingDialog(ws, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->fill();
    dialog->open();
    for (QWidget* box : dialog->findChildren<InputBox*>()) {
        if (box->isEnabled()) {
            box->setFocus(Qt::OtherFocusReason);
            break;
        }
    }
}

} // namespace kvelder
