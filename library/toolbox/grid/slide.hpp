// Picking a run of tiles by sliding a finger over them.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `longPressGestureRecognized:`, the action of the grid's long press, and
/// `selectWordsFromStartIndexPath:toEndIndexPath:`.
std::span<const objc::Change> slideCategory();

} // namespace wentra::toolbox
