#include "gui/load_panel.h"

#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/control_rules.h"
#include "ui/edits.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kvelder {

LoadPanel::LoadPanel(Workspace& ws, QWidget* parent) : QWidget(parent), m_ws(ws)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);

    auto* loads = named<QGroupBox>("frmLoad", this);
    auto* loads_grid = frame_layout<QGridLayout>(loads);
    int col = 0;
    for (const auto& [name, id] : {std::pair{"Cmdegenlast", LoadGroupId::G},
                                   {"Cmdnyttelast", LoadGroupId::Q1},
                                   {"Cmdnyttelast_2", LoadGroupId::Q2}}) {
        auto* button = named<QPushButton>(name, loads);
        connect(button, &QPushButton::clicked, this, [this, id = id] { m_ws.show_load_dialog(id); });
        loads_grid->addWidget(button, 0, col++);
    }
    m_self_weight = named<QCheckBox>("Check_profilvekt", loads);
    loads_grid->addWidget(m_self_weight, 1, 0, 1, 3);
    column->addWidget(loads);

    auto* comb = named<QGroupBox>("fraloadcomb", this);
    auto* comb_grid = frame_layout<QGridLayout>(comb);
    m_total = named<QRadioButton>("Opt_loadcomb1", comb);
    m_patterns = named<QRadioButton>("Opt_loadcomb2", comb);
    m_patterns_help = named<QPushButton>("Cmd_loadcomb2", comb);
    comb_grid->addWidget(m_total, 0, 0);
    comb_grid->addWidget(m_patterns, 1, 0);
    comb_grid->addWidget(m_patterns_help, 1, 1);
    column->addWidget(comb);

    auto* rule = named<QGroupBox>("Fra_loadcomb_a_b", this);
    auto* rule_row = frame_layout<QHBoxLayout>(rule);
    m_610a = named<QRadioButton>("Opt_610a", rule);
    m_610b = named<QRadioButton>("Opt_610b", rule);
    auto* rule_help = named<QPushButton>("Cmd_610a_b", rule);
    connect(rule_help, &QPushButton::clicked, this, [this] {
        if (const std::optional<HelpForm> form = combination_help(m_ws.model().annex)) {
            m_ws.show_help(*form);
        }
    });
    connect(m_patterns_help, &QPushButton::clicked, this,
            [this] { m_ws.show_help(pattern_help(m_ws.model().loadcomb_option)); });
    rule_row->addWidget(m_610a);
    rule_row->addWidget(m_610b);
    rule_row->addWidget(rule_help);
    column->addWidget(rule);

    connect(m_self_weight, &QCheckBox::clicked, this, [this](bool on) {
        if (!m_ws.filling()) {
            set_self_weight(m_ws.model(), on);
            m_ws.recalculate();
        }
    });
    for (auto [button, option] : {std::pair{m_total, 1}, {m_patterns, 2}}) {
        connect(button, &QRadioButton::clicked, this, [this, option = option] {
            if (!m_ws.filling()) {
                choose_load_combination(m_ws.model(), option);
                m_ws.recalculate();
            }
        });
    }
    for (auto [button, name] : {std::pair{m_610a, "610a"}, {m_610b, "610b"}}) {
        connect(button, &QRadioButton::clicked, this, [this, name = name] {
            if (!m_ws.filling()) {
                choose_comb_rule(m_ws.model(), name);
                m_ws.recalculate();
            }
        });
    }
}

void LoadPanel::refresh()
{
    const Model& m = m_ws.model();
    const ControlRules rules = control_rules(m);
    const auto check = [](QAbstractButton* button, bool on) {
        const QSignalBlocker block(button);
        button->setChecked(on);
    };
    check(m_self_weight, is_true(m.profile_weight_on));
    check(m.loadcomb_option == 2 ? m_patterns : m_total, true);
    check(m.comb_rule == "610a" ? m_610a : m_610b, true);
    m_total->setEnabled(rules.Opt_loadcomb1);
    m_patterns->setEnabled(rules.Opt_loadcomb2);
    m_patterns_help->setEnabled(rules.Cmd_loadcomb2);
}

} // namespace kvelder
