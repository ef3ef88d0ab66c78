// Where the text may be taken to: the lists that the controller keeps for its tools.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace wentra::toolbox {

/// The titles of the targets that the preferences switch on, in the menu's order. A switch is on
/// when its value is the number 1.
[[nodiscard]] ns::Array shownTargets(ns::Dictionary preferences);

/// The name of each target's method, by the target's title.
[[nodiscard]] ns::Dictionary targetMethods();

/// What to offer for a link, by its scheme.
[[nodiscard]] ns::Dictionary linkTitles();

} // namespace wentra::toolbox
