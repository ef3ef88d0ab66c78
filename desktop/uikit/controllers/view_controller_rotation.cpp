// Controllers and the turning of the phone: handing the news on, and what they support.
#include "desktop/uikit/controllers/view_controller.hpp"

namespace desktop {

void ViewController::viewWillTransition(CGSize size, objc::Object coordinator) {
    const auto children = children_; // a copy: whoever is told may change them
    for (const auto& child : children) {
        child.send<"viewWillTransitionToSize:withTransitionCoordinator:">(size, coordinator);
    }
    presented_.send<"viewWillTransitionToSize:withTransitionCoordinator:">(size, coordinator);
}

void ViewController::willTransition(ui::TraitCollection traits, objc::Object coordinator) {
    const auto children = children_;
    for (const auto& child : children) {
        child.send<"willTransitionToTraitCollection:withTransitionCoordinator:">(traits,
                                                                                 coordinator);
    }
    presented_.send<"willTransitionToTraitCollection:withTransitionCoordinator:">(traits,
                                                                                  coordinator);
}

/// A phone's, unless a controller says otherwise: all but upside down.
unsigned long ViewController::supportedOrientations() const {
    constexpr unsigned long portrait = 1U << 1U;
    constexpr unsigned long landscapeRight = 1U << 3U;
    constexpr unsigned long landscapeLeft = 1U << 4U;
    return portrait | landscapeRight | landscapeLeft;
}

} // namespace desktop
