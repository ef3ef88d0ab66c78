// Picking all tiles, or none.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `selectAllButtonClicked:`, the action of the button that does one and the other in turn.
std::span<const objc::Change> selectAllCategory();

} // namespace wentra::toolbox
