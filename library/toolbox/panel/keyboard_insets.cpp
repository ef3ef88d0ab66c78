// The keyboard's notifications and the editor's insets.
#include "library/toolbox/panel/keyboard_insets.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/keyboard.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "library/common/screens.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

void setInsets(ui::TextView editor, UIEdgeInsets insets) {
    editor.setContentInset(insets);
    editor.setScrollIndicatorInsets(insets);
}

void appearing(FloatingViewController controller, ns::Notification notification) {
    const CGRect keyboard = ui::keyboard::frameEnd(notification);
    const CGRect bar = controller.navigationController().navigationBar().frame();
    setInsets(controller.adstextView(),
              {keyWindow().safeAreaInsets().top + bar.size.height, 0, keyboard.size.height, 0});
}

void disappearing(FloatingViewController controller, ns::Notification) {
    UIEdgeInsets insets = controller.adstextView().contentInset();
    insets.bottom = 0;
    setInsets(controller.adstextView(), insets);
}

} // namespace

void watchKeyboard(FloatingViewController controller) {
    const auto center = ns::NotificationCenter::defaultCenter();
    center.addObserver(controller, objc::selector<"keyboardWillShow:">(), ui::keyboard::willShow(),
                       nullptr);
    center.addObserver(controller, objc::selector<"keyboardWillHide:">(), ui::keyboard::willHide(),
                       nullptr);
}

void leaveKeyboard(FloatingViewController controller) {
    const auto center = ns::NotificationCenter::defaultCenter();
    center.removeObserver(controller, ui::keyboard::willShow(), nullptr);
    center.removeObserver(controller, ui::keyboard::willHide(), nullptr);
}

std::span<const objc::Change> keyboardCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "keyboardWillShow:", &appearing>(),
        objc::addition<"ZKFloatingViewController", "keyboardWillHide:", &disappearing>(),
    };
    return changes;
}

} // namespace wentra::toolbox
