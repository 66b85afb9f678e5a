#include "gui/factor_panel.h"

#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/result_columns.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace kvelder {

FactorPanel::FactorPanel(Workspace& ws, QWidget* parent) : QWidget(parent), m_ws(ws)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);

    const auto value = [this](const char* name, QWidget* owner) {
        QLabel* l = named<QLabel>(name, owner);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_values[name] = l;
        return l;
    };

    auto* classes = named<QGroupBox>("Fra_Fak", this);
    auto* grid = frame_layout<QGridLayout>(classes);
    grid->setVerticalSpacing(0);
    // Service class, load duration and ksys on the left, the factors on the right.
    const std::array<std::pair<const char*, const char*>, 3> left{
        {{"Lbl_klima_1", "Lbl_klima_2"}, {"Lbl_lastvarig1", "Lbl_lastvarig2"}, {"Lbl_ksy1", "Lbl_ksy2"}}};
    const std::array<std::pair<const char*, const char*>, 5> right{{{"Lbl_gamma1", "Lbl_gamma2"},
                                                                    {"Lbl_kcr1", "Lbl_kcr2"},
                                                                    {"Lbl_kmod1", "Lbl_kmod2"},
                                                                    {"Lbl_kdef1", "Lbl_kdef2"},
                                                                    {"Lbl_khy1", "Lbl_khy2"}}};
    for (std::size_t k = 0; k < left.size(); ++k) {
        grid->addWidget(named<QLabel>(left[k].first, classes), static_cast<int>(k), 0);
        if (k == 1) {
            grid->addWidget(named<QLabel>(left[k].second, classes), 1, 1); // the duration in words
        } else {
            grid->addWidget(value(left[k].second, classes), static_cast<int>(k), 1);
        }
    }
    for (std::size_t k = 0; k < right.size(); ++k) {
        grid->addWidget(named<QLabel>(right[k].first, classes), static_cast<int>(k), 2);
        grid->addWidget(value(right[k].second, classes), static_cast<int>(k), 3);
    }
    column->addWidget(classes);

    auto* psi = named<QGroupBox>("Fra_psi0", this);
    auto* psi_grid = frame_layout<QGridLayout>(psi);
    psi_grid->setVerticalSpacing(0);
    psi_grid->addWidget(named<QLabel>("Lbl_psi0_1_1", psi), 0, 0);
    psi_grid->addWidget(value("Lbl_psi0_1_2", psi), 0, 1);
    psi_grid->addWidget(named<QLabel>("Lbl_psi0_2_1", psi), 1, 0);
    psi_grid->addWidget(value("Lbl_psi0_2_2", psi), 1, 1);
    // The class of the annex and its factor, where the annex has classes.
    m_safety = named<QGroupBox>("frmSafety", this);
    auto* safety_row = frame_layout<QHBoxLayout>(m_safety);
    safety_row->addWidget(value("Lbl_safe_fac", m_safety));
    safety_row->addStretch();
    safety_row->addWidget(value("Lbl_kfi_1", m_safety));
    auto* psi_row = new QHBoxLayout;
    psi_row->setSpacing(4);
    psi_row->addWidget(psi, 1);
    psi_row->addWidget(m_safety);
    column->addLayout(psi_row);

    auto* strengths = named<QGroupBox>("Fra_spenning", this);
    auto* s_grid = frame_layout<QGridLayout>(strengths);
    s_grid->setVerticalSpacing(0);
    // Characteristic strength on the left, design strength on the right.
    const std::array<std::array<const char*, 4>, 3> rows{
        {{"Lbl_fmk1", "Lbl_fmk2", "lbl_fmd1", "Lbl_fmd2"},
         {"lbl_fvk1", "lbl_fvk2", "Lbl_fvd1", "Lbl_fvd2"},
         {"Lbl_fc90k1", "Lbl_fc90k2", "Lbl_fc90d1", "Lbl_fc90d2"}}};
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const int row = static_cast<int>(r);
        s_grid->addWidget(named<QLabel>(rows[r][0], strengths), row, 0);
        s_grid->addWidget(value(rows[r][1], strengths), row, 1);
        s_grid->addWidget(named<QLabel>(rows[r][2], strengths), row, 2);
        s_grid->addWidget(value(rows[r][3], strengths), row, 3);
    }
    column->addWidget(strengths);
}

void FactorPanel::refresh()
{
    const FactorLabels f = factor_labels(m_ws.model());
    if (f.safety_frame) {
        m_safety->setVisible(!f.safety_frame->empty());
        m_safety->setTitle(QString::fromStdString(*f.safety_frame));
    }
    const std::array<std::pair<const char*, const std::string*>, 17> texts{{
        {"Lbl_safe_fac", &f.safety_class},
        {"Lbl_kfi_1", &f.kfi},
        {"Lbl_klima_2", &f.service_class},
        {"Lbl_ksy2", &f.ksys},
        {"Lbl_gamma2", &f.gamma_M},
        {"Lbl_kcr2", &f.kcr},
        {"Lbl_kmod2", &f.kmod},
        {"Lbl_kdef2", &f.kdef},
        {"Lbl_khy2", &f.kh},
        {"Lbl_psi0_1_2", &f.psi_Q1},
        {"Lbl_psi0_2_2", &f.psi_Q2},
        {"Lbl_fmk2", &f.fmk},
        {"Lbl_fmd2", &f.fmd},
        {"lbl_fvk2", &f.fvk},
        {"Lbl_fvd2", &f.fvd},
        {"Lbl_fc90k2", &f.fc90k},
        {"Lbl_fc90d2", &f.fc90d},
    }};
    for (const auto& [name, text] : texts) {
        m_values.at(name)->setText(QString::fromStdString(*text));
    }
}

} // namespace kvelder
