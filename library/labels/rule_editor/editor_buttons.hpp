// The rule editor's buttons and their places around the text view.
#pragma once

#include "bindings/uikit/text_view.hpp"

namespace wentra::labels {

/// Adds the buttons to the window that the text view is in. Taps go to `host`.
void addEditorButtons(ui::View host, ui::TextView editor);

} // namespace wentra::labels
