// Frames as pages read them: numbers, places, and the pixels in the order that browsers have.
#include "desktop/viewer/frame.hpp"

#include <gtest/gtest.h>
#include <lz4.h>

#include <random>

namespace {

using namespace desktop::viewer;

Bytes noise(std::size_t count) {
    std::mt19937 random(7);
    Bytes pixels(count * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = i % 4 == 3 ? 255 : static_cast<unsigned char>(random());
    }
    return pixels;
}

std::size_t number(const Bytes& frame, std::size_t at, std::size_t bytes) {
    std::size_t read = 0;
    for (std::size_t i = bytes; i-- > 0;) {
        read = read << 8U | frame.at(at + i);
    }
    return read;
}

/// What is packed from there on to the end.
Bytes unpacked(const Bytes& frame, std::size_t at, std::size_t most) {
    Bytes bytes(most + 1);
    const int size = LZ4_decompress_safe(
        reinterpret_cast<const char*>(frame.data() + at), reinterpret_cast<char*>(bytes.data()),
        static_cast<int>(frame.size() - at), static_cast<int>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max(size, 0)));
    return bytes;
}

TEST(Frame, PlacesAndTheirPixelsFollowTheHeader) {
    const std::vector<desktop::PixelRectangle> places{{10, 20, 3, 2}, {300, 2000, 1, 1}};
    const Bytes pixels = noise(7);
    const Bytes frame = encodeFrame(0x01020304, 1170, 2532, {places, pixels});
    EXPECT_EQ(number(frame, 0, 4), 0x01020304U);
    EXPECT_EQ(number(frame, 4, 2), 1170U);
    EXPECT_EQ(number(frame, 6, 2), 2532U);
    ASSERT_EQ(number(frame, 8, 4), 2U);
    std::size_t at = 12;
    for (const desktop::PixelRectangle& place : places) {
        for (const int part : {place.x, place.y, place.width, place.height}) {
            EXPECT_EQ(number(frame, at, 2), static_cast<std::size_t>(part));
            at += 2;
        }
    }
    const Bytes shown = unpacked(frame, at, pixels.size());
    ASSERT_EQ(shown.size(), pixels.size());
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        EXPECT_EQ((std::array{shown[i], shown[i + 1], shown[i + 2], shown[i + 3]}),
                  (std::array{pixels[i + 2], pixels[i + 1], pixels[i], pixels[i + 3]}));
    }
}

TEST(Frame, WhatIsFlatIsSmallAndNoiseHardlyLarger) {
    constexpr int side = 400;
    constexpr std::size_t pixels = std::size_t{side} * side;
    const std::vector<desktop::PixelRectangle> places{{0, 0, side, side}};
    EXPECT_LT(encodeFrame(1, side, side, {places, Bytes(pixels * 4, 255)}).size(), pixels / 20);
    EXPECT_LT(encodeFrame(1, side, side, {places, noise(pixels)}).size(), pixels * 4 * 102 / 100);
}

TEST(Frame, WithoutChangesIsAHeader) {
    const Bytes frame = encodeFrame(7, 2, 2, {});
    EXPECT_EQ(number(frame, 8, 4), 0U);
    EXPECT_TRUE(unpacked(frame, 12, 4).empty());
}

} // namespace
