// Long-press copy: every label that comes into a view is a candidate.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::labels {

/// `setupLongPressCopy`, which gives a view the long press where it may have one, and the gesture's
/// action `longPress:`, on UIView.
[[gnu::cold]] std::span<const objc::Change> longPressCopyCategory();

/// Swizzles `didMoveToSuperview` of UILabel with `swizzled_didMoveToSuperview`.
[[gnu::cold]] std::span<const objc::Change> longPressCopyLoad();

} // namespace wentra::labels
