// The rules of gestures: fingers and times in, steps out.
#include "desktop/uikit/gestures/long_press_rule.hpp"
#include "desktop/uikit/gestures/pan_rule.hpp"
#include "desktop/uikit/gestures/pinch_rule.hpp"
#include "desktop/uikit/gestures/swipe_rule.hpp"
#include "desktop/uikit/gestures/tap_rule.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using desktop::Finger;
using desktop::GestureStep;

/// Puts fingers on a rule, moves and lifts them; a deadline that passes meanwhile is told.
class Hand {
public:
    explicit Hand(desktop::GestureRule& rule) : rule_(rule) {}

    GestureStep down(CGPoint point) {
        fingers_.push_back({point, point});
        return rule_.down(fingers_, now_);
    }
    GestureStep moveTo(CGPoint point, std::size_t finger = 0) {
        fingers_.at(finger).point = point;
        return rule_.moved(fingers_, now_);
    }
    GestureStep lift() {
        fingers_.erase(fingers_.begin());
        return rule_.lifted(fingers_, now_);
    }
    GestureStep tap(CGPoint point) {
        const GestureStep step = down(point);
        return step == GestureStep::none ? lift() : step;
    }
    GestureStep pass(double seconds) {
        now_ += seconds;
        const auto deadline = rule_.deadline();
        return deadline && *deadline <= now_ ? rule_.timeUp() : GestureStep::none;
    }

private:
    desktop::GestureRule& rule_;
    std::vector<Finger> fingers_;
    double now_ = 100;
};

TEST(TapRule, ATapIsShortAndStays) {
    struct Case {
        double seconds;
        double distance;
        GestureStep step;
    };
    for (const auto& [seconds, distance, step] :
         {Case{0, 0, GestureStep::end}, Case{0.7, 44, GestureStep::end},
          Case{0.76, 0, GestureStep::fail}, Case{0, 46, GestureStep::fail}}) {
        desktop::TapRule rule;
        Hand hand(rule);
        GestureStep last = hand.down({10, 10});
        for (const auto& next : {hand.pass(seconds), hand.moveTo({10 + distance, 10})}) {
            last = last == GestureStep::none ? next : last;
        }
        EXPECT_EQ(last == GestureStep::none ? hand.lift() : last, step) << seconds << distance;
    }
}

TEST(TapRule, SeveralTapsFollowEachOtherSoonAndClose) {
    desktop::TapRule rule;
    rule.taps = 2;
    Hand hand(rule);
    EXPECT_EQ(hand.tap({10, 10}), GestureStep::none);
    EXPECT_EQ(hand.pass(0.3), GestureStep::none);
    EXPECT_EQ(hand.tap({12, 10}), GestureStep::end);
    rule.reset();
    hand.tap({10, 10});
    EXPECT_EQ(hand.pass(0.36), GestureStep::fail);
    rule.reset();
    hand.tap({10, 10});
    EXPECT_EQ(hand.tap({80, 10}), GestureStep::fail);
}

TEST(TapRule, CountsItsFingers) {
    desktop::TapRule rule;
    rule.touches = 2;
    Hand hand(rule);
    EXPECT_EQ(hand.tap({0, 0}), GestureStep::fail);
    rule.reset();
    hand.down({0, 0});
    hand.down({30, 0});
    EXPECT_EQ(hand.lift(), GestureStep::none);
    EXPECT_EQ(hand.lift(), GestureStep::end);
    rule.reset();
    hand.down({0, 0});
    hand.down({30, 0});
    EXPECT_EQ(hand.down({60, 0}), GestureStep::fail);
}

TEST(LongPressRule, BeginsInTimeAndFollowsTheFinger) {
    desktop::LongPressRule rule;
    Hand hand(rule);
    hand.down({0, 0});
    EXPECT_EQ(hand.pass(0.4), GestureStep::none);
    EXPECT_EQ(hand.moveTo({10, 0}), GestureStep::none);
    EXPECT_EQ(hand.pass(0.1), GestureStep::begin);
    EXPECT_FALSE(rule.deadline());
    EXPECT_EQ(hand.moveTo({200, 0}), GestureStep::change);
    EXPECT_EQ(hand.lift(), GestureStep::end);
}

TEST(LongPressRule, FailsWhenLiftedStrayedOrCrowded) {
    desktop::LongPressRule rule;
    Hand hand(rule);
    EXPECT_EQ(hand.tap({0, 0}), GestureStep::fail);
    rule.reset();
    hand.down({0, 0});
    EXPECT_EQ(hand.moveTo({11, 0}), GestureStep::fail);
    rule.reset();
    EXPECT_EQ(hand.down({5, 5}), GestureStep::fail);
    rule.reset();
    rule.minimumDuration = 0;
    EXPECT_EQ(Hand(rule).down({0, 0}), GestureStep::begin);
}

TEST(PanRule, BeginsAfterTenPointsAndMeasures) {
    desktop::PanRule rule;
    Hand hand(rule);
    hand.down({100, 100});
    EXPECT_EQ(hand.moveTo({109, 100}), GestureStep::none);
    hand.pass(0.5);
    EXPECT_EQ(hand.moveTo({110, 100}), GestureStep::begin);
    EXPECT_EQ(rule.translation, (CGPoint{10, 0}));
    EXPECT_EQ(rule.velocity(), (CGPoint{2, 0}));
    rule.translation = {};
    EXPECT_EQ(hand.moveTo({110, 95}), GestureStep::change);
    EXPECT_EQ(rule.translation, (CGPoint{0, -5}));
    hand.down({300, 300});
    EXPECT_EQ(rule.translation, (CGPoint{0, -5})) << "another finger is no drag";
    EXPECT_EQ(hand.lift(), GestureStep::none);
    hand.pass(1);
    EXPECT_EQ(hand.lift(), GestureStep::end);
    EXPECT_EQ(rule.velocity(), CGPoint()) << "the finger had come to rest";
}

TEST(PanRule, KeepsToItsNumberOfFingers) {
    desktop::PanRule rule;
    rule.minimumTouches = 2;
    rule.maximumTouches = 2;
    Hand hand(rule);
    hand.down({0, 0});
    EXPECT_EQ(hand.moveTo({50, 0}), GestureStep::none);
    hand.down({50, 50});
    EXPECT_EQ(hand.moveTo({70, 0}), GestureStep::begin);
    EXPECT_EQ(rule.translation, (CGPoint{10, 0})) << "from where both were down";
    EXPECT_EQ(hand.lift(), GestureStep::end);
    rule.reset();
    hand.down({0, 0});
    EXPECT_EQ(hand.down({0, 0}), GestureStep::fail);
}

TEST(PinchRule, TellsTheScale) {
    desktop::PinchRule rule;
    Hand hand(rule);
    hand.down({100, 0});
    EXPECT_EQ(hand.moveTo({110, 0}), GestureStep::none);
    hand.down({210, 0});
    EXPECT_EQ(hand.moveTo({215, 0}, 1), GestureStep::none);
    hand.pass(0.5);
    EXPECT_EQ(hand.moveTo({310, 0}, 1), GestureStep::begin);
    EXPECT_EQ(rule.scale(), 2);
    EXPECT_EQ(rule.velocity(), 2);
    rule.setScale(1);
    EXPECT_EQ(hand.moveTo({210, 0}, 1), GestureStep::change);
    EXPECT_EQ(rule.scale(), 0.5);
    EXPECT_EQ(hand.lift(), GestureStep::end);
}

TEST(SwipeRule, GoesFarEnoughInTimeInItsDirection) {
    using desktop::SwipeRule;
    struct Case {
        SwipeRule::Direction directions;
        CGPoint way;
        double seconds;
        GestureStep step;
    };
    for (const auto& [directions, way, seconds, step] :
         {Case{SwipeRule::Direction::right, {60, 10}, 0.1, GestureStep::end},
          Case{SwipeRule::Direction::right, {-60, 10}, 0.1, GestureStep::fail},
          Case{SwipeRule::Direction::left | SwipeRule::Direction::up,
               {5, -60},
               0.1,
               GestureStep::end},
          Case{SwipeRule::Direction::down, {0, 60}, 0.1, GestureStep::end},
          Case{SwipeRule::Direction::right, {40, 0}, 0.1, GestureStep::none},
          Case{SwipeRule::Direction::right, {60, 0}, 0.6, GestureStep::fail}}) {
        SwipeRule rule;
        rule.directions = directions;
        Hand hand(rule);
        hand.down({100, 100});
        const GestureStep waited = hand.pass(seconds);
        EXPECT_EQ(waited == GestureStep::none ? hand.moveTo({100 + way.x, 100 + way.y}) : waited,
                  step)
            << static_cast<unsigned long>(directions) << " " << way.x << " " << way.y;
    }
}

} // namespace
