#include "gui/result_panel.h"

#include "gui/workspace.h"
#include "ui/result_columns.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvelder {
namespace {

QLabel* label(const QString& name, QWidget* parent)
{
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setAlignment(Qt::AlignCenter);
    return l;
}

QLabel* cell(const char* base, std::size_t index, QWidget* parent)
{
    QLabel* l = label(QString::fromLatin1(base) + QLatin1Char('_') + QString::number(index), parent);
    l->setAutoFillBackground(true);
    l->setMinimumWidth(34);
    return l;
}

} // namespace

ResultPanel::ResultPanel(Workspace& ws, QWidget* parent) : QWidget(parent), m_ws(ws)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);

    auto* sections = new QGroupBox(this);
    sections->setObjectName("Fracodesjekk");
    auto* grid = new QGridLayout(sections);
    grid->setContentsMargins(4, 2, 4, 2);
    grid->setSpacing(1);
    grid->addWidget(label("Lblcontrmom", sections), 0, 1, 1, 2);
    grid->addWidget(label("Lblcontrtau", sections), 0, 3, 1, 2);
    grid->addWidget(label("Lblcontrvipp", sections), 0, 5);
    const std::array<const char*, 6> heads{"Lblbj", "Lblmxl", "Lblmom", "Lbltxl", "Lbltau", "Lblvipp"};
    const std::array<const char*, 6> cells{"lbl_bj", "lbl_mxl", "lbl_mom", "Lbl_txl", "lbl_tau", "lbl_vipp"};
    for (std::size_t c = 0; c < heads.size(); ++c) {
        grid->addWidget(label(heads[c], sections), 1, static_cast<int>(c));
        for (std::size_t s = 0; s < m_spans.size(); ++s) {
            m_spans[s][c] = cell(cells[c], s, sections);
            grid->addWidget(m_spans[s][c], static_cast<int>(s) + 2, static_cast<int>(c));
        }
    }
    grid->setRowStretch(7, 1);
    row->addWidget(sections, 3);

    auto* bearing = new QGroupBox(this);
    bearing->setObjectName("Fra_opplegg_last");
    auto* b_grid = new QGridLayout(bearing);
    b_grid->setContentsMargins(4, 2, 4, 2);
    b_grid->setSpacing(1);
    const std::array<const char*, 3> b_heads{"Lbl_opp_nr1", "Lbl_kc901", "Lbl_uf_trykk1"};
    const std::array<const char*, 3> b_cells{"Lbl_opp_nr", "Lbl_kc90", "Lbl_uf_trykk"};
    for (std::size_t c = 0; c < b_heads.size(); ++c) {
        b_grid->addWidget(label(b_heads[c], bearing), 0, static_cast<int>(c));
        for (std::size_t n = 0; n < m_nodes.size(); ++n) {
            m_nodes[n][c] = cell(b_cells[c], n, bearing);
            b_grid->addWidget(m_nodes[n][c], static_cast<int>(n) + 1, static_cast<int>(c));
        }
    }
    b_grid->setRowStretch(7, 1);
    row->addWidget(bearing, 2);

    auto* along = new QGroupBox(this);
    along->setObjectName("Frakrefter");
    auto* buttons = new QVBoxLayout(along);
    buttons->setContentsMargins(4, 2, 4, 2);
    for (const char* name : {"Cmd_grid_krefter", "cmd_detres"}) {
        auto* button = new QPushButton(along);
        button->setObjectName(name);
        button->setEnabled(false); // the result grid and detailed results come later
        buttons->addWidget(button);
    }
    buttons->addStretch();
    row->addWidget(along, 1);
}

void ResultPanel::show(QLabel* label, const ResultCell& cell)
{
    label->setText(QString::fromStdString(cell.text));
    QFont font = label->font();
    font.setBold(cell.bold);
    label->setFont(font);
    QPalette p = label->palette();
    p.setColor(QPalette::WindowText, cell.red ? QColor(Qt::red) : QColor(Qt::black));
    const QPalette base = label->parentWidget()->palette();
    p.setColor(QPalette::Window, cell.background == Shade::LightYellow  ? QColor(255, 255, 192)
                                 : cell.background == Shade::ButtonFace ? base.color(QPalette::Button)
                                                                        : base.color(QPalette::Window));
    label->setPalette(p);
}

void ResultPanel::refresh()
{
    const Model& m = m_ws.model();
    const auto columns = span_columns(m);
    for (std::size_t s = 0; s < m_spans.size(); ++s) {
        const SpanColumn& c = columns[s];
        const std::array<const ResultCell*, 6> cells{&c.span,    &c.x_moment, &c.moment,
                                                     &c.x_shear, &c.shear,    &c.buckling};
        const bool shown = static_cast<int>(s) < m.nf;
        for (std::size_t k = 0; k < cells.size(); ++k) {
            show(m_spans[s][k], *cells[k]);
            m_spans[s][k]->setVisible(shown);
        }
    }
    const auto rows = bearing_rows(m);
    for (std::size_t n = 0; n < m_nodes.size(); ++n) {
        const BearingRow& r = rows[n];
        const std::array<const ResultCell*, 3> cells{&r.node, &r.kc90, &r.usage};
        const bool shown = static_cast<int>(n) < m.nnodes;
        for (std::size_t k = 0; k < cells.size(); ++k) {
            show(m_nodes[n][k], *cells[k]);
            m_nodes[n][k]->setVisible(shown);
        }
    }
}

} // namespace kvelder
