#pragma once

#include <QLineEdit>

#include <functional>

namespace kvelder {

// A text box of the window. Its rule runs each time the engineer leaves it
// with a typed or a refused value, by Tab, Enter or a click elsewhere, and
// when a menu command commits it; never for a focus that a message box or a
// menu takes away. The whole text is selected when the box takes the focus.
class InputBox : public QLineEdit {
    Q_OBJECT
public:
    // The rule returns false when the box refused its value and keeps the focus.
    using Rule = std::function<bool()>;

    explicit InputBox(const QString& name, QWidget* parent = nullptr);
    void set_rule(Rule rule) { m_rule = std::move(rule); }
    // Runs the rule when the box holds a typed or a refused value; true when
    // the value was taken (or there was nothing to take).
    bool commit();
    // Green for a refused value, white for one that passed.
    void set_failed(bool failed);
    bool failed() const { return m_failed; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Rule m_rule;
    bool m_failed = false;
};

// True while the box with the focus holds a value its rule refused. A click on
// a button has taken the focus from it and run the rule already, which said
// why; the button's command then does not run, and says nothing more.
bool focus_on_refused_box();

} // namespace kvelder
