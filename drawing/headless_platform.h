#pragma once

namespace kvelder {

// Qt's platform for drawing without a screen, unless a display or a chosen
// platform is there. Call before the application object is made.
void choose_headless_platform();

} // namespace kvelder
