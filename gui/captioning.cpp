#include "gui/captioning.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QWidget>

namespace kvelder {

void set_caption(QObject* control, const QString& text)
{
    if (auto* action = qobject_cast<QAction*>(control)) {
        action->setText(text);
    } else if (auto* menu = qobject_cast<QMenu*>(control)) {
        menu->setTitle(text);
    } else if (auto* frame = qobject_cast<QGroupBox*>(control)) {
        frame->setTitle(text);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        button->setText(text);
    } else if (auto* label = qobject_cast<QLabel*>(control)) {
        label->setText(text);
    }
}

void apply_captions(QWidget& root, const std::vector<Caption>& captions)
{
    for (const Caption& c : captions) {
        if (qs(c.control) == root.objectName()) {
            root.setWindowTitle(qs(c.text));
        } else if (QObject* control = root.findChild<QObject*>(qs(c.control))) {
            set_caption(control, qs(c.text));
        }
    }
}

} // namespace kvelder
