// The screen's traits, from which those of all windows come.
#pragma once

#include "desktop/uikit/traits/traits.hpp"

namespace desktop {

/// As the screen is now: its size as the phone is held, and the phone's appearance.
[[nodiscard]] Traits screenTraits();

/// Makes the phone light or dark, and tells its windows. Main thread.
void setScreenStyle(ui::InterfaceStyle style);

/// Makes texts larger or smaller, where an application lets them be, and tells it. Main thread.
void setScreenContentSize(ContentSize size);

/// Tells the windows on the screen what its traits are now. Main thread.
void spreadScreenTraits();

} // namespace desktop
