#include "gui/section_finder_dialog.h"

#include "gui/captioning.h"
#include "gui/named.h"
#include "gui/workspace.h"
#include "recalc/section_search.h"
#include "ui/section_finder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvelder {

SectionFinderDialog::SectionFinderDialog(Workspace& ws, QWidget* parent) : QDialog(parent), m_ws(ws)
{
    setObjectName(kSectionFinderForm);
    auto* column = new QVBoxLayout(this);
    m_summary = named<QLabel>("Lbl_kandidater", this);
    m_summary->setWordWrap(true);
    column->addWidget(m_summary);
    m_list = named<QListWidget>("Lst_kandidater", this);
    m_list->setMinimumSize(360, 90);
    column->addWidget(m_list, 1);
    auto* foot = new QHBoxLayout;
    m_choose = named<QPushButton>("Cmd_velg", this);
    auto* close = named<QPushButton>("Cmd_ok", this);
    m_choose->setDefault(true);
    foot->addStretch();
    foot->addWidget(m_choose);
    foot->addWidget(close);
    column->addLayout(foot);
    connect(m_choose, &QPushButton::clicked, this, &SectionFinderDialog::choose);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &SectionFinderDialog::choose);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

void SectionFinderDialog::open_search()
{
    const std::string& language = m_ws.model().language;
    apply_captions(*this, section_finder_captions(language));
    m_found = find_lightest_section(m_ws.model(), &m_ws.dialogs());
    m_summary->setText(qs(search_summary(m_ws.model(), m_found)));
    m_list->clear();
    for (const SectionCandidate& c : m_found.candidates) {
        m_list->addItem(qs(candidate_line(m_ws.model(), c)));
    }
    m_list->setCurrentRow(m_found.candidates.empty() ? -1 : 0);
    m_choose->setEnabled(!m_found.candidates.empty());
    if (!isVisible()) {
        open();
    }
}

void SectionFinderDialog::choose()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= static_cast<int>(m_found.candidates.size())) {
        return;
    }
    choose_candidate(m_ws.model(), m_found.candidates[static_cast<std::size_t>(row)]);
    accept();
    m_ws.fill_boxes();
    m_ws.recalculate();
}

} // namespace kvelder
