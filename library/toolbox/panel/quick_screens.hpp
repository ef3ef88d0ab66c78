// The screens that long presses of the panel's buttons open: the copied texts, the quick switches,
// the utilities and the crash reports.
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
            objc::method<"longPress:", &QuickScreens::showUtilities>(),
            objc::method<"handlerzLongPress:", &QuickScreens::showCrashReports>(),
        };
    }

private:
    void showClipboard(ui::LongPressGestureRecognizer press) const;
    void showSwitches(ui::LongPressGestureRecognizer press) const;
    void showUtilities(ui::LongPressGestureRecognizer press) const;
    void showCrashReports(ui::LongPressGestureRecognizer press) const;
};

} // namespace wentra::toolbox
