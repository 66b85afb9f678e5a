#include "gui/annex_dialog.h"

#include "gui/captioning.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "recalc/annex_comparison.h"
#include "ui/annex_table.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kvelder {

void open_annexes(Workspace& ws, QWidget* parent)
{
    auto* dialog = named<QDialog>(kAnnexForm, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(dialog);

    const std::vector<AnnexRun> runs = calculate_annexes(ws.model(), &ws.dialogs());
    std::vector<const Model*> beams;
    std::vector<bool> calculated;
    for (const AnnexRun& run : runs) {
        beams.push_back(run.beam.get());
        calculated.push_back(run.messages.empty());
    }
    const AnnexTable table = annex_table(beams, calculated, ws.model().language);

    auto* grid = named<QTableWidget>("Grid_tillegg", dialog);
    grid->setColumnCount(static_cast<int>(table.heads.size()));
    grid->setRowCount(static_cast<int>(table.rows.size()));
    for (std::size_t c = 0; c < table.heads.size(); ++c) {
        grid->setHorizontalHeaderItem(static_cast<int>(c), new QTableWidgetItem(qs(table.heads[c])));
    }
    for (std::size_t r = 0; r < table.rows.size(); ++r) {
        const int row = static_cast<int>(r);
        grid->setVerticalHeaderItem(row, new QTableWidgetItem(qs(table.rows[r].label)));
        for (std::size_t c = 0; c < table.rows[r].cells.size(); ++c) {
            auto* cell = new QTableWidgetItem(qs(table.rows[r].cells[c]));
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            cell->setFlags(Qt::ItemIsEnabled);
            grid->setItem(row, static_cast<int>(c), cell);
        }
    }
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    grid->setFocusPolicy(Qt::NoFocus);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->verticalHeader()->setDefaultSectionSize(22);
    column->addWidget(grid, 1);

    auto* foot = new QHBoxLayout;
    auto* ok = named<QPushButton>("Cmd_ok", dialog);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    foot->addStretch();
    foot->addWidget(ok);
    column->addLayout(foot);

    apply_captions(*dialog, annex_captions(ws.model().language));
    dialog->resize(760, 90 + 22 * static_cast<int>(table.rows.size()));
    dialog->open();
}

} // namespace kvelder
