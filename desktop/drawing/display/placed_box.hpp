// A box somewhere on the screen, and where the pixels of its content lie.
#pragma once

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/display/pixel_rectangle.hpp"

namespace desktop {

/// A rectangle with round corners somewhere on the screen.
struct PlacedBox {
    /// From the box's own coordinates, in which its corner radius counts, to pixels.
    AffineTransform place;
    Rectangle box;
    double cornerRadius = 0;
    bool operator==(const PlacedBox&) const = default;

    /// Whether its sides lie along those of the screen.
    [[nodiscard]] bool isUpright() const { return place.b == 0 && place.c == 0; }
    /// The smallest upright rectangle around it, in pixels.
    [[nodiscard]] Rectangle bounds() const;
    /// How many pixels a point of its own coordinates has.
    [[nodiscard]] double pixelsPerPoint() const;
    /// The same box in pixels, with sides that lie between pixels, at least one of them apart:
    /// upright layers have no soft edges on the phone. Of a turned box, the box itself.
    [[nodiscard]] PlacedBox onPixels() const;
};

/// A content is drawn into a picture of its own, which then moves by whole pixels. So it need not
/// be drawn again when it moves; and text, whose box may lie between pixels, stays sharp. A content
/// that is turned keeps its place to the fraction of a pixel.
struct ContentPlace {
    explicit ContentPlace(const PlacedBox& shape);

    /// From the content's coordinates to the pixels of its picture.
    AffineTransform inPicture;
    /// From there to the screen.
    int right = 0;
    int down = 0;
    /// The content's bounds in its picture.
    Rectangle bounds;

    /// The pixels of the screen that it touches, within `limits`.
    [[nodiscard]] PixelRectangle pixels(const PixelRectangle& limits) const;
};

} // namespace desktop
