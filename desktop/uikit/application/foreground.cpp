// Telling the application, in the platform's order.
#include "desktop/uikit/application/foreground.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/home_screen.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"

#include <string_view>

namespace desktop {
namespace {

/// What the application is told at one moment, and by which names.
struct News {
    const char* delegateMessage;
    std::u16string_view applicationName;
    std::u16string_view sceneName;
};

constexpr News willLeave{
    "applicationWillResignActive:", u"UIApplicationWillResignActiveNotification",
    u"UISceneWillDeactivateNotification"};
constexpr News hasLeft{
    "applicationDidEnterBackground:", u"UIApplicationDidEnterBackgroundNotification",
    u"UISceneDidEnterBackgroundNotification"};
constexpr News willEnter{
    "applicationWillEnterForeground:", u"UIApplicationWillEnterForegroundNotification",
    u"UISceneWillEnterForegroundNotification"};
constexpr News hasEntered{
    "applicationDidBecomeActive:", u"UIApplicationDidBecomeActiveNotification",
    u"UISceneDidActivateNotification"};

void post(std::u16string_view name, objc::Object object) {
    ns::NotificationCenter::defaultCenter().post(ns::String::from(name), object, nullptr);
}

void tell(const News& news) {
    const auto application = ui::Application::sharedApplication();
    const objc::Strong<objc::Object> delegate = application.send<"delegate", objc::Object>();
    const SEL message = sel_registerName(news.delegateMessage);
    if (delegate.respondsToSelector(message)) {
        objc::sendTo(delegate.raw(), message, application);
    }
    post(news.applicationName, application);
    post(news.sceneName, Application::shared().scene());
}

} // namespace

Foreground& Foreground::shared() {
    static Foreground foreground;
    return foreground;
}

ui::SceneActivationState Foreground::sceneState() const {
    using State = ui::SceneActivationState;
    return state_ == ApplicationState::active ? State::foregroundActive : State::background;
}

void Foreground::touched(CGPoint screenPoint) {
    const CGSize size = ScreenGeometry::current().size;
    const Rectangle icon = homeScreenIcon({size.width, size.height});
    const bool onIcon = screenPoint.x >= icon.x && screenPoint.x < icon.x + icon.width &&
                        screenPoint.y >= icon.y && screenPoint.y < icon.y + icon.height;
    if (onIcon && home_ && !locked_) {
        showHomeScreen(false);
    }
}

void Foreground::become(bool home, bool locked) {
    const bool had = hasApplication();
    home_ = home;
    locked_ = locked;
    ScreenChanges::shared().announce();
    if (had && !hasApplication()) {
        leave();
    } else if (!had && hasApplication()) {
        enter();
    }
}

void Foreground::leave() {
    TouchDispatcher::shared().cancelAll();
    tell(willLeave);
    state_ = ApplicationState::background;
    tell(hasLeft);
}

void Foreground::enter() {
    tell(willEnter);
    state_ = ApplicationState::active;
    tell(hasEntered);
}

} // namespace desktop
