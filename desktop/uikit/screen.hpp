// UIScreen: the one screen, and the parts of it that bars and corners cover.
#pragma once

#include "bindings/uikit/application.hpp"

#include "desktop/class.hpp"

namespace desktop {

/// Size in points, pixels a point, and the margins that a phone without a home button keeps free.
struct ScreenGeometry {
    CGSize size{390, 844};
    double scale = 3;
    UIEdgeInsets safeArea{47, 0, 34, 0};

    /// The geometry in force, set once before the application starts.
    static ScreenGeometry& current();
};

class Screen : public PlatformClass<Screen, ui::Screen> {
public:
    static auto methods() {
        return std::array{
            objc::classMethod<"mainScreen", &Screen::mainScreen>(),
            objc::method<"bounds", &Screen::bounds>(),
            objc::method<"nativeBounds", &Screen::nativeBounds>(),
            objc::method<"scale", &Screen::scale>(),
            objc::method<"nativeScale", &Screen::scale>(),
        };
    }

private:
    static ui::Screen mainScreen(Class);
    [[nodiscard]] CGRect bounds() const { return {{}, ScreenGeometry::current().size}; }
    [[nodiscard]] CGRect nativeBounds() const;
    [[nodiscard]] double scale() const { return ScreenGeometry::current().scale; }
};

} // namespace desktop
