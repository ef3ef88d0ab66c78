// The application object and its list of windows.
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/url_openers.hpp"

#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/uikit/application/window.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/text/text_effects_window.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"

#include <algorithm>
#include <string_view>

namespace desktop {

ui::Application Application::sharedApplication(Class) {
    static const auto* application = new objc::Strong(ui::Application::make());
    return *application;
}

Application& Application::shared() { return of(sharedApplication(nullptr)); }

ns::Array Application::windows() const {
    const auto array = ns::MutableArray::make();
    for (const ui::Window window : windows_) {
        if (!window.as<TextEffectsWindowKind>()) {
            array.add(window); // the keyboard's is the system's
        }
    }
    return array;
}

bool Application::sendAction(SEL action, objc::Object target, objc::Object sender,
                             ui::Event event) {
    if (action == nullptr) {
        return false;
    }
    if (!target) {
        target = first_responder::current().targetForAction(action, sender);
    }
    if (!target) {
        target = sender.as<ui::Responder>().targetForAction(action, sender);
    }
    switch (std::ranges::count(std::string_view(sel_getName(action)), ':')) {
    case 0:
        objc::sendTo(target.raw(), action);
        break;
    case 1:
        objc::sendTo(target.raw(), action, sender);
        break;
    default:
        objc::sendTo(target.raw(), action, sender, event);
    }
    return static_cast<bool>(target);
}

void Application::show(ui::Window window) {
    std::erase(windows_, window);
    const double level = Window::of(window).level();
    const auto place = std::ranges::find_if(
        windows_, [level](ui::Window other) { return Window::of(other).level() > level; });
    windows_.insert(place, window);
    ScreenChanges::shared().announce();
}

ns::String Application::contentSizeCategory() const {
    return ns::String::from(categoryOf(screenTraits().contentSize));
}

/// Every application is installed, as far as one can tell.
bool Application::canOpenUrl(ns::Url url) const {
    return url.send<"scheme", ns::String>().length() > 0;
}

bool Application::openUrl(ns::Url url) {
    if (!canOpenUrl(url)) {
        return false;
    }
    using namespace ns::literals;
    const auto fields = ns::MutableDictionary::make();
    fields.set(url.absoluteString(), u"url"_ns);
    fields.set(ns::String::from(openerOf(url.send<"scheme", ns::String>().utf16())), u"by"_ns);
    EventLog::shared().record("openURL", fields);
    return true;
}

void Application::openUrlWithOptions(ns::Url url, ns::Dictionary,
                                     objc::Block<void(bool opened)> completion) {
    using Completion = objc::Block<void(bool opened)>;
    const bool opened = openUrl(url);
    if (completion) {
        MainQueue::shared().add(
            [opened, done = objc::Copied<Completion>(completion)] { done(opened); });
    }
}

void Application::forget(ui::Window window) {
    std::erase(windows_, window);
    ScreenChanges::shared().announce();
    passKey(window);
}

void Application::passKey(ui::Window window) {
    if (keyWindow_ != window) {
        return;
    }
    const auto next = std::ranges::find_if(windows_.rbegin(), windows_.rend(), [=](auto other) {
        return other != window && !other.isHidden() && !other.template as<TextEffectsWindowKind>();
    });
    keyWindow_ = next == windows_.rend() ? ui::Window() : *next;
}

} // namespace desktop
