#include "gui/load_dialog.h"

#include "drawing/load_sketches.h"
#include "drawing/plot_surface.h"
#include "gui/captioning.h"
#include "gui/input_box.h"
#include "gui/named.h"
#include "gui/picture_box.h"
#include "gui/workspace.h"
#include "ui/load_checks.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstddef>

namespace kvelder {
namespace {

std::size_t index_of(LoadTable table)
{
    return static_cast<std::size_t>(table);
}

// The heads over the value boxes of each frame, after the span head.
constexpr std::array<std::array<const char*, 4>, 4> kHeads{{
    {"q"},
    {"q1", "q2", "a", "b"},
    {"P", "c"},
    {"M", "d"},
}};
constexpr std::array<const char*, 4> kSpanHeads{"Lblf_j", "Lblf_t", "Lblf_p", "Lblf_m"};

// The definition sketch beside a frame, if it has one, by the frame's index.
constexpr std::array<const char*, 4> kSketchNames{nullptr, "Pictrapes", "Picpunkt", "Picmom"};

bool is_walk_key(const QKeyEvent& key)
{
    const bool tab = key.key() == Qt::Key_Tab && !(key.modifiers() & Qt::ShiftModifier);
    return tab || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

LoadDialog::LoadDialog(Workspace& ws, LoadGroupId id, QWidget* parent) : QDialog(parent), m_ws(ws), m_id(id)
{
    setObjectName(qs(load_dialog_name(id)));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->addWidget(build_frame(LoadTable::Uniform), 0, 0);
    grid->addWidget(build_frame(LoadTable::Trapezoid), 1, 0, 2, 1);
    grid->addWidget(build_frame(LoadTable::Point), 0, 1, 2, 1);
    grid->addWidget(build_frame(LoadTable::Moment), 2, 1);

    auto* buttons = new QHBoxLayout;
    auto* clear_button = named<QPushButton>(qs(load_clear_name(id)), this);
    m_ok = named<QPushButton>(qs(load_ok_name(id)), this);
    m_ok->setText(QStringLiteral("OK"));
    buttons->addStretch();
    buttons->addWidget(clear_button);
    buttons->addWidget(m_ok);
    grid->addLayout(buttons, 3, 0, 1, 2);

    // Enter on OK confirms; in a box Enter walks on and never reaches it.
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, &LoadDialog::ok);
    connect(clear_button, &QPushButton::clicked, this, &LoadDialog::clear);
}

QWidget* LoadDialog::build_frame(LoadTable table)
{
    const std::size_t f = index_of(table);
    auto* frame = named<QGroupBox>(qs(load_frame_name(table)), this);
    auto* grid = frame_layout<QGridLayout>(frame);
    grid->setHorizontalSpacing(3);
    grid->setVerticalSpacing(1);
    grid->addWidget(named<QLabel>(kSpanHeads[f], frame), 0, 0);
    for (int v = 0; v < value_count(table); ++v) {
        auto* head = new QLabel(QString::fromLatin1(kHeads[f][static_cast<std::size_t>(v)]), frame);
        head->setAlignment(Qt::AlignCenter);
        grid->addWidget(head, 0, v + 1);
    }
    for (int r = 0; r < capacity(table); ++r) {
        std::vector<InputBox*>& row = m_boxes[f].emplace_back();
        for (int b = 0; b <= value_count(table); ++b) {
            auto* box = new InputBox(qs(load_box_name(m_id, table, b, r)), frame);
            box->setFixedWidth(b == 0 ? 36 : 56);
            box->setAlignment(Qt::AlignRight);
            box->installEventFilter(this);
            const BoxPlace place{table, r, b};
            box->set_rule([this, box, place] {
                // Closing the dialog is no leaving of its box.
                if (!isVisible()) {
                    return true;
                }
                return m_ws.run_box_rule(
                    *box,
                    [this, box, place] {
                        const BoxCommit c =
                            commit_load_box(m_ws.model(), m_id, place, box->text().toStdString());
                        return Workspace::BoxResult{qs(c.text), c.failure, nullptr};
                    },
                    false);
            });
            grid->addWidget(box, r + 1, b);
            row.push_back(box);
        }
    }
    if (const char* sketch = kSketchNames[f]) {
        auto* picture = new PictureBox(QString::fromLatin1(sketch), frame);
        picture->setFixedSize(150, 90);
        grid->addWidget(picture, 1, value_count(table) + 1, capacity(table), 1, Qt::AlignTop);
        m_sketches[f - 1] = picture;
        connect(picture, &PictureBox::resized, this, &LoadDialog::draw_sketches);
    }
    // The boxes keep to the left of a wide frame.
    grid->setColumnStretch(value_count(table) + 2, 1);
    grid->setRowStretch(capacity(table) + 1, 1);
    return frame;
}

void LoadDialog::open_rows(const std::optional<LoadRowFailure>& failure)
{
    apply_captions(*this, load_dialog_captions(m_ws.model().language, m_id));
    fill(m_ws.dialogs()[static_cast<std::size_t>(m_id)]);
    if (!isVisible()) {
        open();
    }
    draw_sketches();
    if (failure) {
        mark_failure(*failure, false);
    } else {
        m_boxes[0][0][0]->setFocus(Qt::OtherFocusReason);
    }
}

InputBox* LoadDialog::box_at(const BoxPlace& place) const
{
    return m_boxes[index_of(place.table)][static_cast<std::size_t>(place.row)]
                  [static_cast<std::size_t>(place.box)];
}

void LoadDialog::fill(const LoadDialogTexts& texts)
{
    for (std::size_t f = 0; f < m_boxes.size(); ++f) {
        const std::vector<RowTexts>& rows = texts.frames[f];
        for (std::size_t r = 0; r < m_boxes[f].size(); ++r) {
            for (std::size_t b = 0; b < m_boxes[f][r].size(); ++b) {
                InputBox* box = m_boxes[f][r][b];
                box->setText(r < rows.size() ? qs(rows[r][b]) : QString());
                box->setModified(false);
                box->set_failed(false);
            }
        }
    }
}

LoadDialogTexts LoadDialog::texts() const
{
    LoadDialogTexts texts;
    for (std::size_t f = 0; f < m_boxes.size(); ++f) {
        for (const std::vector<InputBox*>& row : m_boxes[f]) {
            RowTexts& boxes = texts.frames[f].emplace_back();
            for (std::size_t b = 0; b < row.size(); ++b) {
                boxes[b] = row[b]->text().toStdString();
            }
        }
    }
    return texts;
}

void LoadDialog::draw_sketches()
{
    constexpr std::array<void (*)(PlotSurface&), 3> plots{&PlotTrapezoidSketch, &PlotPointSketch,
                                                          &PlotMomentSketch};
    for (std::size_t k = 0; k < m_sketches.size(); ++k) {
        m_sketches[k]->draw(plots[k]);
    }
}

void LoadDialog::mark_failure(const LoadRowFailure& failure, bool with_message)
{
    const LoadDialogTexts shown = texts();
    InputBox* box = box_at({failure.table, dialog_row(shown, failure.table, failure.row), failure.box});
    if (with_message) {
        m_ws.fail_box(*box, failure_message(m_ws.model().language, failure));
    } else {
        m_ws.fail_box(*box, std::nullopt);
    }
}

bool LoadDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !is_walk_key(*static_cast<QKeyEvent*>(event))) {
        return QDialog::eventFilter(watched, event);
    }
    for (std::size_t f = 0; f < m_boxes.size(); ++f) {
        for (std::size_t r = 0; r < m_boxes[f].size(); ++r) {
            for (std::size_t b = 0; b < m_boxes[f][r].size(); ++b) {
                InputBox* box = m_boxes[f][r][b];
                if (box != watched) {
                    continue;
                }
                const BoxPlace here{kLoadTables[f], static_cast<int>(r), static_cast<int>(b)};
                const std::optional<BoxPlace> next = next_box(here, box->text().isEmpty());
                QWidget* target = next ? static_cast<QWidget*>(box_at(*next)) : m_ok;
                // The box's rule runs as the focus leaves it.
                target->setFocus(Qt::TabFocusReason);
                return true;
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void LoadDialog::ok()
{
    // A box that has just refused its value keeps the focus and the dialog.
    if (auto* box = qobject_cast<InputBox*>(focusWidget()); box != nullptr && box->failed()) {
        return;
    }
    LoadDialogTexts boxes = texts();
    const std::optional<LoadRowFailure> failure =
        confirm_load_dialog(m_ws.model(), m_ws.dialogs(), m_id, boxes);
    fill(boxes);
    if (failure) {
        mark_failure(*failure, true);
        return;
    }
    accept();
    m_ws.recalculate();
}

void LoadDialog::clear()
{
    LoadDialogTexts boxes = texts();
    ClearRows(boxes);
    fill(boxes);
    m_boxes[0][0][0]->setFocus(Qt::OtherFocusReason);
}

} // namespace kvelder
