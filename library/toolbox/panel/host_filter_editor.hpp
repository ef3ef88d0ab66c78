// The editor of the list of blocked hosts.
#pragma once

#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// A text over the whole screen, with a button to save it and one to close it.
class HostFilterEditor : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static HostFilterEditor& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"adstextView", &HostFilterEditor::text_>(),
            objc::method<"longPressedStopRecordButton:", &HostFilterEditor::open>(),
            objc::method<"saveContent:", &HostFilterEditor::save>(),
            objc::method<"close1ButtonPressed:", &HostFilterEditor::close>(),
            objc::method<"keyboardWillShow:", &HostFilterEditor::keyboardAppears>(),
            objc::method<"keyboardWillHide:", &HostFilterEditor::keyboardDisappears>(),
        };
    }

private:
    void open(ui::LongPressGestureRecognizer press);
    void save(objc::Object sender);
    void close(objc::Object sender);
    void keyboardAppears(ns::Notification notification);
    void keyboardDisappears(ns::Notification notification);

    objc::Strong<ui::TextView> text_; // nil while the editor is closed
};

} // namespace wentra::toolbox
