// Sizes as the preferences give them.
#pragma once

#include "library/startup/preferences.hpp"

namespace wentra::toolbox {

/// The stored size, or the standard one where none is stored. A stored 0 counts as none, and so
/// does what is not finite.
[[nodiscard]] double storedSize(const startup::Preferences& preferences, const startup::Number& key,
                                double standard);

} // namespace wentra::toolbox
