// UIControl: a view that people operate; touches become events, and events actions.
#pragma once

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
        objc::Object target; // not retained, as on the phone
        SEL action;
        unsigned long events;
    };

    void addTarget(objc::Object target, SEL action, unsigned long events);
    void removeTarget(objc::Object target, SEL action, unsigned long events);
    void sendActions(unsigned long events) { sendActions(events, nullptr); }
    void sendActions(unsigned long events, ui::Event event);
    void sendAction(SEL action, objc::Object target, ui::Event event);
    void touchesBegan(ns::Set touches, ui::Event event);
    void touchesMoved(ns::Set touches, ui::Event event);
    void touchesEnded(ns::Set touches, ui::Event event);
    void touchesCancelled(ns::Set touches, ui::Event event);
    [[nodiscard]] bool gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const;
    [[nodiscard]] unsigned long state() const;
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
