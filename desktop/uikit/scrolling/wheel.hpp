// The mouse wheel, which phones do not have and people at a desk do.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

namespace desktop {

/// Scrolls the innermost scroll view under the point of the screen that can still move that way, by
/// that many points: positive is towards the content's end. Whether one moved. Main thread.
bool turnWheel(CGPoint screenPoint, CGPoint points);

} // namespace desktop
