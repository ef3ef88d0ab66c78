// The line about an image, and bytes as digits.
#include "library/files/viewers/hex_digits.hpp"
#include "library/files/viewers/image_info.hpp"

#include <gtest/gtest.h>

namespace {

using namespace wentra::files;

TEST(ImageInfo, TellsNamePixelsRatioAndSize) {
    EXPECT_EQ(imageInfo(u"a%@.png", {400, 300}, u"1.2 MB"),
              u"图片名: a%@.png, 像素: 400 × 300, \n宽高比: 1.33, 大小: 1.2 MB");
}

TEST(ImageInfo, DividesByAHeightOfNothing) {
    EXPECT_EQ(imageInfo(u"a", {0, 0}, u"Zero KB"),
              u"图片名: a, 像素: 0 × 0, \n宽高比: nan, 大小: Zero KB");
    EXPECT_NE(imageInfo(u"a", {5, 0}, u"").find(u"宽高比: inf"), std::u16string::npos);
}

TEST(HexDigits, AreTwoInSmallLetters) {
    EXPECT_EQ(hexDigits(0x0A), (std::array{u'0', u'a'}));
    EXPECT_EQ(hexDigits(0xF9), (std::array{u'f', u'9'}));
}

} // namespace
