// Putting a frame together.
#include "desktop/viewer/frame.hpp"

#include <bit>
#include <cstring>
#include <lz4.h>
#include <utility>

namespace desktop::viewer {
namespace {

template <class Number>
void appendLittleEndian(Bytes& bytes, Number number) {
    static_assert(std::endian::native == std::endian::little);
    const auto* first = reinterpret_cast<const unsigned char*>(&number);
    bytes.insert(bytes.end(), first, first + sizeof number);
}

/// In words of four bytes, which compilers turn into instructions for many pixels at once.
void exchangeRedAndBlue(Bytes& pixels) {
    constexpr std::uint32_t others = 0xFF00FF00;
    constexpr std::uint32_t low = 0xFF;
    constexpr unsigned apart = 16;
    for (std::size_t at = 0; at + sizeof others <= pixels.size(); at += sizeof others) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, pixels.data() + at, sizeof pixel);
        pixel = (pixel & others) | (pixel >> apart & low) | (pixel & low) << apart;
        std::memcpy(pixels.data() + at, &pixel, sizeof pixel);
    }
}

void appendPacked(Bytes& frame, const Bytes& pixels) {
    const auto size = static_cast<int>(pixels.size());
    const auto start = frame.size();
    const int most = LZ4_compressBound(size);
    frame.resize(start + static_cast<std::size_t>(most));
    const int packed =
        LZ4_compress_default(reinterpret_cast<const char*>(pixels.data()),
                             reinterpret_cast<char*>(frame.data() + start), size, most);
    frame.resize(start + static_cast<std::size_t>(packed));
}

} // namespace

Bytes encodeFrame(std::uint32_t number, std::uint16_t width, std::uint16_t height,
                  Changes changes) {
    Bytes frame;
    appendLittleEndian(frame, number);
    appendLittleEndian(frame, width);
    appendLittleEndian(frame, height);
    appendLittleEndian(frame, static_cast<std::uint32_t>(changes.places.size()));
    for (const PixelRectangle& place : changes.places) {
        for (const int part : {place.x, place.y, place.width, place.height}) {
            appendLittleEndian(frame, static_cast<std::uint16_t>(part));
        }
    }
    exchangeRedAndBlue(changes.pixels);
    appendPacked(frame, changes.pixels);
    return frame;
}

} // namespace desktop::viewer
