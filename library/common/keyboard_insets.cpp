// The keyboard's notifications, and insets.
#include "library/common/keyboard_insets.hpp"

#include "bindings/uikit/keyboard.hpp"
#include "bindings/uikit/navigation_controller.hpp"

namespace wentra {

void watchKeyboard(objc::Object observer) {
    const auto center = ns::NotificationCenter::defaultCenter();
    center.addObserver(observer, objc::selector<"keyboardWillShow:">(), ui::keyboard::willShow(),
                       nullptr);
    center.addObserver(observer, objc::selector<"keyboardWillHide:">(), ui::keyboard::willHide(),
                       nullptr);
}

void stopWatchingKeyboard(objc::Object observer) {
    const auto center = ns::NotificationCenter::defaultCenter();
    center.removeObserver(observer, ui::keyboard::willShow(), nullptr);
    center.removeObserver(observer, ui::keyboard::willHide(), nullptr);
}

void setInsets(ui::ScrollView view, const UIEdgeInsets& insets) {
    view.setContentInset(insets);
    view.setScrollIndicatorInsets(insets);
}

void keepClear(ui::ScrollView view, ui::Window window, ui::ViewController controller,
               ns::Notification keyboard) {
    const bool goes = keyboard.name().isEqual(ui::keyboard::willHide());
    const double height = goes ? 0 : ui::keyboard::frameEnd(keyboard).size.height;
    // These insets have the safe area in them already.
    view.setContentInsetAdjustmentBehavior(ui::ContentInsetAdjustmentBehavior::never);
    const double bar = controller.navigationController().navigationBar().frame().size.height;
    setInsets(view, {window.safeAreaInsets().top + bar, 0, height, 0});
}

} // namespace wentra
