#pragma once

namespace kvelder {

// Qt's platform for drawing without a screen, unless a display or a chosen
// platform is there. Call before the application object is made.
void choose_headless_platform();

// Keeps back the offscreen platform's notes of every window feature it lacks;
// every other message of Qt goes where it went before.
void without_platform_notes();

} // namespace kvelder
