// The screens behind two of the panel's buttons: the copied texts and the quick switches.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

class QuickScreens : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static QuickScreens& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"showClipboard:", &QuickScreens::showClipboard>(),
            objc::method<"handlePasteButtonLongPress:", &QuickScreens::showSwitches>(),
        };
    }

private:
    void showClipboard(ui::LongPressGestureRecognizer press) const;
    void showSwitches(ui::LongPressGestureRecognizer press) const;
};

} // namespace wentra::toolbox
