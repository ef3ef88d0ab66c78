// NSValue's forms of the platform's geometry.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/objc/object.hpp"

namespace desktop {

/// An NSValue with the rectangle, borrowed from the pool.
[[nodiscard]] objc::Object valueWith(CGRect rect);

/// Gives NSValue the makers and getters of points, sizes and rectangles. Main thread, once.
void installGeometryValues();

} // namespace desktop
