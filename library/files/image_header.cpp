// PNG begins with its size; JPEG has it in one of the segments before the picture.
#include "library/files/image_header.hpp"

#include <algorithm>
#include <string_view>

namespace wentra::files {
namespace {

constexpr std::string_view pngStart("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
constexpr std::string_view jpegStart("\xFF\xD8", 2);

/// Big-endian.
std::uint64_t number(std::string_view bytes) {
    std::uint64_t value = 0;
    for (const char byte : bytes) {
        value = value << 8U | static_cast<unsigned char>(byte);
    }
    return value;
}

/// What the two bytes at the beginning of a JPEG's segment mean.
enum class Marker { none, alone, frame, other, end };

Marker markerOf(std::string_view bytes) {
    const auto marker = static_cast<unsigned char>(bytes[1]);
    if (bytes[0] != '\xFF' || marker == 0xFF) {
        return Marker::none; // decoders look past what fills the space between segments
    }
    if (marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD8)) {
        return Marker::alone;
    }
    if (marker == 0xD9 || marker == 0xDA) {
        return Marker::end;
    }
    const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && !isTable ? Marker::frame : Marker::other;
}

std::uint64_t jpegPixels(const ReadAt& read) {
    constexpr int mostSteps = 1 << 16; // no more are in any image that is meant well
    constexpr std::size_t sizesEnd = 9;
    std::size_t place = jpegStart.size();
    for (int step = 0; step < mostSteps; ++step) {
        const std::string bytes = read(place, sizesEnd);
        const std::string_view segment = bytes;
        if (segment.size() < sizesEnd) {
            return 0;
        }
        switch (markerOf(segment)) {
        case Marker::none:
            ++place;
            break;
        case Marker::alone:
            place += 2;
            break;
        case Marker::other:
            place += 2 + std::max<std::uint64_t>(number(segment.substr(2, 2)), 2);
            break;
        case Marker::frame:
            return number(segment.substr(5, 2)) * number(segment.substr(7, 2));
        case Marker::end:
            return 0;
        }
    }
    return 0;
}

} // namespace

std::uint64_t announcedPixels(const ReadAt& read) {
    constexpr std::size_t sizesEnd = 24;
    const std::string start = read(0, sizesEnd);
    if (start.size() == sizesEnd && start.starts_with(pngStart)) {
        const std::string_view sizes = std::string_view(start).substr(pngStart.size());
        return number(sizes.substr(0, 4)) * number(sizes.substr(4));
    }
    return start.starts_with(jpegStart) ? jpegPixels(read) : 0;
}

} // namespace wentra::files
