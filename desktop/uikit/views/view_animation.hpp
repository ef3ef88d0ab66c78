// UIView's class methods for animations.
#pragma once

#include "bindings/objc/method.hpp"

#include <vector>

namespace desktop {

[[nodiscard]] std::vector<objc::MethodRow> viewAnimationMethods();

} // namespace desktop
