// Finding what the wheel scrolls.
#include "desktop/uikit/scrolling/wheel.hpp"

#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/scrolling/scroll_view.hpp"

#include "bindings/objc/pool.hpp"

namespace desktop {

bool turnWheel(CGPoint screenPoint, CGPoint points) {
    const objc::Pool pool;
    for (ui::View view = TouchDispatcher::viewAt(screenPoint); view; view = view.superview()) {
        const auto scrollView = view.as<ui::ScrollView>();
        if (scrollView && ScrollView::of(scrollView).scrollBy(points)) {
            return true;
        }
    }
    return false;
}

} // namespace desktop
