#include "app/window/screenshot_prompter.h"

#include <iostream>

namespace kvelder {

void ScreenshotPrompter::message(QWidget*, const QString& title, const QString& text, bool)
{
    std::cerr << title.toStdString() << ": " << text.toStdString() << '\n';
}

} // namespace kvelder
