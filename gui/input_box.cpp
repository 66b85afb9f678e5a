#include "gui/input_box.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

namespace kvelder {

InputBox::InputBox(const QString& name, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(name);
    set_failed(false);
}

bool InputBox::commit()
{
    // A box left as the program filled it has nothing new for the beam.
    if (!m_rule || !(isModified() || m_failed)) {
        return true;
    }
    return m_rule();
}

void InputBox::set_failed(bool failed)
{
    m_failed = failed;
    QPalette p = palette();
    p.setColor(QPalette::Base, failed ? QColor(0, 255, 0) : QColor(Qt::white));
    setPalette(p);
}

void InputBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // A mouse click places the cursor after the focus arrives: select afterwards.
    QTimer::singleShot(0, this, [this] {
        if (hasFocus()) {
            selectAll();
        }
    });
}

void InputBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // A message box or a menu taking the focus is no leaving of the box.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        commit();
    }
}

void InputBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // Enter moves on like Tab; the focus-out runs the rule.
        focusNextChild();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

bool focus_on_refused_box()
{
    auto* box = qobject_cast<InputBox*>(QApplication::focusWidget());
    return box != nullptr && box->failed();
}

} // namespace kvelder
