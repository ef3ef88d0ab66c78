// Touches: which view they hit, what it is told, and what it may do meanwhile.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

namespace {

using TouchDelivery = tests::TouchTest;
using tests::TouchedView;

TEST_F(TouchDelivery, HitsTheFrontmostViewThatTakesTouches) {
    const auto back = touchedView(window_, {{0, 0}, {200, 200}});
    const auto front = touchedView(window_, {{100, 100}, {200, 200}});
    EXPECT_EQ(window_.hitTest({150, 150}, nullptr), front);
    EXPECT_EQ(window_.hitTest({50, 50}, nullptr), back);
    EXPECT_EQ(window_.hitTest({350, 350}, nullptr), window_);
    EXPECT_FALSE(window_.hitTest({-1, 0}, nullptr));

    front.setHidden(true);
    EXPECT_EQ(window_.hitTest({150, 150}, nullptr), back);
    front.setHidden(false);
    front.setAlpha(0.005);
    EXPECT_EQ(window_.hitTest({150, 150}, nullptr), back);
    front.setAlpha(0.02);
    EXPECT_EQ(window_.hitTest({150, 150}, nullptr), front);
    front.setUserInteractionEnabled(false);
    EXPECT_EQ(window_.hitTest({150, 150}, nullptr), back);

    const auto inner = touchedView(back, {{150, 0}, {100, 20}});
    EXPECT_EQ(window_.hitTest({199, 10}, nullptr), inner);
    EXPECT_EQ(window_.hitTest({220, 10}, nullptr), window_) << "outside of its superview";
    back.setTransform({0.5, 0, 0, 0.5, 0, 0}); // covers (50, 50) to (150, 150)
    EXPECT_EQ(window_.hitTest({148, 52}, nullptr), inner);
    EXPECT_EQ(window_.hitTest({40, 40}, nullptr), window_);
}

TEST_F(TouchDelivery, ATouchStaysWithItsViewAndTellsWhereItIs) {
    const auto view = touchedView(window_, {{100, 100}, {50, 50}});
    objc::Strong<ui::Touch> touch;
    TouchedView::of(view).then = [&](ui::Touch one) { touch = one; };
    down({110, 120});
    move({300, 120});
    EXPECT_EQ(touch.view(), view);
    EXPECT_EQ(touch.window(), window_);
    EXPECT_EQ(touch.phase(), ui::TouchPhase::moved);
    EXPECT_EQ(touch.locationIn(nullptr), (CGPoint{300, 120}));
    EXPECT_EQ(touch.locationIn(view), (CGPoint{200, 20}));
    EXPECT_EQ(touch.previousLocationIn(view), (CGPoint{10, 20}));
    move({310, 125});
    EXPECT_EQ(touch.previousLocationIn(view), (CGPoint{200, 20}));
    up();
    EXPECT_EQ(seen(view), "bmme");
    tap({110, 120});
    tap({110, 120});
    EXPECT_EQ(touch.tapCount(), 2U) << "the first one had been a drag";
}

TEST_F(TouchDelivery, WhatAViewDoesNotHandleItsSuperviewGets) {
    const auto outer = touchedView(window_, {{0, 0}, {100, 100}});
    outer.addSubview(ui::View::withFrame({{0, 0}, {50, 50}}));
    tap({10, 10});
    EXPECT_EQ(seen(outer), "be");
}

TEST_F(TouchDelivery, OnlyViewsThatAskForItGetSeveralFingers) {
    const auto view = touchedView(window_, {{0, 0}, {100, 100}});
    down({10, 10}, 1);
    down({20, 20}, 2);
    up(1);
    up(2);
    EXPECT_EQ(seen(view), "be");
    view.send<"setMultipleTouchEnabled:">(true);
    for (std::int64_t id = 0; id < 10; ++id) {
        down({10, 10}, id);
    }
    EXPECT_EQ(seen(view), "bebbbbbbbbbb");
    for (std::int64_t id = 0; id < 10; ++id) {
        up(id);
    }
    EXPECT_EQ(seen(view), "bebbbbbbbbbbeeeeeeeeee");
}

TEST_F(TouchDelivery, AViewMayLeaveInItsOwnHandler) {
    {
        const objc::Pool inner;
        const auto view = touchedView(window_, {{0, 0}, {100, 100}});
        recognizer<ui::GestureRecognizer>(view);
        TouchedView::of(view).then = [](ui::Touch touch) { touch.view().removeFromSuperview(); };
        down({10, 10});
    }
    move({20, 20});
    up();
    EXPECT_EQ(window_.subviews().count(), 0U);
}

TEST_F(TouchDelivery, AFingerMayLeaveElsewhereWithoutMovingThere) {
    const auto view = touchedView(window_, {{100, 100}, {50, 50}});
    CGPoint last;
    TouchedView::of(view).then = [&](ui::Touch touch) { last = touch.locationIn(nullptr); };
    recognizer<ui::TapGestureRecognizer>(view);
    const auto leaveAt = [](CGPoint point) {
        desktop::TouchDispatcher::shared().place(std::array{desktop::TouchPoint{0, point}});
        up();
    };
    down({110, 120});
    leaveAt({110, 120});
    EXPECT_EQ(takeStates().size(), 1U);
    down({110, 120});
    leaveAt({300, 400});
    EXPECT_EQ(last, (CGPoint{300, 400}));
    EXPECT_EQ(seen(view).find('m'), std::string::npos) << seen(view);
    EXPECT_EQ(takeStates().size(), 0U) << "a finger that went so far does not tap";
}

TEST_F(TouchDelivery, TheNextViewMayGoInAnInnerOnesHandler) {
    objc::Weak<ui::View> known;
    {
        const objc::Pool inner;
        const auto outer = touchedView(window_, {{0, 0}, {100, 100}});
        outer.addSubview(ui::View::withFrame({{0, 0}, {50, 50}}));
        TouchedView::of(outer).then = [](ui::Touch touch) {
            touch.view().superview().removeFromSuperview();
        };
        known = outer;
    }
    tap({10, 10});
    EXPECT_FALSE(known);
}

TEST_F(TouchDelivery, UnknownFingersAndPlacesWithoutAViewAreSurvived) {
    down({-100, -100});
    down({10, 10}); // the same finger again
    move({5, 5}, 99);
    up(99);
    up();
    EXPECT_FALSE(desktop::TouchDispatcher::shared().isDown(0));
}

} // namespace
