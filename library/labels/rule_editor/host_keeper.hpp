// Who keeps the rule editor's host alive while the editor is open.
#pragma once

#include "bindings/uikit/text_view.hpp"

namespace wentra::labels {

/// Keeps the host alive for as long as the editor is in its window: the application may drop the
/// screen that the host is in, and the buttons, the gestures and the picker go on serving it. Lets
/// go when the text view leaves the window, by whatever way, and when the window dies. Main thread.
void keepHostWhileOpen(ui::View host, ui::TextView editor);

/// Declares the invisible view that does it.
[[gnu::cold]] void registerHostKeeper();

} // namespace wentra::labels
