// The main screen.
#include "desktop/uikit/screen.hpp"

#include "bindings/objc/strong.hpp"

namespace desktop {

ScreenGeometry& ScreenGeometry::current() {
    static ScreenGeometry geometry;
    return geometry;
}

ui::Screen Screen::mainScreen(Class) {
    static const auto* screen = new objc::Strong(ui::Screen::make());
    return *screen;
}

CGRect Screen::nativeBounds() const {
    const auto& [size, scale, safeArea] = ScreenGeometry::current();
    return {{}, {size.width * scale, size.height * scale}};
}

} // namespace desktop
