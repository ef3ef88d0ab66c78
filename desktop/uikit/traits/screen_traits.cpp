// Keeping the phone's appearance, and spreading it.
#include "desktop/uikit/traits/screen_traits.hpp"

#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/views/view.hpp"

#include <vector>

namespace desktop {
namespace {

ui::InterfaceStyle& screenStyle() {
    static ui::InterfaceStyle style = ui::InterfaceStyle::light;
    return style;
}

} // namespace

Traits screenTraits() {
    const ScreenGeometry& geometry = ScreenGeometry::current();
    return phoneTraits(geometry.size, geometry.scale, screenStyle());
}

void setScreenStyle(ui::InterfaceStyle style) {
    if (std::exchange(screenStyle(), style) != style) {
        spreadScreenTraits();
    }
}

void spreadScreenTraits() {
    const auto& visible = Application::shared().visibleWindows();
    const std::vector<objc::Strong<ui::Window>> windows(visible.begin(), visible.end());
    for (const auto& window : windows) { // a copy: who is told may show and close windows
        View::of(window).inherit(screenTraits());
    }
    ScreenChanges::shared().announce(); // the system's own marks follow
}

} // namespace desktop
