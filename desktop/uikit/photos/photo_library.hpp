// The photo library: a folder of the device.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace desktop::photos {

/// Where pictures and films lie, on the device.
inline constexpr std::string_view folder = "/var/mobile/Media/DCIM/100APPLE";

/// Puts the bytes into the library as a new file, whose name ends in `suffix` (".png"), and records
/// the event "photo". The file's path on the device; nothing when it cannot be written, and without
/// a device. What lies there already stays as it is.
std::optional<std::string> add(std::span<const std::byte> bytes, std::string_view suffix);

} // namespace desktop::photos
