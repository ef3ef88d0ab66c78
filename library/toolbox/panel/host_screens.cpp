// The lookups of the host's windows and controllers under their selectors.
#include "library/toolbox/panel/host_screens.hpp"

#include "bindings/uikit/application.hpp"
#include "library/common/screens.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

ui::Window window(FloatingViewController) { return activeWindow(); }

ui::ViewController top(FloatingViewController) { return topViewController(); }

ui::Window firstWindow(FloatingViewController) {
    return ui::Application::shared().windows().first().assume<ui::Window>();
}

ui::ModalPresentation adapted(FloatingViewController, objc::Object) {
    return ui::ModalPresentation::none;
}

} // namespace

void presentOverHost(FloatingViewController controller, ui::ViewController screen) {
    constexpr bool animated = true;
    const ui::ViewController host = topViewController();
    (host ? host : ui::ViewController(controller)).present(screen, animated);
}

std::span<const objc::Change> hostScreenCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "getWindow", &window>(),
        objc::addition<"ZKFloatingViewController", "getCurrentViewController", &top>(),
        objc::addition<"ZKFloatingViewController", "keyWindow", &firstWindow>(),
        objc::addition<"ZKFloatingViewController",
                       "adaptivePresentationStyleForPresentationController:", &adapted>(),
    };
    return changes;
}

} // namespace wentra::toolbox
