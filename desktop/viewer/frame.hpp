// What is sent to the page when the screen has changed: the changed regions as PNG.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace desktop::viewer {

using Bytes = std::vector<unsigned char>;

/// A changed region, in pixels of the screen, with its own copy of the pixels: premultiplied BGRA
/// rows without gaps. Only opaque pixels come out right, and the screen has no others.
struct Patch {
    std::uint16_t x;
    std::uint16_t y;
    std::uint16_t width;
    std::uint16_t height;
    Bytes pixels;
};

/// The pixels as a PNG file, without alpha. Empty when `pixels` are fewer than the size says.
[[nodiscard]] Bytes encodePng(std::span<const unsigned char> pixels, std::size_t width,
                              std::size_t height);

/// A frame, in little-endian: u32 its number, u16 width and u16 height of the screen in pixels,
/// then for each patch u16 x, y, width, height, u32 length, and that many bytes of PNG.
[[nodiscard]] Bytes encodeFrame(std::uint32_t number, std::uint16_t width, std::uint16_t height,
                                std::span<const Patch> patches);

} // namespace desktop::viewer
