// Controls: following a touch, and sending actions.
#include "desktop/uikit/controls/control.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/uikit/gestures/tap_gesture_recognizer.hpp"

#include <algorithm>

namespace desktop {
namespace {

using Events = ui::ControlEvents;

bool isInside(ui::Control control, ns::SetOf<ui::Touch> touches, ui::Event event) {
    const auto touch = touches.allObjects().first();
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
                     static_cast<void (Control::*)(ui::ControlEvents)>(&Control::sendActions)>(),
        objc::method<"sendAction:to:forEvent:", &Control::sendAction>(),
        objc::method<"touchesBegan:withEvent:", &Control::touchesBegan>(),
        objc::method<"touchesMoved:withEvent:", &Control::touchesMoved>(),
        objc::method<"touchesEnded:withEvent:", &Control::touchesEnded>(),
        objc::method<"touchesCancelled:withEvent:", &Control::touchesCancelled>(),
        objc::method<"gestureRecognizerShouldBegin:", &Control::gestureRecognizerShouldBegin>(),
    };
}

void Control::addTarget(objc::Object target, SEL action, ui::ControlEvents events) {
    if (action != nullptr) {
        targets_.push_back({target, !target, action, events});
    }
}

void Control::removeTarget(objc::Object target, SEL action, ui::ControlEvents events) {
    for (Target& one : targets_) {
        if ((!target || one.target == target) &&
            (action == nullptr || sel_isEqual(one.action, action) != 0)) {
            one.events = one.events & ~events;
        }
    }
    std::erase_if(targets_, [](const Target& one) { return one.events == Events(); });
}

void Control::sendActions(ui::ControlEvents events, ui::Event event) {
    const objc::Strong<ui::Control> kept = self();
    const auto targets = targets_; // a copy: an action may change them
    for (const Target& one : targets) {
        const auto target = one.target.strong();
        if (objc::haveAny(one.events, events) && (target || one.finds)) {
            kept.send<"sendAction:to:forEvent:">(one.action, target.raw(), event);
        }
    }
}

void Control::sendAction(SEL action, objc::Object target, ui::Event event) {
    ui::Application::sharedApplication().send<"sendAction:to:from:forEvent:", bool>(
        action, target, static_cast<objc::Object>(self()), event);
}

void Control::touchesBegan(ns::SetOf<ui::Touch>, ui::Event event) {
    if (enabled_) {
        tracking_ = true;
        self().setHighlighted(true);
        sendActions(Events::touchDown, event);
    }
}

void Control::touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event) {
    if (tracking_) {
        const bool inside = isInside(self(), touches, event);
        self().setHighlighted(inside);
        sendActions(inside ? Events::touchDragInside : Events::touchDragOutside, event);
    }
}

void Control::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event) {
    if (std::exchange(tracking_, false)) {
        self().setHighlighted(false);
        sendActions(isInside(self(), touches, event) ? Events::touchUpInside
                                                     : Events::touchUpOutside,
                    event);
    }
}

void Control::touchesCancelled(ns::SetOf<ui::Touch>, ui::Event event) {
    if (std::exchange(tracking_, false)) {
        self().setHighlighted(false);
        sendActions(Events::touchCancel, event);
    }
}

/// A tap on a control is the control's, not that of a view around it.
bool Control::gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const {
    const auto tap = recognizer.as<ui::TapGestureRecognizer>();
    return recognizer.view() == self() || !enabled_ || !tap ||
           !TapGestureRecognizer::of(tap).isSimple();
}

ui::ControlState Control::state() const {
    using enum ui::ControlState;
    return (highlighted_ ? highlighted : normal) | (enabled_ ? normal : disabled) |
           (selected_ ? selected : normal);
}

} // namespace desktop
