// The application object and its list of windows.
#include "desktop/uikit/application.hpp"

#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/window.hpp"

#include <algorithm>

namespace desktop {

ui::Application Application::sharedApplication(Class) {
    static const auto* application = new objc::Strong(ui::Application::make());
    return *application;
}

Application& Application::shared() { return of(sharedApplication(nullptr)); }

ns::Array Application::windows() const {
    const auto array = ns::MutableArray::make();
    for (const ui::Window window : windows_) {
        array.add(window);
    }
    return array;
}

void Application::show(ui::Window window) {
    std::erase(windows_, window);
    const double level = Window::of(window).level();
    const auto place = std::ranges::find_if(
        windows_, [level](ui::Window other) { return Window::of(other).level() > level; });
    windows_.insert(place, window);
    ScreenChanges::shared().announce();
}

void Application::forget(ui::Window window) {
    std::erase(windows_, window);
    ScreenChanges::shared().announce();
    if (keyWindow_ == window) {
        keyWindow_ = nullptr;
    }
}

} // namespace desktop
