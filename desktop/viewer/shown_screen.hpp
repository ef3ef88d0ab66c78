// What the page shows of the screen, so that it is sent what has changed and no more.
#pragma once

#include "desktop/drawing/display/pixel_rectangle.hpp"

#include <cstddef>
#include <span>
#include <vector>

namespace desktop::viewer {

using Bytes = std::vector<unsigned char>;

/// The pixels of a whole screen: opaque, premultiplied BGRA, rows `stride` bytes apart.
struct ScreenPixels {
    const unsigned char* first;
    int width;
    int height;
    std::ptrdiff_t stride;
};

/// Disjoint places of a screen, from top to bottom and left to right in each region that was looked
/// at, and a copy of their pixels: place after place, BGRA rows without gaps.
struct Changes {
    std::vector<PixelRectangle> places;
    Bytes pixels;
};

/// Keeps a copy of the pixels that were told last, and compares tile by tile. One thread at a time.
class ShownScreen {
public:
    /// Wide, since rows are compared and packed at once; low, since lines of text are.
    static constexpr int tileWidth = 64;
    static constexpr int tileHeight = 16;

    /// The tiles touched by `regions` that are different from those told before; neighbours in a
    /// row are one place. All tiles in `regions` at first, and when the size is another.
    [[nodiscard]] Changes update(const ScreenPixels& screen,
                                 std::span<const PixelRectangle> regions);

private:
    void fit(const ScreenPixels& screen);
    void compareRow(const ScreenPixels& screen, PixelRectangle row,
                    std::vector<PixelRectangle>& changed);
    bool takeOver(const ScreenPixels& screen, const PixelRectangle& tile);
    [[nodiscard]] unsigned char* at(int x, int y);

    int width_ = 0;
    int height_ = 0;
    Bytes pixels_; ///< clear where nothing was told, as no screen is
};

} // namespace desktop::viewer
