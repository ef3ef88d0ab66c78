// The lookups of the host's windows and controllers under their selectors.
#include "library/toolbox/panel/host_screens.hpp"

#include "library/common/animated.hpp"

namespace wentra::toolbox {

void presentOverHost(FloatingViewController controller, ui::ViewController screen) {
    const ui::ViewController host = topViewController();
    (host ? host : ui::ViewController(controller)).present(screen, animated);
}

} // namespace wentra::toolbox
