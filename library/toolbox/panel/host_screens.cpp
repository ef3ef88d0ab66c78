// The lookups of the host's windows and controllers under their selectors.
#include "library/toolbox/panel/host_screens.hpp"

#include "bindings/uikit/application.hpp"

namespace wentra::toolbox {

void presentOverHost(FloatingViewController controller, ui::ViewController screen) {
    constexpr bool animated = true;
    const ui::ViewController host = topViewController();
    (host ? host : ui::ViewController(controller)).present(screen, animated);
}

ui::Window HostScreens::first() const {
    return ui::Application::sharedApplication().windows().first().assume<ui::Window>();
}

} // namespace wentra::toolbox
