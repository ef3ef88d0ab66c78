// Pinching within bounds, double taps, and views over each other.
#include "library/common/zoom.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace wentra {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Zoom, PinchingStopsAtItsBounds) {
    struct Case {
        double before;
        double pinch;
        double after;
    };
    for (const auto& [before, pinch, after] :
         {Case{1, 1.2, 1.2}, Case{1, 5, 1.7}, Case{1.7, 1.1, 1.7}, Case{1, 0.1, 0.3},
          Case{0.3, 0.5, 0.3}, Case{1.9, 1, 1.7}, Case{0.1, 1, 0.3}, Case{1, infinity, 1.7}}) {
        const auto result = pinched(scaled({}, before), pinch);
        EXPECT_DOUBLE_EQ(result.a, after) << before << " " << pinch;
        EXPECT_DOUBLE_EQ(result.d, after) << before << " " << pinch;
    }
}

TEST(Zoom, PinchingKeepsRotationAndPlace) {
    const CGAffineTransform quarterTurn{0, 1, -1, 0, 7, 8};
    EXPECT_EQ(pinched(quarterTurn, 1.5), (CGAffineTransform{0, 1.5, -1.5, 0, 7, 8}));
}

TEST(Zoom, WhatHasNoScaleStays) {
    const CGAffineTransform flat{0, 0, 0, 0, 1, 2};
    EXPECT_EQ(pinched(flat, 1.5), flat);
    EXPECT_TRUE(std::isfinite(pinched({}, nan).a));
}

TEST(Zoom, ADoubleTapZoomsInAndBack) {
    EXPECT_EQ(doubleTapped({}), (CGAffineTransform{1.9, 0, 0, 1.9, 0, 0}));
    EXPECT_EQ(doubleTapped(doubleTapped({})), CGAffineTransform());
    EXPECT_EQ(doubleTapped(scaled({}, 0.5)), CGAffineTransform());
}

TEST(Zoom, ViewsThatOnlyTouchDoNotOverlap) {
    const CGRect one{{10, 10}, {20, 20}};
    EXPECT_TRUE(overlap(one, {{29, 29}, {5, 5}}));
    EXPECT_TRUE(overlap(one, {{0, 0}, {100, 100}}));
    EXPECT_FALSE(overlap(one, {{30, 10}, {5, 5}}));
    EXPECT_FALSE(overlap(one, {{10, 5}, {20, 5}}));
}

} // namespace
} // namespace wentra
