// How floating views zoom: by pinching between two bounds, and by double taps.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

namespace wentra {

/// Bounds of the scale that pinching gives a view.
inline constexpr double smallestPinch = 0.3;
inline constexpr double largestPinch = 1.7;

/// The scale that a double tap gives a view; more than pinching can.
inline constexpr double doubleTapScale = 1.9;

/// The same factor in both directions.
[[nodiscard]] CGAffineTransform scaled(CGAffineTransform transform, double factor);

/// A view's transform after its fingers moved `scale` times as far apart. As it was when it has no
/// scale that could be changed.
[[nodiscard]] CGAffineTransform pinched(const CGAffineTransform& transform, double scale);

/// A view's transform after a double tap: zoomed in when it was not zoomed at all, else the
/// identity.
[[nodiscard]] CGAffineTransform doubleTapped(const CGAffineTransform& transform);

/// Whether the two have an area in common; sides are not negative.
[[nodiscard]] bool overlap(const CGRect& one, const CGRect& other);

} // namespace wentra
