// Draws a tree of views onto a canvas.
#pragma once

#include "bindings/uikit/view.hpp"

#include "desktop/drawing/canvas.hpp"

namespace desktop {

/// Draws the view and all that is in it, back to front, in its superview's coordinates. Hidden and
/// fully transparent views draw nothing.
void composite(ui::View view, Canvas& canvas);

} // namespace desktop
