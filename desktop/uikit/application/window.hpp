// UIWindow: the root of a view tree.
#pragma once

#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/view_controller.hpp"
#include "bindings/uikit/window_scene.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Window : public PlatformClass<Window, ui::Window> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &Window::initWithFrame>(),
            objc::method<"initWithWindowScene:", &Window::initWithWindowScene>(),
            objc::property<"rootViewController", &Window::rootViewController,
                           &Window::setRootViewController>(),
            objc::property<"windowScene", &Window::scene_>(),
            objc::property<"windowLevel", &Window::level_>(),
            objc::property<"screen", &Window::screen, &Window::setScreen>(),
            objc::method<"isKeyWindow", &Window::isKeyWindow>(),
            objc::method<"makeKeyWindow", &Window::makeKeyWindow>(),
            objc::method<"makeKeyAndVisible", &Window::makeKeyAndVisible>(),
            objc::method<"setHidden:", &Window::setHidden>(),
            objc::method<"nextResponder", &Window::nextResponder>(),
            objc::method<"layoutSubviews", &Window::layoutSubviews>(),
        };
    }

    ~Window();
    [[nodiscard]] double level() const { return level_; }
    /// A window that fills the screen does so however the phone is held.
    void fitScreen();

private:
    ui::Window initWithFrame(CGRect frame);
    ui::Window initWithWindowScene(ui::WindowScene scene);
    [[nodiscard]] ui::ViewController rootViewController() const { return rootController_; }
    void setRootViewController(ui::ViewController controller);
    void showRootView();
    [[nodiscard]] objc::Object screen() const;
    void setScreen(objc::Object) {}
    [[nodiscard]] bool isKeyWindow() const;
    void makeKeyWindow();
    void makeKeyAndVisible();
    void setHidden(bool hidden);
    [[nodiscard]] ui::Responder nextResponder() const;
    void layoutSubviews();

    objc::Strong<ui::ViewController> rootController_;
    objc::Strong<ui::WindowScene> scene_;
    double level_ = 0;
    CGRect screen_ = ui::Screen::mainScreen().bounds();
};

} // namespace desktop
