// What is to be seen on a screen, as plain values: every box, content and border, back to front.
#pragma once

#include "desktop/drawing/colour.hpp"
#include "desktop/drawing/display/placed_box.hpp"

#include <cstdint>
#include <vector>

namespace desktop {

/// What a stretch of items has in common: a shape that they do not reach out of, or an opacity in
/// which they are shown as one. Groups nest.
struct DisplayGroup {
    enum class Kind { clip, opacity };
    static constexpr int none = -1;

    Kind kind = Kind::clip;
    int parent = none;
    /// Tells groups apart that look the same.
    std::uint64_t stamp = 0;
    PlacedBox shape = {};
    double opacity = 1;
    /// The pixels that items in it can touch.
    PixelRectangle extents = {};
};

/// One thing to be drawn. A line width counts in the coordinates of the shape.
struct DisplayItem {
    enum class Kind { fill, content, border };

    Kind kind = Kind::fill;
    int group = DisplayGroup::none;
    /// Whose it is, in which version; no two of one kind in a list have the same.
    std::uint64_t stamp = 0;
    PlacedBox shape = {};
    Colour colour = {};
    double lineWidth = 0;
    /// The pixels that it can touch.
    PixelRectangle extents = {};
};

struct DisplayList {
    PixelRectangle screen;
    std::vector<DisplayGroup> groups;
    /// Back to front; items of one group are neighbours.
    std::vector<DisplayItem> items;

    /// Opens a group inside of `parent`; the result is what its items name.
    int addGroup(DisplayGroup group);
    /// Adds an item in front of all others; one without a pixel on the screen is left out. Upright
    /// boxes, borders and clips get sides that lie between pixels.
    void add(DisplayItem item);
};

/// Where a screen that shows one list has to be drawn anew to show the other.
[[nodiscard]] PixelArea differences(const DisplayList& shown, const DisplayList& wanted);

} // namespace desktop
