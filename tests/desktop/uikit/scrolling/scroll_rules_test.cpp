// The arithmetic of scrolling.
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace desktop;

constexpr ScrollRange range{0, 1000};
constexpr double length = 500;

TEST(ScrollRules, ContentRestsBetweenItsEnds) {
    const auto tall = ScrollRange::of(2000, 500, 20, 30);
    EXPECT_EQ(tall.low, -20);
    EXPECT_EQ(tall.high, 1530);
    const auto shorter = ScrollRange::of(100, 500, 20, 30);
    EXPECT_EQ(shorter.high, shorter.low);
    EXPECT_EQ(range.nearest(std::nan("")), 0);
}

TEST(ScrollRules, TheRubberBandYieldsLessAndLess) {
    EXPECT_NEAR(rubberBand(100, length), 49.55, 0.01);
    EXPECT_EQ(rubberBand(-100, length), -rubberBand(100, length));
    EXPECT_LT(rubberBand(1e9, length), length);
    EXPECT_EQ(rubberBand(100, 0), 0);
    for (const double wanted : {-300.0, -1.0, 0.0, 400.0, 1000.0, 1250.0}) {
        const double shown = draggedOffset(wanted, range, length, true);
        EXPECT_NEAR(wantedOffset(shown, range, length), wanted, 1e-6);
    }
    EXPECT_EQ(draggedOffset(-300, range, length, false), 0);
    EXPECT_EQ(draggedOffset(1300, range, length, false), 1000);
}

TEST(ScrollRules, AFlingSlowsDownByTheRate) {
    const auto coast = Coast::slowing(0, 1000, {0, 1e6}, normalDeceleration, true);
    // After one millisecond 0.998 of the speed is left, so in all it goes about 499.5 points.
    EXPECT_NEAR(coast.rest(), 499.5, 3);
    EXPECT_NEAR(coast.offset(0.1), 1000 * (1 - std::pow(0.998, 100)) / 2.002, 0.01);
    EXPECT_NEAR(coast.offset(coast.duration()), coast.rest(), 1e-9);
    EXPECT_LT(Coast::slowing(0, 1000, {0, 1e6}, fastDeceleration, true).rest(), 110);
    EXPECT_EQ(Coast::slowing(7, 0, range, normalDeceleration, true).duration(), 0);
}

TEST(ScrollRules, AFlingBouncesAtTheEdgeOrStopsThere) {
    for (const double velocity : {3000.0, -3000.0}) {
        const double edge = velocity > 0 ? 1000 : 0;
        double farthest = 0;
        const auto coast = Coast::slowing(500, velocity, range, normalDeceleration, true);
        for (double t = 0; t < coast.duration(); t += 0.005) {
            farthest = std::max(farthest, std::abs(coast.offset(t) - 500));
        }
        EXPECT_GT(farthest, 520);
        EXPECT_LT(farthest, 620);
        EXPECT_EQ(coast.offset(coast.duration()), edge);
        EXPECT_NEAR(coast.offset(coast.duration() - 1e-9), edge, 0.25);

        const auto hard = Coast::slowing(500, velocity, range, normalDeceleration, false);
        EXPECT_EQ(hard.rest(), edge);
        EXPECT_NEAR(hard.offset(hard.duration() - 1e-9), edge, 1e-3);
    }
}

TEST(ScrollRules, OutsideOfItsRangeContentSpringsBack) {
    const auto coast = Coast::slowing(-80, -200, range, normalDeceleration, true);
    EXPECT_EQ(coast.offset(0), -80);
    EXPECT_LT(coast.offset(0.02), -80) << "the fling carries it on at first";
    EXPECT_EQ(coast.rest(), 0);
    EXPECT_LT(coast.duration(), 1.5);
}

TEST(ScrollRules, PagesTurnOneAtATime) {
    struct Case {
        double offset;
        double velocity;
        double target;
    };
    for (const auto& [offset, velocity, target] :
         {Case{600, 0, 500}, Case{800, 0, 1000}, Case{520, 2000, 1000}, Case{480, -2000, 0},
          Case{520, 100, 500}, Case{1490, 9000, 1000}}) {
        EXPECT_EQ(pageTarget(500, offset, velocity, length, range), target) << offset;
    }
    EXPECT_EQ(pageTarget(0, 30, 0, 0, range), 30);
}

TEST(ScrollRules, APageFlungAgainstTheDragGoesBackToWhereItBegan) {
    for (const double offset : {520.0, 800.0, 980.0}) {
        EXPECT_EQ(pageTarget(500, offset, -2000, length, range), 500) << offset;
    }
    for (const double offset : {480.0, 200.0, 20.0}) {
        EXPECT_EQ(pageTarget(500, offset, 2000, length, range), 500) << offset;
    }
}

TEST(ScrollRules, RevealingMovesNoFartherThanNeeded) {
    EXPECT_EQ(revealing(100, 50, 0, 500, 20, 30), 0);
    EXPECT_EQ(revealing(100, 50, 200, 500, 20, 30), 80);
    EXPECT_EQ(revealing(600, 50, 0, 500, 20, 30), 180);
    EXPECT_EQ(revealing(600, 900, 0, 500, 20, 30), 580);
}

TEST(ScrollRules, TheIndicatorShowsWhatPartIsSeen) {
    const auto top = indicatorSpan(2000, 500, 0, 400);
    EXPECT_EQ(top.start, 0);
    EXPECT_EQ(top.length, 100);
    EXPECT_EQ(indicatorSpan(2000, 500, 1500, 400).start, 300);
    EXPECT_EQ(indicatorSpan(2000, 500, -50, 400).length, 50);
    EXPECT_EQ(indicatorSpan(2000, 500, -50, 400).start, 0);
    const auto end = indicatorSpan(2000, 500, 1550, 400);
    EXPECT_EQ(end.start + end.length, 400);
    EXPECT_EQ(indicatorSpan(1e6, 500, 0, 400).length, 36);
    EXPECT_EQ(indicatorSpan(0, 500, 0, 400).length, 0);
}

} // namespace
