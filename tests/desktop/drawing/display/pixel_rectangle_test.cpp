// Rectangles of pixels, alone and together.
#include "desktop/drawing/display/pixel_rectangle.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace {

using desktop::PixelArea;
using desktop::PixelRectangle;

constexpr PixelRectangle screen{0, 0, 100, 200};

TEST(PixelRectangles, TouchAndCoverWholePixelsWithinLimits) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto around = [](const desktop::Rectangle& area) { return pixelsAround(area, screen); };
    const auto inside = [](const desktop::Rectangle& area) { return pixelsInside(area, screen); };
    EXPECT_EQ(around({1.5, 2, 3, 1.25}), (PixelRectangle{1, 2, 4, 2}));
    EXPECT_EQ(inside({1.5, 2, 3, 1.25}), (PixelRectangle{2, 2, 2, 1}));
    EXPECT_TRUE(inside({1.2, 0, 0.5, 9}).isEmpty());
    EXPECT_EQ(around({-1e300, -5, 2e300, 6}), (PixelRectangle{0, 0, 100, 1}));
    EXPECT_EQ(around({50, 0, infinite, 1}), (PixelRectangle{50, 0, 50, 1}));
    for (const desktop::Rectangle& none : {desktop::Rectangle{0, 0, -1, 5},
                                           {0, 0, 0, 5},
                                           {nan, 0, 1, 1},
                                           {0, 0, 1, nan},
                                           {100, 0, 5, 5}}) {
        EXPECT_TRUE(around(none).isEmpty());
    }
}

TEST(PixelAreas, CoverWhatWasAddedWithFewDisjointRectangles) {
    std::mt19937 random(7);
    const auto below = [&random](int end) {
        return std::uniform_int_distribution(0, end - 1)(random);
    };
    for (int round = 0; round < 200; ++round) {
        PixelArea area;
        std::vector<PixelRectangle> added;
        for (int count = below(40); count >= 0; --count) {
            added.push_back({below(1000), below(2000), below(90), below(90)});
            area.add(added.back());
        }
        const auto& parts = area.rectangles();
        EXPECT_LE(parts.size(), 8U);
        for (const PixelRectangle& one : added) {
            EXPECT_TRUE(one.isEmpty() || std::ranges::any_of(parts, [&one](const auto& part) {
                            return contains(part, one);
                        }));
        }
        for (std::size_t i = 0; i < parts.size(); ++i) {
            for (std::size_t j = i + 1; j < parts.size(); ++j) {
                EXPECT_TRUE(intersection(parts[i], parts[j]).isEmpty());
            }
        }
    }
}

TEST(PixelAreas, StayApartWhenTheyAreFarApart) {
    PixelArea area;
    area.add({0, 0, 10, 10});
    area.add({500, 900, 10, 10});
    area.add({10, 0, 10, 10});
    EXPECT_EQ(area.rectangles(), (std::vector<PixelRectangle>{{500, 900, 10, 10}, {0, 0, 20, 10}}));
}

} // namespace
