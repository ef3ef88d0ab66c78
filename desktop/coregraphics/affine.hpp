// Arithmetic of affine transforms and rectangles, as Core Graphics defines it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <optional>

namespace desktop {

[[nodiscard]] CGPoint apply(const CGAffineTransform& transform, CGPoint point);
/// The smallest upright rectangle around the transformed corners.
[[nodiscard]] CGRect apply(const CGAffineTransform& transform, CGRect rect);
/// First `first`, then `second`.
[[nodiscard]] CGAffineTransform concatenated(const CGAffineTransform& first,
                                             const CGAffineTransform& second);
/// Nothing for a transform that cannot be undone.
[[nodiscard]] std::optional<CGAffineTransform> inverted(const CGAffineTransform& transform);

/// The same rectangle with sides that are not negative.
[[nodiscard]] CGRect standardised(CGRect rect);
[[nodiscard]] bool contains(CGRect rect, CGPoint point);
[[nodiscard]] bool intersects(CGRect one, CGRect other);
[[nodiscard]] bool hasNaN(CGRect rect);
[[nodiscard]] CGPoint centre(CGRect rect);

} // namespace desktop
