#include "gui/setup_dialog.h"

#include "files/setup_file.h"
#include "gui/captioning.h"
#include "gui/dialog_boxes.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "ui/annex_table.h"
#include "ui/help_forms.h"

#include <QCheckBox>
#include <QComboBox>
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

constexpr std::array<PsiList, 4> kPsiLists{PsiList::Psi0_Q1, PsiList::Psi0_Q2, PsiList::Psi2_Q1,
                                           PsiList::Psi2_Q2};
constexpr std::array<const char*, 4> kPsiNames{"Comb_psi0_1", "Comb_psi0_2", "Comb_psi2_1", "Comb_psi2_2"};
constexpr std::array<const char*, 4> kFactorLabels{"Lbl_gamma_timb", "Lbl_gamma_lam", "Lbl_gamma_kerto",
                                                   "Lbl_gamma_k_bjelke"};
constexpr std::array<const char*, 4> kKcrLabels{"Lbl_kcr_timb", "Lbl_kcr_lam", "Lbl_kcr_kerto",
                                                "Lbl_kcr_k_bjelke"};

void set_list(QComboBox* combo, const std::vector<std::string>& items, int current)
{
    const QSignalBlocker block(combo);
    combo->clear();
    for (const std::string& item : items) {
        combo->addItem(qs(item));
    }
    combo->setCurrentIndex(current < combo->count() ? current : -1);
}

void set_checked(QAbstractButton* button, bool on)
{
    const QSignalBlocker block(button);
    button->setChecked(on);
}

// Fills the controls without running a handler, and gives way when it is done.
class FillScope {
public:
    explicit FillScope(bool& filling) : m_filling(filling) { m_filling = true; }
    ~FillScope() { m_filling = false; }
    FillScope(const FillScope&) = delete;
    FillScope& operator=(const FillScope&) = delete;

private:
    bool& m_filling;
};

} // namespace

SetupDialog::SetupDialog(Workspace& ws, std::filesystem::path data_folder, QWidget* parent)
    : QDialog(parent), m_ws(ws), m_folder(std::move(data_folder))
{
    setObjectName(kSetupForm);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(build_annex());
    column->addWidget(build_combinations());
    auto* factors = new QHBoxLayout;
    factors->addWidget(build_factors("Fra_part_fac", 0));
    factors->addWidget(build_factors("Fra_kcr", 4));
    column->addLayout(factors);

    auto* buttons = new QHBoxLayout;
    auto* annexes = named<QPushButton>("Cmd_tillegg", this);
    annexes->setAutoDefault(false);
    buttons->addWidget(annexes);
    connect(annexes, &QPushButton::clicked, this, [this] {
        if (may_act()) {
            m_ws.open_form(QString::fromLatin1(kAnnexForm));
        }
    });
    auto* save_button = named<QPushButton>("Cmd_save", this);
    auto* ok_button = named<QPushButton>("Cmd_ok", this);
    save_button->setAutoDefault(false);
    ok_button->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(save_button);
    buttons->addWidget(ok_button);
    column->addLayout(buttons);

    connect(save_button, &QPushButton::clicked, this, &SetupDialog::save);
    connect(ok_button, &QPushButton::clicked, this, &SetupDialog::ok);
}

QWidget* SetupDialog::build_annex()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* language = named<QGroupBox>("Fra_language", row);
    auto* language_row = frame_layout<QHBoxLayout>(language);
    for (const auto& [name, code] : {std::pair{"Cmd_eng", "Eng"}, {"Cmd_nor", "Nor"}}) {
        auto* button = named<QPushButton>(name, language);
        button->setAutoDefault(false);
        language_row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, code = code] { choose_language_of(code); });
    }
    layout->addWidget(language);

    auto* annex = named<QGroupBox>("Fra_set_annex", row);
    auto* annex_row = frame_layout<QHBoxLayout>(annex);
    m_country = named<QComboBox>("cmbCountry", annex);
    m_country->setMinimumWidth(220);
    annex_row->addWidget(m_country);
    layout->addWidget(annex, 1);
    connect(m_country, &QComboBox::activated, this, &SetupDialog::choose_country);
    return row;
}

QWidget* SetupDialog::build_combinations()
{
    auto* frame = named<QGroupBox>("Fra_loadcomb", this);
    auto* layout = frame_layout<QHBoxLayout>(frame);

    auto* psi = named<QGroupBox>("Fra_psi_sls", frame);
    auto* grid = frame_layout<QGridLayout>(psi);
    grid->addWidget(named<QLabel>("Lbl_psi0", psi), 0, 1, Qt::AlignCenter);
    grid->addWidget(named<QLabel>("Lbl_psi2", psi), 0, 2, Qt::AlignCenter);
    grid->addWidget(named<QLabel>("Lbl_psi_Q1", psi), 1, 0);
    grid->addWidget(named<QLabel>("Lbl_psi_Q2", psi), 2, 0);
    for (std::size_t k = 0; k < m_psi.size(); ++k) {
        m_psi[k] = named<QComboBox>(kPsiNames[k], psi);
        // psi0 in the first column, psi2 in the second; Q1 above Q2.
        grid->addWidget(m_psi[k], 1 + static_cast<int>(k % 2), 1 + static_cast<int>(k / 2));
        const PsiList list = kPsiLists[k];
        connect(m_psi[k], &QComboBox::activated, this,
                [this, list](int index) { choose_psi_list(list, index); });
    }
    auto* help = named<QPushButton>("Cmd_psi0", psi);
    help->setAutoDefault(false);
    help->setMaximumWidth(28);
    grid->addWidget(help, 1, 3);
    connect(help, &QPushButton::clicked, this, [this] {
        if (!may_act()) {
            return;
        }
        if (const std::optional<HelpForm> form = psi_help(m_ws.model().annex)) {
            m_ws.show_help(*form);
        }
    });
    layout->addWidget(psi);

    m_sweden = named<QGroupBox>("Fra_sik_class", frame);
    auto* sweden = frame_layout<QGridLayout>(m_sweden);
    for (std::size_t k = 0; k < m_sweden_options.size(); ++k) {
        const int safety_class = static_cast<int>(k) + 1;
        m_sweden_options[k] = named<QRadioButton>(QStringLiteral("Opt_class%1").arg(safety_class), m_sweden);
        sweden->addWidget(m_sweden_options[k], 0, static_cast<int>(k));
        connect(m_sweden_options[k], &QRadioButton::clicked, this,
                [this, safety_class] { choose_class(safety_class); });
    }
    sweden->addWidget(named<QLabel>("Lbl_kfi_sfd_1", m_sweden), 1, 0);
    m_kfi_sweden = named<QLabel>("Lbl_kfi_sfd_2", m_sweden);
    sweden->addWidget(m_kfi_sweden, 1, 1);
    layout->addWidget(m_sweden);

    m_norway = named<QGroupBox>("Fra_class_nor", frame);
    auto* norway = frame_layout<QGridLayout>(m_norway);
    m_norway_1 = named<QRadioButton>("Opt_class_nor_1", m_norway);
    m_norway_2_4 = named<QRadioButton>("Opt_class_nor_2_4", m_norway);
    norway->addWidget(m_norway_1, 0, 0);
    norway->addWidget(m_norway_2_4, 0, 1);
    norway->addWidget(named<QLabel>("Lbl_kfi_1", m_norway), 1, 0);
    m_kfi_norway = named<QLabel>("Lbl_kfi_2", m_norway);
    norway->addWidget(m_kfi_norway, 1, 1);
    layout->addWidget(m_norway);
    connect(m_norway_1, &QRadioButton::clicked, this, [this] { choose_class(1); });
    connect(m_norway_2_4, &QRadioButton::clicked, this, [this] { choose_class(2); });
    layout->addStretch();
    return frame;
}

QWidget* SetupDialog::build_factors(const char* frame_name, int first)
{
    auto* frame = named<QGroupBox>(frame_name, this);
    auto* grid = frame_layout<QGridLayout>(frame);
    const auto& labels = first == 0 ? kFactorLabels : kKcrLabels;
    for (int k = 0; k < 4; ++k) {
        const auto factor = kSetupFactors[static_cast<std::size_t>(first + k)];
        auto* box = new InputBox(qs(setup_factor_box(factor)), frame);
        box->setFixedWidth(60);
        box->setAlignment(Qt::AlignRight);
        box->set_rule([this, box, factor] { return factor_rule(*box, factor); });
        m_factors[static_cast<std::size_t>(first + k)] = box;
        grid->addWidget(named<QLabel>(labels[static_cast<std::size_t>(k)], frame), k, 0);
        grid->addWidget(box, k, 1);
    }
    if (first != 0) {
        m_exposed = named<QCheckBox>("chk_kcr", frame);
        grid->addWidget(m_exposed, 4, 0, 1, 2);
        connect(m_exposed, &QCheckBox::clicked, this, &SetupDialog::choose_exposed);
    }
    grid->setRowStretch(5, 1);
    return frame;
}

void SetupDialog::open_setup()
{
    apply_captions(*this, setup_dialog_captions(m_ws.model().language));
    fill_boxes();
    show_choices();
    m_pending = false;
    m_opened_row = m_ws.model().setup.setup_row;
    if (!isVisible()) {
        open();
    }
    m_country->setFocus(Qt::OtherFocusReason);
}

void SetupDialog::fill_boxes()
{
    const FillScope filling(m_filling);
    const Model& m = m_ws.model();
    for (std::size_t k = 0; k < m_factors.size(); ++k) {
        m_factors[k]->setText(qs(setup_factor_text(m, kSetupFactors[k])));
        m_factors[k]->setModified(false);
        m_factors[k]->set_failed(false);
        m_taken[k] = setup_factor_value(m, kSetupFactors[k]);
    }
}

void SetupDialog::show_choices()
{
    const FillScope filling(m_filling);
    const Model& m = m_ws.model();
    set_list(m_country, country_items(m.setup), m.setup.setup_row);
    for (std::size_t k = 0; k < m_psi.size(); ++k) {
        set_list(m_psi[k], psi_items(kPsiLists[k]), psi_position(m, kPsiLists[k]));
    }
    const SetupView view = setup_view(m);
    m_sweden->setVisible(view.frame == ClassFrame::Sweden);
    m_norway->setVisible(view.frame == ClassFrame::Norway);
    m_exposed->setVisible(view.kcr_check);
    set_checked(m_exposed, is_true(m.kcr_exposed));
    if (view.sweden_option != 0) {
        set_checked(m_sweden_options[static_cast<std::size_t>(view.sweden_option - 1)], true);
    }
    set_checked(view.norway_class_1 ? m_norway_1 : m_norway_2_4, true);
    m_kfi_sweden->setText(qs(view.kfi));
    m_kfi_norway->setText(qs(view.kfi));
}

bool SetupDialog::may_act()
{
    if (m_filling || m_ws.filling()) {
        return false;
    }
    if (!boxes_settled(*this)) {
        show_choices(); // the control clicked shows the beam's choice again
        return false;
    }
    return true;
}

void SetupDialog::recalculate()
{
    m_pending = false;
    m_ws.recalculate();
}

void SetupDialog::choose_country(int row)
{
    if (!may_act()) {
        return;
    }
    change_country(m_ws.model(), row);
    fill_boxes();
    show_choices();
    m_pending = true; // the new annex counts from OK on
}

void SetupDialog::choose_language_of(const char* language)
{
    if (!may_act()) {
        return;
    }
    choose_language(m_ws.model(), language);
    // The window first, its lists keeping their choices, then this dialog.
    m_ws.refresh();
    apply_captions(*this, setup_dialog_captions(m_ws.model().language));
}

void SetupDialog::choose_psi_list(PsiList list, int index)
{
    if (!may_act()) {
        return;
    }
    choose_psi(m_ws.model(), list, index);
    if (list == PsiList::Psi0_Q1) {
        m_pending = true; // psi0 of Q1 waits for the next run
        return;
    }
    recalculate();
}

void SetupDialog::choose_class(int safety_class)
{
    if (!may_act()) {
        return;
    }
    choose_safety_class(m_ws.model(), safety_class);
    show_choices();
    recalculate();
}

void SetupDialog::choose_exposed(bool exposed)
{
    if (!may_act()) {
        return;
    }
    set_kcr_exposed(m_ws.model(), exposed);
    recalculate();
}

bool SetupDialog::factor_rule(InputBox& box, SetupFactor factor)
{
    // Closing the dialog is no leaving of its box.
    if (!isVisible()) {
        return true;
    }
    const auto k = static_cast<std::size_t>(factor);
    const bool passed = m_ws.run_box_rule(box, [this, &box, factor, k] {
        const BoxCommit c = commit_setup_factor(m_ws.model(), factor, box.text().toStdString());
        if (!c.failure) {
            m_taken[k] = setup_factor_value(m_ws.model(), factor);
            m_pending = false; // the pass recalculates
        }
        return Workspace::BoxResult{qs(c.text), c.failure, nullptr};
    });
    return passed;
}

bool SetupDialog::factors_pass()
{
    if (!may_act()) {
        return false;
    }
    if (const std::optional<SetupFactorFailure> failure = setup_factor_failure(m_ws.model())) {
        m_ws.fail_box(*m_factors[static_cast<std::size_t>(failure->factor)], failure->message);
        return false;
    }
    return true;
}

void SetupDialog::save()
{
    if (!factors_pass()) {
        return;
    }
    if (const std::optional<Message> failure = save_setup(m_ws.model(), m_folder)) {
        m_ws.show_message(*failure);
    }
}

void SetupDialog::ok()
{
    if (!factors_pass()) {
        return;
    }
    StoreSetupRow(m_ws.model());
    accept();
    recalculate();
}

void SetupDialog::reject()
{
    for (std::size_t k = 0; k < m_factors.size(); ++k) {
        if (m_factors[k]->failed()) {
            set_setup_factor(m_ws.model(), kSetupFactors[k], m_taken[k]);
        }
    }
    if (give_up_country(m_ws.model(), m_opened_row)) {
        m_pending = true;
    }
    QDialog::reject();
    if (m_pending) {
        recalculate();
    }
}

} // namespace kvelder
