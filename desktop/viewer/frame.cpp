// PNG by zlib at its quickest: rows are not filtered, for flat interfaces get no smaller by it.
#include "desktop/viewer/frame.hpp"

#include <array>
#include <bit>
#include <cstring>
#include <string_view>
#include <zlib.h>

namespace desktop::viewer {
namespace {

constexpr std::size_t bytesPerPixel = 4;

template <class Number>
void appendLittleEndian(Bytes& bytes, Number number) {
    static_assert(std::endian::native == std::endian::little);
    const auto* first = reinterpret_cast<const unsigned char*>(&number);
    bytes.insert(bytes.end(), first, first + sizeof number);
}

void appendBigEndian(Bytes& bytes, std::uint32_t number) {
    appendLittleEndian(bytes, __builtin_bswap32(number));
}

/// A chunk of a PNG file: length, name, content, checksum over name and content.
void appendChunk(Bytes& png, std::string_view name, std::span<const unsigned char> content) {
    appendBigEndian(png, static_cast<std::uint32_t>(content.size()));
    const std::size_t start = png.size();
    png.insert(png.end(), name.begin(), name.end());
    png.insert(png.end(), content.begin(), content.end());
    const auto checksum = crc32_z(crc32_z(0, nullptr, 0), png.data() + start, png.size() - start);
    appendBigEndian(png, static_cast<std::uint32_t>(checksum));
}

/// Each row as PNG wants it: the kind of filter (none), then red, green and blue of each pixel.
Bytes rows(std::span<const unsigned char> pixels, std::size_t width, std::size_t height) {
    Bytes packed(height * (1 + width * 3));
    const unsigned char* from = pixels.data();
    unsigned char* to = packed.data();
    for (std::size_t y = 0; y < height; ++y) {
        *to++ = 0;
        for (std::size_t x = 0; x < width; ++x, from += bytesPerPixel, to += 3) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
        }
    }
    return packed;
}

Bytes compressed(const Bytes& plain) {
    uLongf size = compressBound(plain.size());
    Bytes packed(size);
    compress2(packed.data(), &size, plain.data(), plain.size(), Z_BEST_SPEED); // there is room
    packed.resize(size);
    return packed;
}

} // namespace

Bytes encodePng(std::span<const unsigned char> pixels, std::size_t width, std::size_t height) {
    if (width == 0 || height == 0 || pixels.size() / bytesPerPixel / width < height) {
        return {};
    }
    constexpr std::array<unsigned char, 8> signature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    constexpr std::array<unsigned char, 5> eightBitColour{8, 2, 0, 0, 0};
    Bytes header;
    appendBigEndian(header, static_cast<std::uint32_t>(width));
    appendBigEndian(header, static_cast<std::uint32_t>(height));
    header.insert(header.end(), eightBitColour.begin(), eightBitColour.end());

    Bytes png(signature.begin(), signature.end());
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", compressed(rows(pixels, width, height)));
    appendChunk(png, "IEND", {});
    return png;
}

Bytes encodeFrame(std::uint32_t number, std::uint16_t width, std::uint16_t height,
                  std::span<const Patch> patches) {
    Bytes frame;
    appendLittleEndian(frame, number);
    appendLittleEndian(frame, width);
    appendLittleEndian(frame, height);
    for (const Patch& patch : patches) {
        const Bytes png = encodePng(patch.pixels, patch.width, patch.height);
        for (const std::uint16_t part : {patch.x, patch.y, patch.width, patch.height}) {
            appendLittleEndian(frame, part);
        }
        appendLittleEndian(frame, static_cast<std::uint32_t>(png.size()));
        frame.insert(frame.end(), png.begin(), png.end());
    }
    return frame;
}

} // namespace desktop::viewer
