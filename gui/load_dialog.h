#pragma once

#include "model/load_dialogs.h"
#include "ui/load_dialog.h"

#include <QDialog>

#include <array>
#include <optional>
#include <vector>

class QPushButton;

namespace kvelder {

class InputBox;
class PictureBox;
class Workspace;

// The rows of one load group, G, Q1 or Q2, in four frames of text boxes. While
// it is open its boxes are the master of the group's loads; OK hands them to
// the beam, and closing it leaves the beam and the texts as they were.
// Enter and Tab walk the boxes row by row and frame by frame and end on OK.
class LoadDialog : public QDialog {
    Q_OBJECT
public:
    LoadDialog(Workspace& ws, LoadGroupId id, QWidget* parent);

    // Opens, modal, on the group's texts; a failing row of a recalculation
    // comes with its box green and in the focus.
    void open_rows(const std::optional<LoadRowFailure>& failure = std::nullopt);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* build_frame(LoadTable table);
    InputBox* box_at(const BoxPlace& place) const;
    void fill(const LoadDialogTexts& texts);
    LoadDialogTexts texts() const;
    void draw_sketches();
    void mark_failure(const LoadRowFailure& failure, bool with_message);
    void ok();
    void clear();

    Workspace& m_ws;
    LoadGroupId m_id;
    // Frame by frame, row by row, the span box first.
    std::array<std::vector<std::vector<InputBox*>>, 4> m_boxes;
    std::array<PictureBox*, 3> m_sketches{};
    QPushButton* m_ok = nullptr;
};

} // namespace kvelder
