// What is sent to the page when the screen has changed: the changed places, packed.
#pragma once

#include "desktop/viewer/shown_screen.hpp"

#include <cstdint>

namespace desktop::viewer {

/// A frame, in little-endian: u32 its number, u16 width and u16 height of the screen in pixels, u32
/// how many places have changed, for each u16 x, y, width, height, and one LZ4 block with their
/// pixels: place after place, rows without gaps, RGBA as browsers have it.
[[nodiscard]] Bytes encodeFrame(std::uint32_t number, std::uint16_t width, std::uint16_t height,
                                Changes changes);

} // namespace desktop::viewer
