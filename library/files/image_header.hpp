// What an image file says of its size, before anything is decoded.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace wentra::files {

/// Gives so many bytes of a file from a place on, or fewer at its end.
using ReadAt = std::function<std::string(std::size_t place, std::size_t count)>;

/// How many pixels a PNG or a JPEG has by its header, of which no more is read than it takes; 0 of
/// anything else.
[[nodiscard]] std::uint64_t announcedPixels(const ReadAt& read);

/// An image of more pixels takes more memory than a phone gives to one process.
inline constexpr std::uint64_t mostPixels = 150'000'000;

} // namespace wentra::files
