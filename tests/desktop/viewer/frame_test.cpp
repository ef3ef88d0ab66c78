// Frames as pages read them: numbers, places, and pictures that decode to the same pixels.
#include "desktop/viewer/frame.hpp"

#include "desktop/drawing/image.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace desktop::viewer;

Bytes noise(std::size_t width, std::size_t height) {
    std::mt19937 random(7);
    Bytes pixels(width * height * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = i % 4 == 3 ? 255 : static_cast<unsigned char>(random());
    }
    return pixels;
}

void expectSamePixels(const Bytes& png, const Bytes& pixels, int width, int height) {
    const auto image = desktop::Image::decode(std::as_bytes(std::span(png)));
    ASSERT_TRUE(image);
    ASSERT_EQ(image->pixelWidth(), width);
    ASSERT_EQ(image->pixelHeight(), height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto* given = pixels.data() + std::ptrdiff_t{y * width + x} * 4;
            const desktop::Colour drawn = image->pixel(x, y);
            ASSERT_NEAR(drawn.red * 255, given[2], 0.01) << x << ", " << y;
            ASSERT_NEAR(drawn.green * 255, given[1], 0.01) << x << ", " << y;
            ASSERT_NEAR(drawn.blue * 255, given[0], 0.01) << x << ", " << y;
        }
    }
}

TEST(Frame, PicturesKeepEveryPixel) {
    for (const auto& [width, height] : {std::pair{1, 1}, {3, 2}, {97, 31}, {1, 300}}) {
        const Bytes pixels =
            noise(static_cast<std::size_t>(width), static_cast<std::size_t>(height));
        expectSamePixels(
            encodePng(pixels, static_cast<std::size_t>(width), static_cast<std::size_t>(height)),
            pixels, width, height);
    }
}

TEST(Frame, TooFewPixelsAreNoPicture) {
    EXPECT_TRUE(encodePng(noise(3, 2), 3, 3).empty());
    EXPECT_TRUE(encodePng({}, 0, 5).empty());
    EXPECT_TRUE(encodePng({}, 5, 0).empty());
}

TEST(Frame, PatchesFollowTheHeader) {
    const std::vector<Patch> patches{{10, 20, 3, 2, noise(3, 2)}, {300, 2000, 1, 1, noise(1, 1)}};
    const Bytes frame = encodeFrame(0x01020304, 1170, 2532, patches);
    const auto number = [&frame](std::size_t at, std::size_t bytes) {
        std::size_t read = 0;
        for (std::size_t i = bytes; i-- > 0;) {
            read = read << 8U | frame.at(at + i);
        }
        return read;
    };
    EXPECT_EQ(number(0, 4), 0x01020304U);
    EXPECT_EQ(number(4, 2), 1170U);
    EXPECT_EQ(number(6, 2), 2532U);
    std::size_t at = 8;
    for (const Patch& patch : patches) {
        EXPECT_EQ(number(at, 2), patch.x);
        EXPECT_EQ(number(at + 2, 2), patch.y);
        EXPECT_EQ(number(at + 4, 2), patch.width);
        EXPECT_EQ(number(at + 6, 2), patch.height);
        const std::size_t length = number(at + 8, 4);
        const auto start = frame.begin() + static_cast<std::ptrdiff_t>(at) + 12;
        expectSamePixels({start, start + static_cast<std::ptrdiff_t>(length)}, patch.pixels,
                         patch.width, patch.height);
        at += 12 + length;
    }
    EXPECT_EQ(at, frame.size());
}

} // namespace
