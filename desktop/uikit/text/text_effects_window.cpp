// The one such window.
#include "desktop/uikit/text/text_effects_window.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/screen.hpp"

namespace desktop {

ui::Window TextEffectsWindow::shared() {
    static const auto* window = [] {
        const auto made =
            TextEffectsWindowKind::make<"initWithFrame:">(ui::Screen::mainScreen().bounds());
        constexpr double aboveAll = 10'000'001; // as on running phones
        made.send<"setWindowLevel:">(aboveAll);
        made.setHidden(false);
        return new objc::Strong<ui::Window>(made);
    }();
    return *window;
}

ui::View TextEffectsWindow::hitTest(CGPoint point, ui::Event event) const {
    const auto hit = super<"hitTest:withEvent:", ui::View>(point, event);
    return hit == self() ? ui::View() : hit;
}

} // namespace desktop
