// Copying rows of pixels.
#include "desktop/viewer/patch.hpp"

#include <cstring>

namespace desktop::viewer {

Patch copied(const ScreenImage& image, const PixelRectangle& region) {
    constexpr int bytesPerPixel = 4;
    Patch patch{static_cast<std::uint16_t>(region.x),
                static_cast<std::uint16_t>(region.y),
                static_cast<std::uint16_t>(region.width),
                static_cast<std::uint16_t>(region.height),
                {}};
    const auto rowBytes = static_cast<std::size_t>(region.width) * bytesPerPixel;
    patch.pixels.resize(rowBytes * patch.height);
    for (int row = 0; row < region.height; ++row) {
        const std::ptrdiff_t from = std::ptrdiff_t{region.y + row} * image.stride() +
                                    std::ptrdiff_t{region.x} * bytesPerPixel;
        std::memcpy(patch.pixels.data() + static_cast<std::size_t>(row) * rowBytes,
                    image.pixels() + from, rowBytes);
    }
    return patch;
}

} // namespace desktop::viewer
