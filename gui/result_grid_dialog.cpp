#include "gui/result_grid_dialog.h"

#include "gui/captioning.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/result_grid.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kvelder {
namespace {

const QColor kNodeRow(192, 192, 192);

QTableWidgetItem* item(const std::string& text, Qt::Alignment align)
{
    auto* cell = new QTableWidgetItem(qs(text));
    cell->setTextAlignment(align);
    cell->setFlags(Qt::ItemIsEnabled);
    return cell;
}

} // namespace

ResultGridDialog::ResultGridDialog(Workspace& ws, QWidget* parent) : QDialog(parent), m_ws(ws)
{
    setObjectName(kResultGridForm);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    auto* heading = named<QLabel>("grid_heading", this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    column->addWidget(heading);
    m_grid = named<QTableWidget>("Grid", this);
    m_grid->setColumnCount(kGridColumns);
    m_grid->horizontalHeader()->hide();
    m_grid->verticalHeader()->hide();
    m_grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setWordWrap(true);
    m_grid->setSelectionMode(QAbstractItemView::NoSelection);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->verticalHeader()->setMinimumSectionSize(4);
    m_grid->verticalHeader()->setDefaultSectionSize(20);
    m_grid->setFocusPolicy(Qt::NoFocus);
    column->addWidget(m_grid, 1);

    m_heads = new QTableView(m_grid);
    m_heads->setObjectName("Grid_heads");
    m_heads->setModel(m_grid->model());
    m_heads->horizontalHeader()->hide();
    m_heads->verticalHeader()->hide();
    m_heads->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_heads->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_heads->setSelectionMode(QAbstractItemView::NoSelection);
    m_heads->setFocusPolicy(Qt::NoFocus);
    m_heads->setWordWrap(true);
    m_heads->setFrameShape(QFrame::NoFrame);
    m_heads->verticalHeader()->setMinimumSectionSize(4);
    m_grid->viewport()->installEventFilter(this);
    resize(860, 600);
}

bool ResultGridDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid->viewport() && event->type() == QEvent::Resize) {
        place_heads();
    }
    return QDialog::eventFilter(watched, event);
}

void ResultGridDialog::place_heads()
{
    int height = 0;
    for (int r = 0; r < kGridHeadRows; ++r) {
        m_heads->setRowHeight(r, m_grid->rowHeight(r));
        height += m_grid->rowHeight(r);
    }
    for (int r = kGridHeadRows; r < m_grid->rowCount(); ++r) {
        m_heads->setRowHidden(r, true);
    }
    for (int c = 0; c < kGridColumns; ++c) {
        m_heads->setColumnWidth(c, m_grid->columnWidth(c));
    }
    const QRect area = m_grid->viewport()->geometry();
    m_heads->setGeometry(area.x(), area.y(), area.width(), height);
    m_heads->raise();
}

void ResultGridDialog::showEvent(QShowEvent* event)
{
    fill();
    QDialog::showEvent(event);
}

void ResultGridDialog::fill()
{
    apply_captions(*this, result_grid_captions(m_ws.model().language));
    const ResultGrid grid = result_grid(m_ws.model());
    m_grid->clearSpans();
    m_grid->clearContents();
    m_grid->setRowCount(kGridHeadRows + static_cast<int>(grid.rows.size()));
    const QColor head_face = palette().color(QPalette::Button);
    for (int r = 0; r < kGridHeadRows; ++r) {
        for (int c = 0; c < kGridColumns; ++c) {
            m_grid->setItem(r, c, item({}, Qt::AlignLeft | Qt::AlignVCenter));
            m_grid->item(r, c)->setBackground(head_face);
        }
    }
    m_heads->clearSpans();
    for (const GridHead& head : grid.heads) {
        m_grid->item(head.row, head.column)->setText(qs(head.text));
        if (head.columns > 1) {
            m_grid->setSpan(head.row, head.column, 1, head.columns);
            m_heads->setSpan(head.row, head.column, 1, head.columns);
        }
    }
    for (std::size_t k = 0; k < grid.rows.size(); ++k) {
        const int r = kGridHeadRows + static_cast<int>(k);
        for (int c = 0; c < kGridColumns; ++c) {
            QTableWidgetItem* cell =
                item(grid.rows[k].cells[static_cast<std::size_t>(c)], Qt::AlignRight | Qt::AlignVCenter);
            if (grid.rows[k].node) {
                cell->setBackground(kNodeRow);
            }
            m_grid->setItem(r, c, cell);
        }
    }
    // An equal share of the width, narrower for the span and the spare column.
    const int width = m_grid->viewport()->width() > 0 ? m_grid->viewport()->width() : 820;
    const int share = width / (kGridColumns - 1);
    for (int c = 0; c < kGridColumns; ++c) {
        m_grid->setColumnWidth(c, c == 0 ? share * 3 / 4 : c == kGridColumns - 1 ? share / 4 : share);
    }
    m_grid->setRowHeight(kGridHeadRows - 1, 6);
    m_grid->setCurrentCell(-1, -1);
    m_grid->scrollToTop();
    place_heads();
}

} // namespace kvelder
