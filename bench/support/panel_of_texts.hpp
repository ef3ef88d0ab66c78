// A screen full of labels, as a panel of the library is.
#pragma once

#include "bindings/uikit/window.hpp"

namespace bench {

/// Adds a white panel of 390 by 610 points, 60 points below the window's top, with 96 labels. The
/// window keeps it.
ui::View addPanelOfTexts(ui::Window window);

} // namespace bench
