#pragma once

class QWidget;

namespace kvelder {

class Workspace;

// Opens, modal over `parent`, the beam calculated under each national annex of
// the setup, side by side; the beam itself does not change. The dialog deletes
// itself when closed.
void open_annexes(Workspace& ws, QWidget* parent);

} // namespace kvelder
