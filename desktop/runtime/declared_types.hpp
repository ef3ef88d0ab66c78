// What the methods of the platform's classes declare, for those outside of the platform's image.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace desktop {

/// `objc::declaredTypes` of the platform's classes: each image has a table of its own. Main thread.
[[nodiscard]] const char* declaredTypes(Class cls, SEL selector);

} // namespace desktop
