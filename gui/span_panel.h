#pragma once

#include <QGroupBox>

#include <array>

class QRadioButton;

namespace kvelder {

class InputBox;
class PictureBox;
class Workspace;

// The spans and end supports (frmGeometry): the number of spans, a length box
// for each, the two end supports and the span sketch.
class SpanPanel : public QGroupBox {
    Q_OBJECT
public:
    SpanPanel(Workspace& ws, QWidget* parent);
    // The boxes from the beam, as after opening a project.
    void fill();
    // The options and the boxes on show, after every run.
    void refresh();

private:
    QString text_of(int span) const;
    void choose_span_count(int nf);
    void choose_support(bool left, int index);

    Workspace& m_ws;
    std::array<QRadioButton*, 5> m_count{};
    std::array<InputBox*, 5> m_length{};
    std::array<QRadioButton*, 3> m_left{};
    std::array<QRadioButton*, 3> m_right{};
};

} // namespace kvelder
