// UIScreen: the one screen, and the parts of it that bars and corners cover.
#pragma once

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/trait_collection.hpp"
#include "bindings/uikit/window_scene.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/application/device.hpp"

namespace desktop {

/// Size in points as the phone is held, pixels a point, and the margins that bars and corners take.
struct ScreenGeometry {
    CGSize size;
    double scale;
    UIEdgeInsets safeArea;
    ui::InterfaceOrientation orientation;
    Device device;

    [[nodiscard]] static ScreenGeometry upright(const Device& device);
    /// The same phone in another orientation.
    [[nodiscard]] ScreenGeometry heldAs(ui::InterfaceOrientation other) const;
    [[nodiscard]] bool isLandscape() const;

    /// The geometry in force.
    static ScreenGeometry& current();
};

class Screen : public PlatformClass<Screen, ui::Screen> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"mainScreen", &Screen::mainScreen>(),
            objc::method<"bounds", &Screen::bounds>(),
            objc::method<"nativeBounds", &Screen::nativeBounds>(),
            objc::method<"scale", &Screen::scale>(),
            objc::method<"nativeScale", &Screen::scale>(),
            objc::method<"traitCollection", &Screen::traitCollection>(),
        };
    }

private:
    static ui::Screen mainScreen(Class);
    [[nodiscard]] CGRect bounds() const { return {{}, ScreenGeometry::current().size}; }
    [[nodiscard]] CGRect nativeBounds() const;
    [[nodiscard]] double scale() const { return ScreenGeometry::current().scale; }
    [[nodiscard]] ui::TraitCollection traitCollection() const;
};

} // namespace desktop
