// UIControl: a view that people operate; touches become events, and events actions.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/control.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class Control : public PlatformClass<Control, ui::Control> {
public:
    static std::vector<objc::MethodRow> methods();

private:
    struct Target {
        objc::Weak<objc::Object> target;
        bool finds; ///< no target was named: whoever responds is one
        SEL action;
        ui::ControlEvents events;
    };

    void addTarget(objc::Object target, SEL action, ui::ControlEvents events);
    void removeTarget(objc::Object target, SEL action, ui::ControlEvents events);
    void sendActions(ui::ControlEvents events) { sendActions(events, nullptr); }
    void sendActions(ui::ControlEvents events, ui::Event event);
    void sendAction(SEL action, objc::Object target, ui::Event event);
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    [[nodiscard]] bool gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const;
    [[nodiscard]] ui::ControlState state() const;
    void stateChanged() { self().setNeedsLayout(); }

    std::vector<Target> targets_;
    long horizontal_ = 0;
    long vertical_ = 0;
    bool enabled_ = true;
    bool selected_ = false;
    bool highlighted_ = false;
    bool tracking_ = false;
};

} // namespace desktop
