// How big the tile of a token is.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

namespace wentra::toolbox {

/// The widest that a token's text may be in a grid of that width, in points.
[[nodiscard]] double widestText(double gridWidth);

/// The tile around a text of that size in a grid of that width. A text without size, or whose size
/// is not a number, counts as empty.
[[nodiscard]] CGSize tileSize(CGSize text, double gridWidth);

} // namespace wentra::toolbox
