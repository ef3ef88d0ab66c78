// The main screen.
#include "desktop/uikit/application/screen.hpp"

#include "bindings/objc/strong.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"

#include <utility>

namespace desktop {

ScreenGeometry& ScreenGeometry::current() {
    static ScreenGeometry geometry;
    return geometry;
}

namespace {

using ui::InterfaceOrientation;

bool isSideways(InterfaceOrientation orientation) {
    return orientation == InterfaceOrientation::landscapeLeft ||
           orientation == InterfaceOrientation::landscapeRight;
}

/// Held sideways, a phone shows no status bar.
UIEdgeInsets safeAreaOf(bool hasNotch, bool isLandscape) {
    if (isLandscape) {
        return hasNotch ? UIEdgeInsets{0, 47, 21, 47} : UIEdgeInsets{};
    }
    return hasNotch ? UIEdgeInsets{47, 0, 34, 0} : UIEdgeInsets{20, 0, 0, 0};
}

} // namespace

ScreenGeometry ScreenGeometry::upright(CGSize size, double scale) {
    ScreenGeometry geometry{size, scale, {}, InterfaceOrientation::portrait};
    geometry.safeArea = safeAreaOf(geometry.hasNotch(), false);
    return geometry;
}

ScreenGeometry ScreenGeometry::heldAs(InterfaceOrientation other) const {
    ScreenGeometry geometry = *this;
    geometry.orientation = other;
    if (isSideways(other) != isLandscape()) {
        std::swap(geometry.size.width, geometry.size.height);
    }
    geometry.safeArea = safeAreaOf(hasNotch(), isSideways(other));
    return geometry;
}

bool ScreenGeometry::isLandscape() const { return isSideways(orientation); }

bool ScreenGeometry::hasNotch() const {
    constexpr double shortestWithNotch = 780;
    return (isLandscape() ? size.width : size.height) >= shortestWithNotch;
}

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
