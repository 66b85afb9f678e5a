#include "gui/span_panel.h"

#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/picture_box.h"
#include "gui/workspace.h"
#include "ui/box_texts.h"
#include "ui/edits.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace kvelder {
namespace {

constexpr std::array<char, 3> kKinds{kFree, kSimple, kBuiltIn};

int kind_index(char kind)
{
    return kind == kFree ? 0 : kind == kBuiltIn ? 2 : 1;
}

} // namespace

SpanPanel::SpanPanel(Workspace& ws, QWidget* parent) : QGroupBox(parent), m_ws(ws)
{
    setObjectName("frmGeometry");
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setVerticalSpacing(2);

    auto* count_box = named<QGroupBox>("frmSpan", this);
    auto* count_row = new QHBoxLayout(count_box);
    count_row->setContentsMargins(4, 2, 4, 2);
    auto* count_group = new QButtonGroup(this);
    for (std::size_t i = 0; i < m_count.size(); ++i) {
        m_count[i] = named<QRadioButton>(indexed("Optfelt", i), count_box);
        count_group->addButton(m_count[i]);
        count_row->addWidget(m_count[i]);
        connect(m_count[i], &QRadioButton::clicked, this,
                [this, i] { choose_span_count(static_cast<int>(i) + 1); });
    }
    layout->addWidget(count_box, 0, 0, 1, 5);

    for (std::size_t i = 0; i < m_length.size(); ++i) {
        m_length[i] = new InputBox(indexed("Txtfelt", i), this);
        m_length[i]->setMinimumWidth(40);
        layout->addWidget(m_length[i], 1, static_cast<int>(i));
        const int span = static_cast<int>(i) + 1;
        InputBox* box = m_length[i];
        box->set_rule([this, box, span] {
            return m_ws.run_box_rule(*box, [this, span] {
                const SpanCommit c =
                    commit_span(m_ws.model(), span, text_of(span).toStdString(), m_ws.dialogs());
                Workspace::BoxResult r{QString::fromStdString(c.text), std::nullopt, nullptr};
                if (c.failure) {
                    r.failure = c.failure->message;
                    r.focus = m_length[static_cast<std::size_t>(c.failure->span - 1)];
                }
                for (int k = 1; k <= 5; ++k) {
                    m_length[static_cast<std::size_t>(k - 1)]->set_failed(c.failure && k == c.failure->span);
                }
                return r;
            });
        });
    }

    const auto support_box = [this](const char* frame, const char* option,
                                    std::array<QRadioButton*, 3>& buttons, bool left) {
        auto* box = named<QGroupBox>(frame, this);
        auto* row = new QHBoxLayout(box);
        row->setContentsMargins(4, 2, 4, 2);
        auto* group = new QButtonGroup(box);
        for (std::size_t k = 0; k < buttons.size(); ++k) {
            buttons[k] = named<QRadioButton>(indexed(option, k), box);
            group->addButton(buttons[k]);
            row->addWidget(buttons[k]);
            connect(buttons[k], &QRadioButton::clicked, this,
                    [this, left, k] { choose_support(left, static_cast<int>(k)); });
        }
        return box;
    };
    layout->addWidget(support_box("frmSuppLeft", "optSuppLeft", m_left, true), 2, 0, 1, 4);
    auto* help = named<QPushButton>("Cmd_opplegg", this);
    connect(help, &QPushButton::clicked, this, [this] { m_ws.show_help(HelpForm::Supports); });
    layout->addWidget(help, 2, 4, 2, 1);
    layout->addWidget(support_box("frmSuppRight", "optSuppRight", m_right, false), 3, 0, 1, 4);

    auto* sketch = new PictureBox("Picfelt", this);
    sketch->setMinimumHeight(70);
    sketch->setMaximumHeight(130);
    layout->addWidget(sketch, 4, 0, 1, 5);
    layout->setRowStretch(4, 1);
}

QString SpanPanel::text_of(int span) const
{
    return m_length[static_cast<std::size_t>(span - 1)]->text();
}

void SpanPanel::refresh()
{
    const Model& m = m_ws.model();
    for (std::size_t i = 0; i < m_count.size(); ++i) {
        const QSignalBlocker block(m_count[i]);
        m_count[i]->setChecked(static_cast<int>(i) + 1 == m.nf);
        const bool shown = static_cast<int>(i) < m.nf;
        m_length[i]->setVisible(shown);
        if (!shown) {
            m_length[i]->clear();
            m_length[i]->set_failed(false);
        }
    }
    const QSignalBlocker left(m_left[static_cast<std::size_t>(kind_index(m.nsupLeft_s))]);
    m_left[static_cast<std::size_t>(kind_index(m.nsupLeft_s))]->setChecked(true);
    const QSignalBlocker right(m_right[static_cast<std::size_t>(kind_index(m.nsupRight_s))]);
    m_right[static_cast<std::size_t>(kind_index(m.nsupRight_s))]->setChecked(true);
}

void SpanPanel::fill()
{
    const Model& m = m_ws.model();
    for (int span = 1; span <= m.nf; ++span) {
        InputBox* box = m_length[static_cast<std::size_t>(span - 1)];
        box->setText(QString::fromStdString(span_text(m, span)));
        box->set_failed(false);
    }
}

void SpanPanel::choose_span_count(int nf)
{
    // A click on the count in force changes nothing.
    if (m_ws.filling() || nf == m_ws.model().nf) {
        return;
    }
    const std::optional<SpanFailure> failure = kvelder::choose_span_count(m_ws.model(), nf, m_ws.dialogs());
    m_ws.blank(Picture::Picresult);
    m_ws.blank(Picture::Picdisp);
    fill();
    if (failure) {
        // A new span has no length yet: its box asks for one before anything runs.
        m_ws.refresh();
        m_ws.fail_box(*m_length[static_cast<std::size_t>(failure->span - 1)], failure->message);
        return;
    }
    m_ws.recalculate();
}

void SpanPanel::choose_support(bool left, int index)
{
    if (m_ws.filling()) {
        return;
    }
    const BeamEnd end = left ? BeamEnd::Left : BeamEnd::Right;
    const std::optional<Message> message =
        kvelder::choose_support(m_ws.model(), end, kKinds[static_cast<std::size_t>(index)], m_ws.dialogs());
    if (message) {
        m_ws.blank(Picture::Picresult);
        m_ws.blank(Picture::Picdisp);
        m_ws.refresh();
        m_ws.show_message(*message);
        return;
    }
    m_ws.recalculate();
}

} // namespace kvelder
