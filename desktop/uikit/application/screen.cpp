// The main screen.
#include "desktop/uikit/application/screen.hpp"

#include "bindings/objc/strong.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"

#include <utility>

namespace desktop {

namespace {

using ui::InterfaceOrientation;

bool isSideways(InterfaceOrientation orientation) {
    return orientation == InterfaceOrientation::landscapeLeft ||
           orientation == InterfaceOrientation::landscapeRight;
}

/// Held sideways, a phone shows no status bar. One with a home button has no home indicator to
/// keep clear of.
UIEdgeInsets safeAreaOf(const Device& device, bool isLandscape) {
    if (isLandscape) {
        return device.hasHomeButton() ? UIEdgeInsets{}
                                      : UIEdgeInsets{0, device.top, 21, device.top};
    }
    return {device.top, 0, device.hasHomeButton() ? 0.0 : 34.0, 0};
}

} // namespace

ScreenGeometry& ScreenGeometry::current() {
    static ScreenGeometry geometry = upright(usualDevice());
    return geometry;
}

ScreenGeometry ScreenGeometry::upright(const Device& device) {
    return {device.size, device.scale, safeAreaOf(device, false), InterfaceOrientation::portrait,
            device};
}

ScreenGeometry ScreenGeometry::heldAs(InterfaceOrientation other) const {
    ScreenGeometry geometry = *this;
    geometry.orientation = other;
    if (isSideways(other) != isLandscape()) {
        std::swap(geometry.size.width, geometry.size.height);
    }
    geometry.safeArea = safeAreaOf(device, isSideways(other));
    return geometry;
}

bool ScreenGeometry::isLandscape() const { return isSideways(orientation); }

ui::Screen Screen::mainScreen(Class) {
    static const auto* screen = new objc::Strong(ui::Screen::make());
    return *screen;
}

CGRect Screen::nativeBounds() const {
    const ScreenGeometry upright =
        ScreenGeometry::current().heldAs(ui::InterfaceOrientation::portrait);
    return {{}, {upright.size.width * upright.scale, upright.size.height * upright.scale}};
}

ui::TraitCollection Screen::traitCollection() const {
    return TraitCollection::with(screenTraits());
}

} // namespace desktop
