// Comparing tiles, and copying those that differ.
#include "desktop/viewer/shown_screen.hpp"

#include <algorithm>
#include <cstring>

namespace desktop::viewer {
namespace {

constexpr std::size_t bytesPerPixel = 4;

const unsigned char* pixelAt(const ScreenPixels& screen, int x, int y) {
    return screen.first + y * screen.stride + x * static_cast<std::ptrdiff_t>(bytesPerPixel);
}

std::size_t rowBytes(const PixelRectangle& place) {
    return static_cast<std::size_t>(place.width) * bytesPerPixel;
}

/// The tiles that a region touches.
PixelRectangle wholeTiles(const PixelRectangle& region, const PixelRectangle& screen) {
    const int left = region.x - region.x % ShownScreen::tileWidth;
    const int top = region.y - region.y % ShownScreen::tileHeight;
    const auto end = [](int place, int tile) { return (place + tile - 1) / tile * tile; };
    return intersection({left, top, end(region.x + region.width, ShownScreen::tileWidth) - left,
                         end(region.y + region.height, ShownScreen::tileHeight) - top},
                        screen);
}

/// Neighbours in a row become one place.
void add(const PixelRectangle& tile, std::vector<PixelRectangle>& places) {
    if (!places.empty()) {
        PixelRectangle& last = places.back();
        if (last.y == tile.y && last.x + last.width == tile.x) {
            last.width += tile.width;
            return;
        }
    }
    places.push_back(tile);
}

Bytes copyOf(const ScreenPixels& screen, std::span<const PixelRectangle> places) {
    std::size_t size = 0;
    for (const PixelRectangle& place : places) {
        size += static_cast<std::size_t>(place.area()) * bytesPerPixel;
    }
    Bytes pixels(size);
    unsigned char* to = pixels.data();
    for (const PixelRectangle& place : places) {
        for (int row = 0; row < place.height; ++row, to += rowBytes(place)) {
            std::memcpy(to, pixelAt(screen, place.x, place.y + row), rowBytes(place));
        }
    }
    return pixels;
}

} // namespace

Changes ShownScreen::update(const ScreenPixels& screen, std::span<const PixelRectangle> regions) {
    fit(screen);
    Changes changes;
    for (const PixelRectangle& region : regions) {
        const PixelRectangle tiles = wholeTiles(region, {0, 0, screen.width, screen.height});
        for (int y = tiles.y; y < tiles.y + tiles.height; y += tileHeight) {
            const int height = std::min(tileHeight, tiles.y + tiles.height - y);
            compareRow(screen, {tiles.x, y, tiles.width, height}, changes.places);
        }
    }
    changes.pixels = copyOf(screen, changes.places);
    return changes;
}

void ShownScreen::fit(const ScreenPixels& screen) {
    if (screen.width != width_ || screen.height != height_) {
        width_ = screen.width;
        height_ = screen.height;
        pixels_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) *
                           bytesPerPixel,
                       0);
    }
}

void ShownScreen::compareRow(const ScreenPixels& screen, PixelRectangle row,
                             std::vector<PixelRectangle>& changed) {
    for (int x = row.x; x < row.x + row.width; x += tileWidth) {
        const PixelRectangle tile{x, row.y, std::min(tileWidth, row.x + row.width - x), row.height};
        if (takeOver(screen, tile)) {
            add(tile, changed);
        }
    }
}

/// Whether the tile was different.
bool ShownScreen::takeOver(const ScreenPixels& screen, const PixelRectangle& tile) {
    const int bottom = tile.y + tile.height;
    int y = tile.y;
    while (y < bottom &&
           std::memcmp(at(tile.x, y), pixelAt(screen, tile.x, y), rowBytes(tile)) == 0) {
        ++y;
    }
    const bool isDifferent = y < bottom;
    for (; y < bottom; ++y) {
        std::memcpy(at(tile.x, y), pixelAt(screen, tile.x, y), rowBytes(tile));
    }
    return isDifferent;
}

unsigned char* ShownScreen::at(int x, int y) {
    const auto pixel = static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x);
    return pixels_.data() + pixel * bytesPerPixel;
}

} // namespace desktop::viewer
