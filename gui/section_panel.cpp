#include "gui/section_panel.h"

#include "files/code_page.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/box_texts.h"
#include "ui/captions.h"
#include "ui/control_rules.h"
#include "ui/edits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kvelder {
namespace {

QString text(const std::string& s)
{
    return QString::fromStdString(as_utf8(s));
}

// Refills a list only when its names changed, so that an open list keeps its place.
void set_items(QComboBox* combo, const QStringList& items, int current)
{
    const QSignalBlocker block(combo);
    QStringList now;
    for (int k = 0; k < combo->count(); ++k) {
        now << combo->itemText(k);
    }
    if (now != items) {
        combo->clear();
        combo->addItems(items);
    }
    combo->setCurrentIndex(current < combo->count() ? current : -1);
}

} // namespace

SectionPanel::SectionPanel(Workspace& ws, QWidget* parent) : QWidget(parent), m_ws(ws)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);

    auto* beam = named<QGroupBox>("Fra_beam", this);
    auto* beam_grid = frame_layout<QGridLayout>(beam);
    m_family = named<QComboBox>("cboProfType", beam);
    m_material = named<QComboBox>("cboMat", beam);
    beam_grid->addWidget(named<QLabel>("lblBeamType", beam), 0, 0);
    beam_grid->addWidget(m_family, 0, 1);
    beam_grid->addWidget(named<QLabel>("lblMaterial", beam), 1, 0);
    beam_grid->addWidget(m_material, 1, 1);
    column->addWidget(beam);

    auto* dims = named<QGroupBox>("frmDimension", this);
    auto* dims_grid = frame_layout<QGridLayout>(dims);
    dims_grid->setVerticalSpacing(2);
    m_standard = named<QRadioButton>("optStandard", dims);
    m_rect = named<QRadioButton>("optRect", dims);
    m_circle = named<QRadioButton>("optCircle", dims);
    dims_grid->addWidget(m_standard, 0, 0);
    dims_grid->addWidget(m_rect, 0, 1);
    dims_grid->addWidget(m_circle, 0, 2);
    m_profile = named<QComboBox>("cboProf", dims);
    dims_grid->addWidget(m_profile, 1, 0);
    dims_grid->addWidget(named<QPushButton>("Cmd_finn_tverrsnitt", dims), 1, 1);
    dims_grid->addWidget(named<QPushButton>("Cmd_tverrsnitt", dims), 1, 2);
    m_b = new InputBox("txt_b1", dims);
    m_h = new InputBox("txt_h1", dims);
    m_d = new InputBox("txt_d", dims);
    const std::array<std::pair<const char*, InputBox*>, 3> sizes{
        {{"Lbl_b", m_b}, {"Lbl_h", m_h}, {"Lbl_d", m_d}}};
    auto* size_row = new QHBoxLayout;
    for (const auto& [name, box] : sizes) {
        size_row->addWidget(named<QLabel>(name, dims));
        size_row->addWidget(box);
    }
    dims_grid->addLayout(size_row, 2, 0, 1, 3);
    column->addWidget(dims);

    auto* bearing = named<QGroupBox>("Fra_oppleggsdata", this);
    auto* bearing_row = frame_layout<QHBoxLayout>(bearing);
    bearing_row->addWidget(named<QLabel>("Lbl_oppleggs_nr", bearing));
    m_node_label = named<QLabel>("Lbl_opp_nr_val", bearing);
    bearing_row->addWidget(m_node_label);
    // The window shows one support at a time; the picker reaches every other.
    m_node = named<QSpinBox>("opp_nr_picker", bearing);
    m_node->setRange(1, 2);
    bearing_row->addWidget(m_node);
    bearing_row->addWidget(new QLabel(QStringLiteral("kc90"), bearing));
    m_kc90 = new InputBox("Txt_kc90", bearing);
    bearing_row->addWidget(m_kc90);
    bearing_row->addWidget(named<QLabel>("lbl_opp_l", bearing));
    m_length = new InputBox("Txt_opp_L", bearing);
    bearing_row->addWidget(m_length);
    column->addWidget(bearing);

    auto* buckling = named<QGroupBox>("Fra_vipping", this);
    auto* buckling_row = frame_layout<QHBoxLayout>(buckling);
    m_buckling = named<QCheckBox>("Check_vipping", buckling);
    m_buckling_input = named<QPushButton>("Cmd_input_vipping", buckling);
    m_buckling_text = named<QPushButton>("Cmd_vipp_text", buckling);
    connect(m_buckling_text, &QPushButton::clicked, this, [this] { m_ws.show_help(HelpForm::Buckling); });
    buckling_row->addWidget(m_buckling);
    buckling_row->addWidget(m_buckling_input);
    buckling_row->addWidget(m_buckling_text);
    column->addWidget(buckling);

    // A family or a profile brings its sizes into the boxes; a material does not.
    const auto list_choice = [this](QComboBox* combo, void (*choose)(Model&, int), bool new_sizes) {
        connect(combo, &QComboBox::activated, this, [this, choose, new_sizes](int index) {
            if (m_ws.filling()) {
                return;
            }
            choose(m_ws.model(), index);
            if (new_sizes) {
                fill();
            }
            m_ws.recalculate();
        });
    };
    list_choice(m_family, &choose_family, true);
    list_choice(m_profile, &choose_profile, true);
    list_choice(m_material, &choose_material, false);
    connect(m_standard, &QRadioButton::clicked, this, [this] { choose_option(0); });
    connect(m_rect, &QRadioButton::clicked, this, [this] { choose_option(1); });
    connect(m_circle, &QRadioButton::clicked, this, [this] { choose_option(2); });
    m_b->set_rule([this] { return size_rule(*m_b, 0); });
    m_h->set_rule([this] { return size_rule(*m_h, 1); });
    m_d->set_rule([this] { return size_rule(*m_d, 2); });
    m_kc90->set_rule([this] { return bearing_rule(*m_kc90, true); });
    m_length->set_rule([this] { return bearing_rule(*m_length, false); });
    connect(m_node, &QSpinBox::valueChanged, this, [this](int node) { show_node(node); });
    connect(m_buckling, &QCheckBox::clicked, this, [this](bool on) {
        if (m_ws.filling()) {
            return;
        }
        set_buckling_check(m_ws.model(), on);
        m_ws.recalculate();
    });
}

void SectionPanel::choose_option(int option)
{
    if (m_ws.filling()) {
        return;
    }
    const SectionOption chosen = option == 0   ? SectionOption::Standard
                                 : option == 1 ? SectionOption::Rectangle
                                               : SectionOption::Circle;
    choose_section_option(m_ws.model(), chosen);
    fill();
    if (chosen == SectionOption::Circle) {
        show_node(1);
    }
    m_ws.recalculate();
}

bool SectionPanel::size_rule(InputBox& box, int which)
{
    const Box kind = which == 0 ? Box::Width : which == 1 ? Box::Height : Box::Diameter;
    return m_ws.run_box_rule(box, [this, &box, kind] {
        const BoxCommit c = commit_box(m_ws.model(), kind, box.text().toStdString());
        return Workspace::BoxResult{QString::fromStdString(c.text), c.failure, nullptr};
    });
}

bool SectionPanel::bearing_rule(InputBox& box, bool kc90)
{
    const int node = m_node->value();
    return m_ws.run_box_rule(box, [this, &box, kc90, node] {
        const BoxCommit c =
            commit_box(m_ws.model(), kc90 ? Box::Kc90 : Box::BearingLength, box.text().toStdString(), node);
        return Workspace::BoxResult{QString::fromStdString(c.text), c.failure, nullptr};
    });
}

void SectionPanel::show_node(int node)
{
    const Model& m = m_ws.model();
    {
        const QSignalBlocker block(m_node);
        m_node->setRange(1, m.nnodes);
        m_node->setValue(node);
    }
    m_node_label->setText(QString::number(m_node->value()));
    m_kc90->setText(QString::fromStdString(box_text(m, Box::Kc90, m_node->value())));
    m_length->setText(QString::fromStdString(box_text(m, Box::BearingLength, m_node->value())));
    m_kc90->set_failed(false);
    m_length->set_failed(false);
}

void SectionPanel::fill_lists()
{
    const Model& m = m_ws.model();
    QStringList families;
    for (const std::string& name : family_names(m.language)) {
        families << QString::fromStdString(name);
    }
    set_items(m_family, families, m.prof_type_index);
    QStringList profiles;
    for (const ProfileRow& row : m.profile_families.of(m.prof_type_index)) {
        profiles << text(row.name);
    }
    set_items(m_profile, profiles, m.prof_index);
    QStringList materials;
    const int last = std::min<int>(m.material_table.last_row, MaterialTable::kRows - 1);
    for (int row = 0; row <= last; ++row) {
        materials << text(m.material_table.rows[static_cast<std::size_t>(row)].name);
    }
    set_items(m_material, materials, m.material_row);
}

void SectionPanel::fill()
{
    const Model& m = m_ws.model();
    fill_lists();
    for (auto [box, kind] : {std::pair{m_b, Box::Width}, {m_h, Box::Height}, {m_d, Box::Diameter}}) {
        box->setText(QString::fromStdString(box_text(m, kind)));
        box->set_failed(false);
    }
    show_node(std::min<int>(m_node->value(), m.nnodes));
    refresh();
}

void SectionPanel::refresh()
{
    const Model& m = m_ws.model();
    fill_lists();
    const ControlRules rules = control_rules(m);
    const bool circle = m.section_form == "Tube";
    for (auto [button, on] : {std::pair{m_standard, !circle && is_true(m.standard_section)},
                              {m_rect, !circle && !is_true(m.standard_section)},
                              {m_circle, circle}}) {
        const QSignalBlocker block(button);
        if (on) {
            button->setChecked(true);
        }
    }
    m_standard->setEnabled(rules.optStandard);
    m_circle->setEnabled(rules.optCircle);
    m_profile->setEnabled(rules.cboProf);
    m_b->setEnabled(rules.txt_b1);
    m_h->setEnabled(rules.txt_h1);
    m_d->setEnabled(rules.txt_d);
    if (m_node->maximum() != m.nnodes) {
        show_node(std::min<int>(m_node->value(), m.nnodes));
    }
    const QSignalBlocker block(m_buckling);
    m_buckling->setChecked(m.vipping_off == 0);
    m_buckling->setVisible(rules.Check_vipping);
    m_buckling_input->setVisible(rules.Cmd_input_vipping);
    m_buckling_text->setVisible(rules.Cmd_input_vipping);
}

} // namespace kvelder
