// Recognizers: their targets, and the touches that they follow.
#include "desktop/uikit/gestures/gesture_recognizer.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/uikit/events/touch.hpp"

#include <algorithm>

namespace desktop {

using namespace ns::literals;

std::vector<objc::MethodRow> GestureRecognizer::methods() {
    using Self = GestureRecognizer;
    return {
        objc::method<"init", &Self::init>(),
        objc::method<"initWithTarget:action:", &Self::initWithTarget>(),
        objc::method<"addTarget:action:", &Self::addTarget>(),
        objc::method<"removeTarget:action:", &Self::removeTarget>(),
        objc::method<"view", &Self::view>(),
        objc::property<"state", &Self::state, &Self::setState>(),
        objc::flag<"enabled", &Self::enabled_, &Self::enabledChanged>(),
        objc::property<"delegate", &Self::delegate_>(),
        objc::property<"cancelsTouchesInView", &Self::cancelsTouchesInView_>(),
        objc::method<"requireGestureRecognizerToFail:", &Self::requireToFail>(),
        objc::method<"numberOfTouches", &Self::numberOfTouches>(),
        objc::method<"locationInView:", &Self::locationIn>(),
        objc::method<"locationOfTouch:inView:", &Self::locationOfTouch>(),
        objc::method<"canPreventGestureRecognizer:", &Self::canPrevent>(),
        objc::method<"canBePreventedByGestureRecognizer:", &Self::canBePreventedBy>(),
        objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
        objc::method<"touchesMoved:withEvent:", &Self::touchesMoved>(),
        objc::method<"touchesEnded:withEvent:", &Self::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Self::touchesCancelled>(),
        objc::method<"reset", &Self::reset>(),
    };
}

ui::GestureRecognizer GestureRecognizer::initWithTarget(objc::Object target, SEL action) {
    addTarget(target, action);
    return self();
}

void GestureRecognizer::addTarget(objc::Object target, SEL action) {
    if (target && action != nullptr) {
        targets_.push_back({target, action});
    }
}

void GestureRecognizer::removeTarget(objc::Object target, SEL action) {
    std::erase_if(targets_, [=](const Target& one) {
        return (!target || one.target == target) &&
               (action == nullptr || sel_isEqual(one.action, action) != 0);
    });
}

void GestureRecognizer::setView(ui::View view) {
    if (view != view_) {
        abandon();
    }
    view_ = view;
}

void GestureRecognizer::enabledChanged() {
    if (!enabled_) {
        abandon();
    }
}

void GestureRecognizer::requireToFail(ui::GestureRecognizer other) {
    if (other && other != self()) {
        mustFailFirst_.emplace_back(other);
    }
}

CGPoint GestureRecognizer::locationIn(ui::View view) const {
    std::vector<Finger> noted;
    for (const CGPoint point : points_) {
        noted.push_back({point, point});
    }
    return fromWindow(window_, centroid(noted), view);
}

CGPoint GestureRecognizer::locationOfTouch(unsigned long index, ui::View view) const {
    if (index >= points_.size()) {
        ns::Exception::with(u"NSRangeException"_ns, u"no such touch"_ns).raise();
    }
    return fromWindow(window_, points_[index], view);
}

CGPoint GestureRecognizer::vectorIn(ui::View view, CGPoint vector) const {
    const CGPoint start = fromWindow(window_, {}, view);
    const CGPoint end = fromWindow(window_, vector, view);
    return {end.x - start.x, end.y - start.y};
}

CGPoint GestureRecognizer::vectorFrom(ui::View view, CGPoint vector) const {
    if (!window_ || !view) {
        return vector;
    }
    const CGPoint start = view.convertPoint({}, window_);
    const CGPoint end = view.convertPoint(vector, window_);
    return {end.x - start.x, end.y - start.y};
}

bool GestureRecognizer::receives(ui::Touch touch) {
    constexpr auto asked = &objc::selector<"gestureRecognizer:shouldReceiveTouch:">;
    const auto delegate = delegate_.strong();
    if (!enabled_ || (delegate.respondsToSelector(asked()) &&
                      !objc::sendTo<bool>(delegate.raw(), asked(), self(), touch))) {
        return false;
    }
    touches_.emplace_back(touch);
    window_ = touch.window();
    return true;
}

bool GestureRecognizer::follows(ui::Touch touch) const {
    return std::ranges::find(touches_, touch) != touches_.end();
}

void GestureRecognizer::forgetLifted() {
    std::erase_if(touches_, [](const auto& touch) { return !Touch::of(touch).isDown(); });
    if (touches_.empty() && (isOver() || !isUndecided())) {
        startAnew();
    }
}

/// Whether the rule still has a say.
bool GestureRecognizer::decides() const {
    return rule_ != nullptr && !isOver() && proposal_ == GestureStep::none;
}

std::vector<Finger> GestureRecognizer::fingers() const {
    std::vector<Finger> down;
    for (const auto& touch : touches_) {
        if (Touch::of(touch).isDown()) {
            down.push_back(Touch::of(touch).finger());
        }
    }
    return down;
}

void GestureRecognizer::notePoints(const std::vector<Finger>& fingers) {
    points_.clear();
    for (const Finger& finger : fingers) {
        points_.push_back(finger.point);
    }
}

void GestureRecognizer::touchesBegan(ns::SetOf<ui::Touch>, ui::Event) {
    notePoints(fingers());
    if (decides()) {
        take(rule_->down(fingers(), Clock::shared().now()));
    }
}

void GestureRecognizer::touchesMoved(ns::SetOf<ui::Touch>, ui::Event) {
    notePoints(fingers());
    if (decides()) {
        take(rule_->moved(fingers(), Clock::shared().now()));
    }
}

/// A finger may leave at another place than it was last seen at.
void GestureRecognizer::followToTheEnd() {
    std::vector<Finger> all;
    for (const auto& touch : touches_) {
        all.push_back(Touch::of(touch).finger());
    }
    if (decides() && !std::ranges::equal(all, points_, {}, &Finger::point)) {
        notePoints(all);
        take(rule_->moved(all, Clock::shared().now()));
    }
}

void GestureRecognizer::touchesEnded(ns::SetOf<ui::Touch>, ui::Event) {
    followToTheEnd();
    const auto left = fingers();
    if (decides()) {
        take(rule_->lifted(left, Clock::shared().now()));
    } else if (left.empty() && proposal_ == GestureStep::begin) {
        fail(); // it was over before it might begin
    }
}

void GestureRecognizer::touchesCancelled(ns::SetOf<ui::Touch>, ui::Event) { fail(); }

void GestureRecognizer::arm() {
    disarm();
    if (!decides() || !rule_->deadline()) {
        return;
    }
    deadline_ = Clock::shared().at(*rule_->deadline(), [recognizer = self()] {
        const objc::Pool pool;
        const objc::Strong<ui::GestureRecognizer> kept = recognizer; // an action may drop it
        of(kept).timeUp();
    });
}

void GestureRecognizer::disarm() { Clock::shared().cancel(std::exchange(deadline_, 0)); }

void GestureRecognizer::timeUp() {
    deadline_ = 0;
    if (decides()) {
        take(rule_->timeUp());
    }
    forgetLifted();
}

} // namespace desktop
