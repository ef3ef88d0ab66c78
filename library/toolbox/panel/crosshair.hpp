// Lines and numbers that tell where a finger presses the host's screen.
#pragma once

#include "bindings/foundation/notification.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <string>

namespace wentra::toolbox {

/// "X:1.00, Y:2.50"; a point that is not finite is told as printf tells it.
[[nodiscard]] std::string coordinateText(CGPoint point);

/// The crosshair, which is in the view of the host's top screen.
class Crosshair : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    ~Crosshair();
    static Crosshair& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"coordinateLabel", &Crosshair::label_>(),
            objc::property<"lineViewX", &Crosshair::across_>(),
            objc::property<"lineViewY", &Crosshair::down_>(),
            objc::method<"longPressGestureAction:", &Crosshair::pressed>(),
            objc::method<"sceneDidActivate:", &Crosshair::sceneActivated>(),
        };
    }

    /// Puts the lines and the label, unseen, into the view of the host's top screen and follows
    /// long presses on it; where the host has no screen yet, as soon as it has one.
    void attach();

private:
    void attachTo(ui::View screen);
    void sceneActivated(ns::Notification notification);
    void pressed(ui::LongPressGestureRecognizer finger);
    void showAt(CGPoint point, CGSize screen) const;
    void setAlpha(double alpha) const;

    objc::Strong<ui::Label> label_;
    objc::Strong<ui::View> across_;
    objc::Strong<ui::View> down_;
};

} // namespace wentra::toolbox
