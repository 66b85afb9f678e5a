#include "gui/result_panel.h"

#include "gui/named.h"
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
    auto* l = named<QLabel>(name, parent);
    l->setAlignment(Qt::AlignCenter);
    return l;
}

QLabel* cell(const char* base, std::size_t index, QWidget* parent)
{
    QLabel* l = label(indexed(base, index), parent);
    l->setAutoFillBackground(true);
    l->setMinimumWidth(34);
    return l;
}

// The heads of a table in row `head_row`, then a row of cells for every
// element of `out`.
template <std::size_t R, std::size_t C>
void add_table(QGridLayout* grid, QWidget* frame, const std::array<const char*, C>& heads,
               const std::array<const char*, C>& cells, int head_row,
               std::array<std::array<QLabel*, C>, R>& out)
{
    grid->setSpacing(1);
    for (std::size_t c = 0; c < C; ++c) {
        grid->addWidget(label(heads[c], frame), head_row, static_cast<int>(c));
        for (std::size_t r = 0; r < R; ++r) {
            out[r][c] = cell(cells[c], r, frame);
            grid->addWidget(out[r][c], head_row + 1 + static_cast<int>(r), static_cast<int>(c));
        }
    }
    grid->setRowStretch(head_row + 1 + static_cast<int>(R), 1);
}

} // namespace

ResultPanel::ResultPanel(Workspace& ws, QWidget* parent) : QWidget(parent), m_ws(ws)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);

    auto* sections = named<QGroupBox>("Fracodesjekk", this);
    auto* grid = frame_layout<QGridLayout>(sections);
    grid->addWidget(label("Lblcontrmom", sections), 0, 1, 1, 2);
    grid->addWidget(label("Lblcontrtau", sections), 0, 3, 1, 2);
    grid->addWidget(label("Lblcontrvipp", sections), 0, 5);
    add_table<5, 6>(grid, sections, {"Lblbj", "Lblmxl", "Lblmom", "Lbltxl", "Lbltau", "Lblvipp"},
                    {"lbl_bj", "lbl_mxl", "lbl_mom", "Lbl_txl", "lbl_tau", "lbl_vipp"}, 1, m_spans);
    row->addWidget(sections, 3);

    auto* bearing = named<QGroupBox>("Fra_opplegg_last", this);
    auto* b_grid = frame_layout<QGridLayout>(bearing);
    add_table<6, 3>(b_grid, bearing, {"Lbl_opp_nr1", "Lbl_kc901", "Lbl_uf_trykk1"},
                    {"Lbl_opp_nr", "Lbl_kc90", "Lbl_uf_trykk"}, 0, m_nodes);
    row->addWidget(bearing, 2);

    auto* along = named<QGroupBox>("Frakrefter", this);
    auto* buttons = frame_layout<QVBoxLayout>(along);
    for (std::size_t k = 0; k < m_forms.size(); ++k) {
        m_forms[k] = named<QPushButton>(k == 0 ? "Cmd_grid_krefter" : "cmd_detres", along);
        m_forms[k]->setEnabled(false); // until a run has checked the beam
        buttons->addWidget(m_forms[k]);
    }
    buttons->addStretch();
    row->addWidget(along, 1);
}

void ResultPanel::set_checks_run(bool run)
{
    for (QPushButton* button : m_forms) {
        button->setEnabled(run);
    }
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
