// Scroll views under fingers: dragging, and what moves on by itself afterwards.
#include "bindings/uikit/control.hpp"
#include "desktop/quartzcore/animation/frame_clock.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"
#include "desktop/uikit/scrolling/scroll_view.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

void ScrollPan::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event) {
    super<"touchesBegan:withEvent:">(touches, event);
    if (owner != nullptr) {
        owner->fingerDown();
    }
}

void ScrollPan::reset() {
    super<"reset">();
    if (owner != nullptr) {
        owner->fingersGone();
    }
}

ScrollView::~ScrollView() {
    if (pan_) {
        ScrollPan::of(pan_).owner = nullptr;
    }
}

void ScrollView::fingerDown() {
    if (!std::exchange(touched_, true)) {
        touchedAt_ = Clock::shared().now();
    }
    stop();
}

void ScrollView::fingersGone() {
    if (std::exchange(touched_, false) && !dragging_ && !motion_ &&
        nearest(contentOffset()) != contentOffset()) {
        release({}); // it was stopped on its way back
    }
}

bool ScrollView::scrollsHorizontally() const {
    const ScrollRange range = horizontalRange();
    return range.high > range.low || (bounces_ && alwaysBounceHorizontal_);
}

bool ScrollView::scrollsVertically() const {
    const ScrollRange range = verticalRange();
    return range.high > range.low || (bounces_ && alwaysBounceVertical_);
}

/// What a finger has rested on for a while may keep it: a control, and anything when the scroll
/// view must not take touches back.
bool ScrollView::contentKeepsTouch() const {
    constexpr double patience = 0.15; // as on the phone
    if (delaysContentTouches_ && Clock::shared().now() - touchedAt_ < patience) {
        return false;
    }
    const ui::View content = self().hitTest(pan_.locationIn(self()), nullptr);
    return content && content != self() &&
           !(canCancelContentTouches_ &&
             self().send<"touchesShouldCancelInContentView:", bool>(content));
}

bool ScrollView::shouldCancelIn(ui::View content) const { return !content.as<ui::Control>(); }

/// A drag along an axis that does not scroll is somebody else's.
bool ScrollView::gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const {
    if (recognizer != pan_) {
        return super<"gestureRecognizerShouldBegin:", bool>(recognizer);
    }
    if (contentKeepsTouch()) {
        return false;
    }
    const CGPoint way = pan_.translationIn(self());
    return std::abs(way.y) >= std::abs(way.x) ? scrollsVertically() : scrollsHorizontally();
}

void ScrollView::handlePan(ui::PanGestureRecognizer pan) {
    const objc::Strong<ui::ScrollView> kept = self(); // a delegate may drop it
    switch (pan.state()) {
    case ui::GestureState::began:
        beginDrag();
        follow();
        break;
    case ui::GestureState::changed:
        follow();
        break;
    case ui::GestureState::ended: {
        const CGPoint velocity = pan.velocityIn(self());
        Keyboard::shared().letGo(velocity.y);
        release({drag_.horizontal ? -velocity.x : 0, drag_.vertical ? -velocity.y : 0});
        break;
    }
    default:
        Keyboard::shared().letGo(0);
        release({});
    }
}

void ScrollView::beginDrag() {
    stop();
    const CGPoint offset = contentOffset();
    const CGSize room = self().bounds().size;
    const CGPoint way = pan_.translationIn(self());
    const double length = std::hypot(way.x, way.y);
    // What it took to tell the drag does not move the content, which would jump.
    const double slack = length > 0 ? std::min(1.0, dragDistance / length) : 0;
    const bool isUpright = std::abs(way.y) >= std::abs(way.x);
    drag_ = {{wantedOffset(offset.x, horizontalRange(), room.width) + way.x * slack,
              wantedOffset(offset.y, verticalRange(), room.height) + way.y * slack},
             offset,
             scrollsHorizontally() && !(directionalLock_ && isUpright),
             scrollsVertically() && !(directionalLock_ && !isUpright)};
    dragging_ = true;
    showIndicators();
    tell<"scrollViewWillBeginDragging:">();
    if (keyboardDismissMode_ == ui::KeyboardDismissMode::onDrag) {
        Keyboard::shared().dismiss();
    }
}

void ScrollView::follow() {
    if (!dragging_) {
        return;
    }
    const CGPoint way = pan_.translationIn(self());
    const CGSize room = self().bounds().size;
    CGPoint offset = contentOffset();
    if (drag_.horizontal) {
        offset.x = draggedOffset(drag_.wanted.x - way.x, horizontalRange(), room.width, bounces_);
    }
    if (drag_.vertical) {
        offset.y = draggedOffset(drag_.wanted.y - way.y, verticalRange(), room.height, bounces_);
    }
    setContentOffset(offset);
    if (keyboardDismissMode_ == ui::KeyboardDismissMode::interactive) {
        Keyboard::shared().follow(pan_.locationIn(nullptr).y);
    }
}

Coast ScrollView::coast(double offset, double velocity, double start, double length,
                        ScrollRange range) const {
    if (pagingEnabled_ && range.nearest(offset) == offset) {
        return Coast::springing(offset, velocity,
                                pageTarget(start, offset, velocity, length, range));
    }
    return Coast::slowing(offset, velocity, range, decelerationRate_, bounces_);
}

void ScrollView::release(CGPoint velocity) {
    const CGPoint offset = contentOffset();
    const CGSize room = self().bounds().size;
    Coast x = coast(offset.x, velocity.x, drag_.start.x, room.width, horizontalRange());
    Coast y = coast(offset.y, velocity.y, drag_.start.y, room.height, verticalRange());
    if (!std::exchange(dragging_, false)) {
        decelerate(x, y);
        return;
    }
    constexpr double millisecondsPerSecond = 1'000;
    CGPoint target{x.rest(), y.rest()};
    tell<"scrollViewWillEndDragging:withVelocity:targetContentOffset:">(
        CGPoint{velocity.x / millisecondsPerSecond, velocity.y / millisecondsPerSecond}, &target);
    // The delegate may have chosen another place to come to rest at.
    if (target.x != x.rest() && std::isfinite(target.x)) {
        x = Coast::springing(offset.x, velocity.x, target.x);
    }
    if (target.y != y.rest() && std::isfinite(target.y)) {
        y = Coast::springing(offset.y, velocity.y, target.y);
    }
    const bool moves = CGPoint{x.rest(), y.rest()} != offset;
    tell<"scrollViewDidEndDragging:willDecelerate:">(objc::Boolean(moves));
    if (moves) {
        decelerate(x, y);
    } else {
        indicators_.fade();
    }
}

void ScrollView::decelerate(const Coast& x, const Coast& y) {
    decelerating_ = true;
    tell<"scrollViewWillBeginDecelerating:">();
    run({Clock::shared().now(), std::max(x.duration(), y.duration()),
         [x, y](double seconds) {
             return CGPoint{x.offset(seconds), y.offset(seconds)};
         },
         &ScrollView::endDecelerating});
}

void ScrollView::run(Motion motion) {
    showIndicators();
    motion_ = std::make_shared<Motion>(std::move(motion));
    FrameClock::shared().run([this, weak = std::weak_ptr(motion_)](double now) {
        const auto current = weak.lock(); // gone with the scroll view
        return current && advance(*current, now);
    });
}

bool ScrollView::advance(const Motion& motion, double now) {
    const objc::Strong<ui::ScrollView> kept = self(); // a delegate may drop it
    const double passed = now - motion.begin;
    setContentOffset(motion.offset(std::min(passed, motion.duration)));
    if (motion_.get() != &motion) {
        return false; // the delegate has begun another one
    }
    if (passed < motion.duration) {
        return true;
    }
    motion_.reset();
    indicators_.fade();
    (this->*motion.arrived)();
    return false;
}

void ScrollView::stop() {
    if (const auto motion = std::exchange(motion_, nullptr); motion) {
        indicators_.fade();
        (this->*motion->arrived)();
    }
}

void ScrollView::endDecelerating() {
    decelerating_ = false;
    tell<"scrollViewDidEndDecelerating:">();
}

void ScrollView::endAnimation() { tell<"scrollViewDidEndScrollingAnimation:">(); }

bool ScrollView::scrollBy(CGPoint points) {
    const CGPoint offset = contentOffset();
    const CGPoint target = nearest({offset.x + points.x, offset.y + points.y});
    if (!scrollEnabled_ || target == offset) {
        return false;
    }
    stop();
    showIndicators();
    setContentOffset(target);
    indicators_.fade();
    return true;
}

void ScrollView::contentMoved(double down) {
    drag_.wanted.y += down;
    drag_.start.y += down;
    if (motion_) {
        motion_->offset = [former = motion_->offset, down](double seconds) {
            const CGPoint offset = former(seconds);
            return CGPoint{offset.x, offset.y + down};
        };
    }
    const CGPoint offset = contentOffset();
    setContentOffset({offset.x, offset.y + down});
}

} // namespace desktop
