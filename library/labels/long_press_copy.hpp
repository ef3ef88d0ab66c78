// Long-press copy: every label that comes into a view is a candidate.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::labels {

/// Swizzles `didMoveToSuperview` of UILabel with `swizzled_didMoveToSuperview`.
std::span<const objc::Change> longPressCopyLoad();

} // namespace wentra::labels
