// The global font: once used it stays in force for every label until the process ends.
#pragma once

#include "bindings/uikit/font.hpp"

namespace wentra::labels {

/// The font that was remembered last, or nil. Any thread.
ui::Font globalFont();

/// Remembers `font`, nil included. Any thread: labels are set from background threads too, although
/// they should not be.
void rememberGlobalFont(ui::Font font);

} // namespace wentra::labels
