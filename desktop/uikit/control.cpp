// Controls: following a touch, and sending actions.
#include "desktop/uikit/control.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/uikit/tap_gesture_recognizer.hpp"

#include <algorithm>

namespace desktop {
namespace {

namespace events = ui::control_events;

bool isInside(ui::Control control, ns::Set touches, ui::Event event) {
    const auto touch = touches.allObjects().first().assume<ui::Touch>();
    return control.pointInside(touch.locationIn(control), event);
}

} // namespace

std::vector<objc::MethodRow> Control::methods() {
    return {
        objc::flag<"enabled", &Control::enabled_, &Control::stateChanged>(),
        objc::flag<"selected", &Control::selected_, &Control::stateChanged>(),
        objc::flag<"highlighted", &Control::highlighted_, &Control::stateChanged>(),
        objc::property<"contentHorizontalAlignment", &Control::horizontal_,
                       &Control::stateChanged>(),
        objc::property<"contentVerticalAlignment", &Control::vertical_, &Control::stateChanged>(),
        objc::method<"isTracking", &Control::tracking_>(),
        objc::method<"state", &Control::state>(),
        objc::method<"addTarget:action:forControlEvents:", &Control::addTarget>(),
        objc::method<"removeTarget:action:forControlEvents:", &Control::removeTarget>(),
        objc::method<"sendActionsForControlEvents:",
                     static_cast<void (Control::*)(unsigned long)>(&Control::sendActions)>(),
        objc::method<"sendAction:to:forEvent:", &Control::sendAction>(),
        objc::method<"touchesBegan:withEvent:", &Control::touchesBegan>(),
        objc::method<"touchesMoved:withEvent:", &Control::touchesMoved>(),
        objc::method<"touchesEnded:withEvent:", &Control::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Control::touchesCancelled>(),
        objc::method<"gestureRecognizerShouldBegin:", &Control::gestureRecognizerShouldBegin>(),
    };
}

void Control::addTarget(objc::Object target, SEL action, unsigned long events) {
    if (action != nullptr) {
        targets_.push_back({target, action, events});
    }
}

void Control::removeTarget(objc::Object target, SEL action, unsigned long events) {
    for (Target& one : targets_) {
        if ((!target || one.target == target) &&
            (action == nullptr || sel_isEqual(one.action, action) != 0)) {
            one.events &= ~events;
        }
    }
    std::erase_if(targets_, [](const Target& one) { return one.events == 0; });
}

void Control::sendActions(unsigned long events, ui::Event event) {
    const auto targets = targets_; // a copy: an action may change them
    for (const Target& one : targets) {
        if ((one.events & events) != 0) {
            self().send<"sendAction:to:forEvent:">(one.action, one.target, event);
        }
    }
}

void Control::sendAction(SEL action, objc::Object target, ui::Event event) {
    ui::Application::shared().send<"sendAction:to:from:forEvent:", bool>(
        action, target, static_cast<objc::Object>(self()), event);
}

void Control::touchesBegan(ns::Set, ui::Event event) {
    if (enabled_) {
        tracking_ = true;
        self().setHighlighted(true);
        sendActions(events::touchDown, event);
    }
}

void Control::touchesMoved(ns::Set touches, ui::Event event) {
    if (tracking_) {
        const bool inside = isInside(self(), touches, event);
        self().setHighlighted(inside);
        sendActions(inside ? events::touchDragInside : events::touchDragOutside, event);
    }
}

void Control::touchesEnded(ns::Set touches, ui::Event event) {
    if (std::exchange(tracking_, false)) {
        self().setHighlighted(false);
        sendActions(isInside(self(), touches, event) ? events::touchUpInside
                                                     : events::touchUpOutside,
                    event);
    }
}

void Control::touchesCancelled(ns::Set, ui::Event event) {
    if (std::exchange(tracking_, false)) {
        self().setHighlighted(false);
        sendActions(events::touchCancel, event);
    }
}

/// A tap on a control is the control's, not that of a view around it.
bool Control::gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const {
    const auto tap = recognizer.as<ui::TapGestureRecognizer>();
    return recognizer.view() == self() || !enabled_ || !tap ||
           !TapGestureRecognizer::of(tap).isSimple();
}

unsigned long Control::state() const {
    return (highlighted_ ? ui::control_state::highlighted : 0) |
           (enabled_ ? 0 : ui::control_state::disabled) |
           (selected_ ? ui::control_state::selected : 0);
}

} // namespace desktop
