// Sizes as the preferences give them.
#pragma once

#include "library/preferences/preferences.hpp"

namespace wentra::toolbox {

/// The stored size, or the standard one where none is stored. A stored 0 counts as none, and so
/// does what is not finite.
[[nodiscard]] double storedSize(const preferences::Preferences& preferences,
                                const preferences::Number& key, double standard);

} // namespace wentra::toolbox
