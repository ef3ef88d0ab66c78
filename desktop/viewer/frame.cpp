// Putting a frame together.
#include "desktop/viewer/frame.hpp"

#include "desktop/drawing/png_writer.hpp"

#include <bit>

namespace desktop::viewer {
namespace {

constexpr std::size_t bytesPerPixel = 4;

template <class Number>
void appendLittleEndian(Bytes& bytes, Number number) {
    static_assert(std::endian::native == std::endian::little);
    const auto* first = reinterpret_cast<const unsigned char*>(&number);
    bytes.insert(bytes.end(), first, first + sizeof number);
}

} // namespace

Bytes encodePng(std::span<const unsigned char> pixels, std::size_t width, std::size_t height) {
    if (width == 0 || height == 0 || pixels.size() / bytesPerPixel / width < height) {
        return {};
    }
    PngWriter writer(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    for (std::size_t row = 0; row < height; ++row) {
        writer.add(pixels.data() + row * width * bytesPerPixel);
    }
    return writer.finish();
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
