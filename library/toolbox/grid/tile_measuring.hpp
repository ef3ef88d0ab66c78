// Measuring the tiles of a whole text.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/string.hpp"

namespace wentra::toolbox {

/// The size of a token's tile in a grid of that width; nil is an empty token. The grid is laid out
/// as a whole, so what one layout has found out is kept until the main queue's next turn: the
/// user's font size, and the sizes of tokens, which repeat. Main thread.
[[nodiscard]] CGSize measuredTile(ns::String token, double gridWidth);

} // namespace wentra::toolbox
