// Keeping the phone's appearance, and spreading it.
#include "desktop/uikit/traits/screen_traits.hpp"

#include "bindings/foundation/notification_center.hpp"
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

ContentSize& screenContentSize() {
    static ContentSize size = ContentSize::large;
    return size;
}

} // namespace

Traits screenTraits() {
    const ScreenGeometry& geometry = ScreenGeometry::current();
    return phoneTraits(geometry.size, geometry.scale, screenStyle(), screenContentSize());
}

void setScreenStyle(ui::InterfaceStyle style) {
    if (std::exchange(screenStyle(), style) != style) {
        spreadScreenTraits();
    }
}

void setScreenContentSize(ContentSize size) {
    if (std::exchange(screenContentSize(), size) == size) {
        return;
    }
    spreadScreenTraits();
    using namespace ns::literals;
    const auto news = ns::MutableDictionary::make();
    news.set(ns::String::from(categoryOf(size)), u"UIContentSizeCategoryNewValueKey"_ns);
    ns::NotificationCenter::defaultCenter().post(u"UIContentSizeCategoryDidChangeNotification"_ns,
                                                 ui::Application::sharedApplication(), news);
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
