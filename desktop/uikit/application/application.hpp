// UIApplication: the one application, its windows and its scene.
#pragma once

#include "bindings/foundation/set.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/window_scene.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/application/foreground.hpp"

#include <vector>

namespace desktop {

class Application : public PlatformClass<Application, ui::Application> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"sharedApplication", &Application::sharedApplication>(),
            objc::method<"windows", &Application::windows>(),
            objc::method<"keyWindow", &Application::keyWindow>(),
            objc::method<"connectedScenes", &Application::connectedScenes>(),
            objc::method<"applicationState", &Application::applicationState>(),
            objc::method<"preferredContentSizeCategory", &Application::contentSizeCategory>(),
            objc::method<"canOpenURL:", &Application::canOpenUrl>(),
            objc::method<"openURL:", &Application::openUrl>(),
            objc::method<"openURL:options:completionHandler:", &Application::openUrlWithOptions>(),
            objc::method<"sendAction:to:from:forEvent:", &Application::sendAction>(),
            objc::property<"delegate", &Application::delegate_>(),
        };
    }

    static Application& shared();

    [[nodiscard]] ui::WindowScene scene() const { return scene_; }
    [[nodiscard]] ui::Window keyWindow() const { return keyWindow_; }
    void setKeyWindow(ui::Window window) { keyWindow_ = window; }
    /// Lists a window that has become visible, by its level and before those of higher levels. As
    /// on the phone, the application does not own its windows.
    void show(ui::Window window);
    void forget(ui::Window window);
    /// A window that was the key one leaves that to the frontmost visible one; nil when none is.
    void passKey(ui::Window window);
    [[nodiscard]] const std::vector<ui::Window>& visibleWindows() const { return windows_; }

private:
    static ui::Application sharedApplication(Class);
    [[nodiscard]] ns::Array windows() const;
    [[nodiscard]] ns::Set connectedScenes() const { return ns::Set::withObject(scene_); }
    [[nodiscard]] ns::String contentSizeCategory() const;
    [[nodiscard]] bool canOpenUrl(ns::Url url) const;
    bool openUrl(ns::Url url);
    void openUrlWithOptions(ns::Url url, ns::Dictionary options,
                            objc::Block<void(bool opened)> completion);
    /// To nil: to the first responder, or else the sender, or whoever is next in its chain that
    /// can perform the action. False when nobody can.
    bool sendAction(SEL action, objc::Object target, objc::Object sender, ui::Event event);
    [[nodiscard]] ApplicationState applicationState() const {
        return Foreground::shared().applicationState();
    }

    objc::Strong<ui::WindowScene> scene_ = ui::WindowScene::make();
    std::vector<ui::Window> windows_;
    ui::Window keyWindow_;
    objc::Weak<objc::Object> delegate_;
};

} // namespace desktop
