#include "gui/detailed_result_dialog.h"

#include "drawing/detail_plot.h"
#include "gui/captioning.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/picture_box.h"
#include "gui/workspace.h"
#include "recalc/explain_governing.h"
#include "ui/detailed_result.h"
#include "ui/governing_text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kvelder {
namespace {

const char* main_box_name(Box kind)
{
    return kind == Box::Width ? "txt_b1" : kind == Box::Height ? "txt_h1" : "txt_d";
}

} // namespace

DetailedResultDialog::DetailedResultDialog(Workspace& ws, QWidget& main_sizes, QWidget* parent)
    : QDialog(parent), m_ws(ws), m_main_sizes(main_sizes)
{
    setObjectName(kDetailedResultForm);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 6, 6, 6);
    auto* column = new QVBoxLayout;
    row->addLayout(column);

    auto* profile = named<QGroupBox>("Fra_profil", this);
    auto* grid = frame_layout<QGridLayout>(profile);
    m_rect_picture = new PictureBox("Pic_firk", profile);
    m_tube_picture = new PictureBox("Pic_tube", profile);
    for (PictureBox* picture : {m_rect_picture, m_tube_picture}) {
        picture->setFixedSize(110, 90);
        grid->addWidget(picture, 0, 0, 1, 2, Qt::AlignHCenter);
        connect(picture, &PictureBox::resized, this, &DetailedResultDialog::draw_section);
    }
    m_profile = named<QLineEdit>("Txt_stand_dim", profile);
    m_profile->setReadOnly(true);
    grid->addWidget(m_profile, 1, 0, 1, 2);
    m_trials = {
        TrialBox{Box::Width, named<QLabel>("Lbl_b1", profile), new InputBox("txt_b1", profile)},
        TrialBox{Box::Height, named<QLabel>("Lbl_h1", profile), new InputBox("txt_h1", profile)},
        TrialBox{Box::Diameter, named<QLabel>("Lbl_tube", profile), new InputBox("Txt_d_tube", profile)}};
    int r = 2;
    for (const TrialBox& t : m_trials) {
        t.box->setFixedWidth(70);
        t.box->setAlignment(Qt::AlignRight);
        t.box->set_rule([this, box = t.box, kind = t.kind] { return trial_rule(*box, kind); });
        grid->addWidget(t.label, r, 0);
        grid->addWidget(t.box, r++, 1);
    }
    column->addWidget(profile);

    auto* spans = named<QGroupBox>("fraspanbuck", this);
    auto* options = frame_layout<QHBoxLayout>(spans);
    for (std::size_t k = 0; k < m_options.size(); ++k) {
        m_options[k] = named<QRadioButton>(indexed("Optspandet", k), spans);
        options->addWidget(m_options[k]);
        connect(m_options[k], &QRadioButton::clicked, this, [this, k] {
            m_span = static_cast<int>(k) + 1;
            draw();
        });
    }
    options->addStretch();
    column->addWidget(spans);
    column->addStretch();
    auto* ok = named<QPushButton>("Cmd_ok", this);
    ok->setDefault(false);
    ok->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, [this] {
        if (!focus_on_refused_box()) {
            accept();
        }
    });
    column->addWidget(ok);

    m_text = new PictureBox("Pic_detailed", this);
    m_text->setMinimumSize(720, 440);
    connect(m_text, &PictureBox::resized, this, &DetailedResultDialog::draw);
    row->addWidget(m_text, 1);
}

void DetailedResultDialog::open_first_span()
{
    apply_captions(*this, detailed_result_captions(m_ws.model().language));
    m_span = 1;
    m_taken = trial_sizes(m_ws.model());
    for (std::size_t k = 0; k < m_options.size(); ++k) {
        m_options[k]->setVisible(static_cast<int>(k) < m_ws.model().nf);
    }
    m_options[0]->setChecked(true);
    arrange();
    if (!isVisible()) {
        open();
    }
    explain();
    // The first trial box takes the focus; a profile has none.
    for (const TrialBox& t : m_trials) {
        if (t.box->isVisibleTo(this)) {
            t.box->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    findChild<QPushButton*>("Cmd_ok")->setFocus(Qt::OtherFocusReason);
}

void DetailedResultDialog::arrange()
{
    const DetailSection s = detail_section(m_ws.model());
    const bool profile = s.kind == TrialSection::Profile;
    const bool rect = s.kind == TrialSection::Rectangle;
    const bool circle = s.kind == TrialSection::Circle;
    m_rect_picture->setVisible(!circle);
    m_tube_picture->setVisible(circle);
    m_profile->setVisible(profile);
    m_profile->setText(qs(s.profile));
    for (const TrialBox& t : m_trials) {
        const bool shown = t.kind == Box::Diameter ? circle : rect;
        t.label->setVisible(shown);
        t.box->setVisible(shown);
        t.box->setText(qs(t.kind == Box::Width ? s.b : t.kind == Box::Height ? s.h : s.d));
        t.box->set_failed(false);
    }
    draw_section();
}

void DetailedResultDialog::explain()
{
    m_governing = explain_governing(m_ws.model());
    draw();
}

void DetailedResultDialog::draw()
{
    std::vector<TextLine> lines = Show_span_detail(m_ws.model(), m_span);
    append_governing_line(lines, m_ws.model(), m_governing, m_span);
    m_text->draw([&lines](PlotSurface& s) { PlotTextLines(s, lines); });
}

void DetailedResultDialog::draw_section()
{
    m_rect_picture->draw([](PlotSurface& s) { PlotSectionSketch(s, TrialSection::Rectangle); });
    m_tube_picture->draw([](PlotSurface& s) { PlotSectionSketch(s, TrialSection::Circle); });
}

bool DetailedResultDialog::trial_rule(InputBox& box, Box kind)
{
    // Closing the window is no leaving of its box.
    if (!isVisible()) {
        return true;
    }
    auto* main_box = m_main_sizes.findChild<InputBox*>(main_box_name(kind));
    const bool taken = m_ws.run_box_rule(box, [this, &box, kind, main_box] {
        const TrialCommit c = commit_trial_size(m_ws.model(), kind, box.text().toStdString());
        // The main window's box holds the same size, refused or not.
        if (main_box != nullptr) {
            main_box->setText(qs(c.main_text));
            main_box->set_failed(c.failure.has_value());
        }
        return Workspace::BoxResult{qs(c.text), c.failure, nullptr};
    });
    if (taken) {
        m_taken = trial_sizes(m_ws.model());
        explain();
    }
    return taken;
}

void DetailedResultDialog::reject()
{
    for (const TrialBox& t : m_trials) {
        if (t.box->failed()) {
            const std::string text = restore_trial_size(m_ws.model(), t.kind, m_taken);
            if (auto* main_box = m_main_sizes.findChild<InputBox*>(main_box_name(t.kind))) {
                main_box->setText(qs(text));
                main_box->set_failed(false);
            }
        }
    }
    QDialog::reject();
}

} // namespace kvelder
