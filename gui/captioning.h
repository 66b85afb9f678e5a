#pragma once

#include "ui/captions.h"

#include <QString>

#include <string>
#include <vector>

class QObject;
class QWidget;

namespace kvelder {

inline QString qs(const std::string& text)
{
    return QString::fromStdString(text);
}

// Sets the text of a control of any kind the captions name.
void set_caption(QObject* control, const QString& text);

// Puts each caption on the control of its name under `root`; a caption that
// names `root` itself becomes its window title.
void apply_captions(QWidget& root, const std::vector<Caption>& captions);

} // namespace kvelder
