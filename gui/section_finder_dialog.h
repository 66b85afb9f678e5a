#pragma once

#include "model/section_candidates.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

namespace kvelder {

class Workspace;

// The lightest sections of the beam's family that carry it. The search runs
// on opening; the beam changes only when the engineer chooses a section.
class SectionFinderDialog : public QDialog {
    Q_OBJECT
public:
    SectionFinderDialog(Workspace& ws, QWidget* parent);
    // Searches the beam as it stands and opens, modal, on what it found.
    void open_search();

private:
    void choose();

    Workspace& m_ws;
    SectionSearch m_found;
    QLabel* m_summary = nullptr;
    QListWidget* m_list = nullptr;
    QPushButton* m_choose = nullptr;
};

} // namespace kvelder
