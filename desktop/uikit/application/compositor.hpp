// From trees of views to what is to be seen of them.
#pragma once

#include "bindings/uikit/view.hpp"

#include "desktop/drawing/display/display_list.hpp"

#include <unordered_map>

namespace desktop {

/// The screen's size in points.
[[nodiscard]] Size screenSize();

/// Everything on the screen, and the views whose drawings are contents in the list, by stamp.
struct Composition {
    DisplayList list;
    /// Drawing one view may remove another: none dies before all are drawn.
    std::unordered_map<std::uint64_t, objc::Strong<ui::View>> views;

    /// Draws the content of that stamp.
    void draw(std::uint64_t stamp, Canvas& canvas) const;
};

/// The visible windows as they are shown now, with the system's marks over them, on a screen of so
/// many pixels at `scale` pixels a point. Hidden and fully transparent views, and those whose
/// transform flattens them, show nothing.
[[nodiscard]] Composition composition(PixelRectangle screen, double scale);

/// The view and what lies in it, as far as it lies in its bounds, which fill a picture of that size
/// in pixels.
[[nodiscard]] Composition composition(ui::View view, PixelRectangle picture);

} // namespace desktop
