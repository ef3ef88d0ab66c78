// Where the pictures of a long screen lie.
#include "library/toolbox/capture/stitching.hpp"

#include <gtest/gtest.h>

namespace {

using wentra::toolbox::pixelsBelowBars;
using wentra::toolbox::Stitching;

TEST(Stitching, OnePictureStaysAsItIs) {
    const Stitching stitching({390, 844});
    EXPECT_EQ(stitching.size(1), (CGSize{390, 844}));
    EXPECT_EQ(stitching.place(0), (CGRect{{0, 0}, {390, 844}}));
}

TEST(Stitching, FurtherPicturesFollowWithoutTheirBars) {
    const Stitching stitching({390, 844});
    EXPECT_EQ(stitching.size(3), (CGSize{390, 844 + 2 * 752}));
    EXPECT_EQ(stitching.place(1), (CGRect{{0, 844}, {390, 752}}));
    EXPECT_EQ(stitching.place(2), (CGRect{{0, 844 + 752}, {390, 752}}));
}

TEST(Stitching, TheBarsAreCutOffInPixels) {
    EXPECT_EQ(pixelsBelowBars({390, 844}, 3), (CGRect{{0, 276}, {1170, 2256}}));
    EXPECT_EQ(pixelsBelowBars({320, 568}, 2), (CGRect{{0, 184}, {640, 952}}));
}

} // namespace
