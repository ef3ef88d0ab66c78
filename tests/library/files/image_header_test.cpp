// What headers say of an image's size.
#include "library/files/image_header.hpp"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

std::uint64_t pixels(const std::string& bytes) {
    return wentra::files::announcedPixels([&](std::size_t place, std::size_t count) {
        return place < bytes.size() ? bytes.substr(place, count) : "";
    });
}

const std::string png = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s;
const std::string frame = "\xFF\xC0\0\x11\x08\x75\x30\x75\x30"s; // 30,000 on each side

TEST(ImageHeader, OfAPngBeginsWithItsSize) {
    EXPECT_EQ(pixels(png + "\0\0\x75\x30\0\0\x75\x30"s), 900'000'000U);
    EXPECT_EQ(pixels(png + "\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF"s), 0x7FFFFFFFULL * 0x7FFFFFFFULL);
    EXPECT_EQ(pixels(png + "\0\0\x75\x30\0"s), 0U);
}

TEST(ImageHeader, OfAJpegLiesBehindOtherSegments) {
    for (const std::string& before :
         {""s, "\xFF\xE1\0\4ab"s, "\xFF\xC4\0\2\xFF\xFF\xFF"s, "\xFF\xD0\xFF\1"s, "stray"s,
          "\xFF\xE0\0\0"s, "\xFF\xE1\1\0"s + std::string(254, '\xFF')}) {
        EXPECT_EQ(pixels(std::string("\xFF\xD8").append(before).append(frame)), 900'000'000U)
            << before;
    }
}

TEST(ImageHeader, IsNotSoughtForever) {
    int reads = 0;
    const auto endless = [&](std::size_t place, std::size_t count) {
        ++reads;
        return place == 0 ? "\xFF\xD8" + std::string(count - 2, '\xFF')
                          : std::string(count, '\xFF');
    };
    EXPECT_EQ(wentra::files::announcedPixels(endless), 0U);
    EXPECT_LT(reads, 100'000);
}

TEST(ImageHeader, IsNoneOfOtherFilesAndOfPartsOfOne) {
    for (const std::string& bytes :
         {""s, "\xFF"s, "\xFF\xD8"s, "\xFF\xD8\xFF"s, "\xFF\xD8" + frame.substr(0, 8),
          "\xFF\xD8\xFF\xD9" + frame, "\xFF\xD8\xFF\xDA" + frame, "\xFF\xD8\xFF\xE1\xFF\xFF"s,
          "no image"s}) {
        EXPECT_EQ(pixels(bytes), 0U) << bytes;
    }
}

} // namespace
