// Where the panel's screens come up.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/uikit/window.hpp"
#include "library/common/screens.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// Presents a screen of a tool over what the host shows, animated; from the controller itself where
/// the host has no controller.
void presentOverHost(FloatingViewController controller, ui::ViewController screen);

/// The host's windows and screens under the controller's selectors.
class HostScreens : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static HostScreens& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::method<"getWindow", &ScreenLookups::window>(),
            objc::method<"getCurrentViewController", &ScreenLookups::controller>(),
            objc::method<"keyWindow", &ScreenLookups::first>(),
            objc::method<"adaptivePresentationStyleForPresentationController:",
                         &HostScreens::adapted>(),
        };
    }

private:
    /// Popovers stay popovers on a phone.
    [[nodiscard]] ui::ModalPresentation adapted(objc::Object) const {
        return ui::ModalPresentation::none;
    }
};

} // namespace wentra::toolbox
