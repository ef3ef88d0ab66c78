// Finding what the wheel scrolls.
#include "desktop/uikit/scrolling/wheel.hpp"

#include "desktop/uikit/scroll_view.hpp"
#include "desktop/uikit/touch_dispatcher.hpp"

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
