// Picking tiles of the word grid and letting them go.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/grid/row_set.hpp"

#include <span>

namespace wentra::toolbox {

/// How a tile was picked; the two look different.
enum class PickedBy { tap, slide };

/// Colours the tile and remembers its token as picked. Does nothing for a path beyond the text.
void pick(FloatingViewController controller, ns::IndexPath path, PickedBy gesture);

/// Takes the tile out of the picked ones, and every token that equals its own out of the picked
/// text. A path beyond the text, left over from a longer one, is forgotten.
void unpick(FloatingViewController controller, ns::IndexPath path);

/// The rows of the picked tiles. Valid until tiles are picked or let go.
[[nodiscard]] const RowSet& pickedRows(FloatingViewController controller);

/// The token of a tile; nil beyond the text.
[[nodiscard]] ns::String tokenAt(FloatingViewController controller, ns::IndexPath path);

/// What the grid's delegate is told, and the same for slides.
std::span<const objc::Change> selectionCategory();

} // namespace wentra::toolbox
